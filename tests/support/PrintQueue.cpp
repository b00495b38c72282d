#include "support/PrintQueue.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTest>

namespace tavrelin {

namespace {

const QString Scheduler = QStringLiteral("/usr/sbin/cupsd");
constexpr int Patience = 10000;  // milliseconds
constexpr int Pause = 20;

template <class Condition>
bool Await(const Condition& condition) {
  for (QDeadlineTimer deadline(Patience); !deadline.hasExpired(); QTest::qSleep(Pause)) {
    if (condition()) return true;
  }
  return condition();
}

}  // namespace

PrintQueue::PrintQueue() {
  if (geteuid() != 0 || !QFile::exists(Scheduler)) return;
  WriteSettings();
  server_.setStandardOutputFile(QProcess::nullDevice());
  server_.setStandardErrorFile(QProcess::nullDevice());
  server_.start(Scheduler, {"-f", "-c", Path("root/cupsd.conf"), "-s", Path("root/files.conf")});
  running_ = server_.waitForStarted() && Await([this] {
               QLocalSocket socket;
               socket.connectToServer(Path("socket"));
               return socket.waitForConnected(Pause);
             });
}

PrintQueue::~PrintQueue() {
  if (server_.state() == QProcess::NotRunning) return;
  kill(static_cast<pid_t>(server_.processId()), SIGCONT);
  server_.terminate();
  if (!server_.waitForFinished(Patience)) server_.kill();
  server_.waitForFinished();
}

void PrintQueue::Write(const QString& name, const QByteArray& text) const {
  QFile file(Path(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

// The printer is a program of the server's: without arguments it tells its name, else it is handed
// a document.
void PrintQueue::WriteSettings() const {
  for (const char* sub :
       {"root", "bin/backend", "spool", "cache", "state", "temp", "home", "out"}) {
    QDir(folder_.path()).mkpath(sub);
  }
  QFile::link("/usr/lib/cups/daemon", Path("bin/daemon"));  // starts the printer's program
  const QByteArray here = folder_.path().toUtf8();
  Write("root/cupsd.conf", "Listen " + here + "/socket\n" +
                               "Browsing Off\nWebInterface No\nDefaultAuthType None\n"
                               "<Location />\nAllow all\n</Location>\n"
                               "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n");
  QByteArray files = "ServerRoot " + here + "/root\nServerBin " + here + "/bin\nRequestRoot " +
                     here + "/spool\nCacheDir " + here + "/cache\nStateDir " + here +
                     "/state\nTempDir " + here +
                     "/temp\nFatalErrors none\nSystemGroup root\nPrintcap\n";
  for (const char* log : {"AccessLog", "ErrorLog", "PageLog"}) {
    files += QByteArray(log) + ' ' + here + "/log\n";
  }
  Write("root/files.conf", files);
  Write("root/printers.conf",
        "<DefaultPrinter Club>\nDeviceURI court:/out\nState Idle\nAccepting Yes\n"
        "ErrorPolicy stop-printer\n</DefaultPrinter>\n");
  Write("bin/backend/court",
        "#!/bin/sh\n[ $# -eq 0 ] && { echo 'direct court \"Unknown\" \"Court\"'; exit 0; }\n"
        "[ -n \"$6\" ] && exec < \"$6\"\n"
        "[ -e " +
            here +
            "/broken ] && { head -c 1000 > /dev/null; exit 1; }\n"
            "cat > " +
            here + "/out/.$1 && mv " + here + "/out/.$1 " + here + "/out/$1.pdf\n");
  QFile::setPermissions(Path("bin/backend/court"),
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QProcessEnvironment PrintQueue::Environment() const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("CUPS_SERVER", Path("socket"));
  environment.insert("HOME", Path("home"));
  environment.insert("PATH", environment.value("PATH") + ":/usr/sbin");
  environment.remove("PRINTER");
  environment.remove("LPDEST");
  return environment;
}

QString PrintQueue::Run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  process.setProcessEnvironment(Environment());
  process.start("env", QStringList(program) + arguments);
  EXPECT_TRUE(process.waitForFinished(Patience)) << program.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList PrintQueue::Documents(int count) const {
  const QDir out(Path("out"));
  Await([&] { return out.entryList({"*.pdf"}).size() >= count; });
  QStringList paths;
  for (const QString& name : out.entryList({"*.pdf"}, QDir::Files, QDir::Name)) {
    paths << out.filePath(name);
  }
  return paths;
}

void PrintQueue::BreakPrinter() const {
  Write("broken", {});
}

bool PrintQueue::WaitFor(const QString& state) const {
  return Await([&] { return Run("lpstat", {"-p", "Club"}).contains(state); });
}

QString PrintQueue::EndServer() const {
  return QStringLiteral("kill %1; while test -e %2; do sleep 0.05; done")
      .arg(server_.processId())
      .arg(Path("socket"));
}

}  // namespace tavrelin
