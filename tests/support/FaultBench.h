#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace tavrelin {

/// Runs a small command as a process of its own and strikes it: kills it at its n-th write, fails
/// its writes, puts its folder on a read-only place. What is left of its files is for the test to
/// look at.
///
/// The command may be any program. A test's own work is run as a disabled test of the same test
/// program: see Worker. Writes are counted over all files, journals included.
class FaultBench {
 public:
  struct Outcome {
    bool ran = false;     ///< false where this machine forbids the tool; skip the test then
    bool killed = false;  ///< struck before it came to its end
    int exitCode = -1;
    QString output;  ///< what it wrote to standard output
  };

  /// A command that runs one disabled test of this program ("Suite.DISABLED_Name").
  static QStringList Worker(const QString& test) {
    return {QStringLiteral("/proc/self/exe"), QStringLiteral("--gtest_also_run_disabled_tests"),
            QStringLiteral("--gtest_brief=1"), QStringLiteral("--gtest_filter=") + test};
  }

  /// Sets a variable of the command's environment.
  void SetVariable(const QString& name, const QString& value) { environment_.insert(name, value); }

  /// Kills the command as it enters its n-th call of `call` (pwrite64, fdatasync, unlink...).
  Outcome KillAt(int n, const QStringList& command, const QString& call = "pwrite64") const {
    return Strike(QStringLiteral("%1:signal=SIGKILL:when=%2").arg(call).arg(n), call, command);
  }

  /// Fails the n-th call of `call` and no other, as when room is made on a full disk.
  Outcome FailAt(int n, const QString& error, const QStringList& command,
                 const QString& call = "pwrite64") const {
    return Strike(QStringLiteral("%1:error=%2:when=%3").arg(call, error).arg(n), call, command);
  }

  /// Fails the n-th and every further call of `call` with `error` (ENOSPC, EIO...).
  Outcome FailFrom(int n, const QString& error, const QStringList& command,
                   const QString& call = "pwrite64") const {
    return Strike(QStringLiteral("%1:error=%2:when=%3+").arg(call, error).arg(n), call, command);
  }

  /// Runs the command where `folder` can only be read.
  Outcome WithReadOnly(const QString& folder, const QStringList& command) const {
    const QString script = QStringLiteral(
        "mount --bind \"$1\" \"$1\" && mount -o remount,ro,bind \"$1\" && shift && exec \"$@\"");
    return Run(QStringLiteral("unshare"),
               QStringList{"-Urm", "sh", "-c", script, "sh", folder} + Resolved(command));
  }

 private:
  static QStringList Resolved(QStringList command) {
    command[0] =
        QFile::symLinkTarget(command[0]).isEmpty() ? command[0] : QFile::symLinkTarget(command[0]);
    return command;
  }

  Outcome Strike(const QString& fault, const QString& call, const QStringList& command) const {
    return Run(QStringLiteral("strace"), QStringList{"-f", "-qq", "-o", "/dev/null", "-e",
                                                     "trace=" + call, "-e", "inject=" + fault} +
                                             Resolved(command));
  }

  Outcome Run(const QString& program, const QStringList& arguments) const {
    // What a struck program leaves lying goes with this folder.
    const QTemporaryDir scratch;
    QProcessEnvironment environment = environment_;
    environment.insert(QStringLiteral("TMPDIR"), scratch.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, arguments);
    Outcome outcome;
    if (!process.waitForStarted()) return outcome;
    if (!process.waitForFinished(60000)) {
      ADD_FAILURE() << "the struck program hangs";
      return outcome;
    }
    outcome.output = QString::fromUtf8(process.readAllStandardOutput());
    outcome.killed = process.exitStatus() == QProcess::CrashExit || process.exitCode() == 137;
    outcome.exitCode = process.exitCode();
    const QString complaint = QString::fromUtf8(process.readAllStandardError());
    outcome.ran = !complaint.contains(QStringLiteral("ptrace")) &&
                  !complaint.contains(QStringLiteral("unshare:")) &&
                  !complaint.contains(QStringLiteral("mount:"));
    return outcome;
  }

  QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

}  // namespace tavrelin
