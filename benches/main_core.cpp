#include <QCoreApplication>

#include "Compare.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return tavrelin::RunBenches(argc, argv);
}
