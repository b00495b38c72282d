#include <QGuiApplication>

#include "Compare.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  return tavrelin::RunBenches(argc, argv);
}
