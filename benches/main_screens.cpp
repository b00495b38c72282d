#include "Compare.h"
#include "shell/Application.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const tavrelin::Application application(argc, argv);
  return tavrelin::RunBenches(argc, argv);
}
