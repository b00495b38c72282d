#include "print/PrintSystem.h"

#include <QLibrary>
#include <QLocalSocket>
#include <QTcpSocket>

#include "basic/Error.h"

namespace tavrelin {

namespace {

constexpr int Patience = 4000;  // milliseconds

template <class Function>
Function* CupsFunction(const char* name) {
  static QLibrary cups(QStringLiteral("cups"), 2);
  return reinterpret_cast<Function*>(cups.resolve(name));
}

// A print system that is not there refuses the connection; one that is there says something, be it
// a refusal, or hangs up.
template <class Socket>
bool IsDeaf(Socket& socket) {
  if (!socket.waitForConnected(Patience)) return socket.error() == Socket::SocketTimeoutError;
  socket.write("OPTIONS * HTTP/1.1\r\nHost: localhost\r\n\r\n");
  if (socket.waitForReadyRead(Patience)) return false;
  return socket.error() == Socket::SocketTimeoutError;
}

bool IsDeaf(const QString& server, int port) {
  if (server.startsWith(QLatin1Char('/'))) {
    QLocalSocket socket;
    socket.connectToServer(server);
    return IsDeaf(socket);
  }
  QTcpSocket socket;
  socket.connectToHost(server, static_cast<quint16>(port));
  return IsDeaf(socket);
}

}  // namespace

void RefuseDeafPrintSystem() {
  auto* const server = CupsFunction<const char*()>("cupsServer");
  auto* const port = CupsFunction<int()>("ippPort");
  if (!server || !port || !IsDeaf(QString::fromLocal8Bit(server()), port())) return;
  throw Error(errors::Printer,
              QStringLiteral("The print system of this computer does not answer. Nothing was "
                             "printed. Try again in a while, or save the report as a PDF from its "
                             "preview."));
}

// Qt hands the finished job to CUPS and does not look at the answer. CUPS keeps it for the thread.
QString RefusalOfLastJob() {
  auto* const number = CupsFunction<int()>("cupsLastError");
  auto* const text = CupsFunction<const char*()>("cupsLastErrorString");
  constexpr int FirstFailure = 0x400;  // the statuses of IPP below are successes
  if (!number || !text || number() < FirstFailure) return {};
  return QString::fromUtf8(text());
}

}  // namespace tavrelin
