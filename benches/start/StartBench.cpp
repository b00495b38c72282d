// The program's window beside an empty one, as whole processes started in turn: the time to the
// first paint and the peak of memory.

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include "Compare.h"
#include "data/Schema.h"

namespace {

using namespace tavrelin;

/// Runs a program of this folder to its end and returns its peak of memory in kilobytes.
double RunToEnd(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationDirPath() + "/start/" + program, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0)
    qFatal("%s did not run to its end", qPrintable(program));
  return process.readAllStandardOutput().trimmed().toDouble();
}

/// A new club and a store of its own, so that what this machine's user keeps is left alone.
class NewClub {
 public:
  NewClub() : file_(folder_.filePath("Club.mdb")) {
    DeliverClubFile(file_);
    qputenv("TAVRELIN_STORE", folder_.filePath("store.ini").toLocal8Bit());
  }
  double StartWindow() const { return RunToEnd("tavrelin_start_window", {file_}); }
  static double StartEmpty() { return RunToEnd("tavrelin_start_empty", {}); }

 private:
  QTemporaryDir folder_;
  QString file_;
};

void Start(benchmark::State& state) {
  const NewClub club;
  Compare(state, 1.5, {[&] { club.StartWindow(); }, [] { NewClub::StartEmpty(); }, {}});
}
BENCHMARK(Start)->Name("Start to the first paint")->Iterations(21);

void MemoryOfStart(benchmark::State& state) {
  const NewClub club;
  for (auto _ : state) {
    const double bare = NewClub::StartEmpty();
    Tell(state, {}, club.StartWindow(), bare, "kB");
  }
}
BENCHMARK(MemoryOfStart)->Name("Peak of memory at the start")->Iterations(1);

}  // namespace
