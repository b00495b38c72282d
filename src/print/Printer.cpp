#include "print/Printer.h"

namespace tavrelin {

QString PrintedText(Printed printed) {
  switch (printed) {
    case Printed::OnPaper:
      return QStringLiteral("Document has been sent to printer");
    case Printed::InFile:
      return QStringLiteral("File has been created");
    case Printed::Nowhere:
      break;
  }
  return {};
}

}  // namespace tavrelin
