#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

namespace tavrelin {

/// A print server of the test's own (CUPS, on a socket in its folder) with one default queue,
/// "Club", whose printer lays what it is sent into a folder. It ends with the object.
class PrintQueue {
 public:
  /// Does not start where this machine has no CUPS or forbids it: IsRunning tells.
  PrintQueue();
  ~PrintQueue();
  PrintQueue(const PrintQueue&) = delete;
  PrintQueue& operator=(const PrintQueue&) = delete;

  bool IsRunning() const { return running_; }
  /// The variables by which programs find the server, and a home without settings of a person.
  QProcessEnvironment Environment() const;
  /// Runs a command of the print system (lpadmin, cupsdisable...); what it says.
  QString Run(const QString& program, const QStringList& arguments) const;

  /// The documents that the printer was sent, waited for until there are as many or some seconds
  /// are over.
  QStringList Documents(int count) const;
  /// From now on the printer takes the first piece of a document and fails.
  void BreakPrinter() const;
  /// Waits until lpstat says so of the queue; false when it does not within some seconds.
  bool WaitFor(const QString& state) const;

  /// Shell commands for the test or for what it runs.
  QString StopServer() const { return QStringLiteral("kill -STOP %1").arg(server_.processId()); }
  QString EndServer() const;

 private:
  void Write(const QString& name, const QByteArray& text) const;
  void WriteSettings() const;
  QString Path(const QString& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
  QProcess server_;
  bool running_ = false;
};

}  // namespace tavrelin
