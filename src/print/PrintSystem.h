#pragma once

#include <QString>

namespace tavrelin {

// What Qt's print support does not tell about the system that carries its jobs, CUPS. A computer
// without it is not an error: it has no printer then.

/// Throws Error(Printer) when the print system is there and gives no answer for some seconds: Qt
/// would wait for its printers, or for its word on a job, without an end.
void RefuseDeafPrintSystem();

/// What the print system had against the last job of this thread; empty when it took it.
QString RefusalOfLastJob();

}  // namespace tavrelin
