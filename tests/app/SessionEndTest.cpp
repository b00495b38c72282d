#include <gtest/gtest.h>

#include <csignal>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "support/BuiltProgram.h"

namespace tavrelin {
namespace {

/// True once a process catches a signal itself.
bool Catches(qint64 process, int signal) {
  QFile status(QStringLiteral("/proc/%1/status").arg(process));
  if (!status.open(QIODevice::ReadOnly)) return false;
  const QRegularExpression caught("SigCgt:\\s*([0-9a-f]+)");
  const QString mask = caught.match(QString::fromLatin1(status.readAll())).captured(1);
  return mask.toULongLong(nullptr, 16) >> (signal - 1) & 1;
}

// The window is closed as the operator closes it, and the program ends of its own accord.
TEST(SessionEndTest, TheProgramEndsCleanlyWithTheSession) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    SCOPED_TRACE(signal);
    QTemporaryDir folder;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TAVRELIN_STORE", folder.filePath("store.ini"));
    environment.insert("TAVRELIN_DATA", folder.filePath("TavrelinData"));
    program.setProcessEnvironment(environment);
    program.start(BuiltProgram("tavrelin"), {});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(QTest::qWaitFor([&] { return Catches(program.processId(), signal); }, 30'000));
    kill(static_cast<pid_t>(program.processId()), signal);
    ASSERT_TRUE(program.waitForFinished(30'000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
  }
}

}  // namespace
}  // namespace tavrelin
