// The sheet of a class of 20 over 4 rounds (standings and box scores, 76 games a player) as PDF,
// beside painting the same texts at the same places with bare Qt; and 40 such classes in a row.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include "play/ResultsSheet.h"
#include "play/SampleResults.h"
#include "print/Fonts.h"
#include "print/OutputTarget.h"
#include "print/PdfFile.h"

namespace {

using namespace tavrelin;

Document SheetOf(const ClassResults& results) {
  return Record(OutputTarget::Kind::Printer, QStringLiteral("Results"),
                [&](OutputTarget& target) { PrintTheClass(target, results, {}); });
}

/// What a page holds, ready for the painter: nothing is left to find out while it is drawn.
struct BareText {
  QPointF place;
  QString text;
  int font;
};
struct BarePage {
  QList<BareText> texts;
  QList<QLine> rules;
};

class BareSheet {
 public:
  explicit BareSheet(const Document& document) {
    for (const Page& page : document.pages) {
      pages_.append(BarePage{});
      for (const Mark& mark : page.marks) std::visit([this](const auto& m) { Add(m); }, mark);
    }
  }

  QByteArray Pdf() const {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(1440);
    writer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()));
    QPainter painter(&writer);
    bool first = true;
    for (const BarePage& page : pages_) {
      if (!first) writer.newPage();
      first = false;
      int font = -1;
      for (const BareText& text : page.texts) {
        if (text.font != font) painter.setFont(fonts_[font = text.font]);
        painter.drawText(text.place, text.text);
      }
      painter.setPen(QPen(Qt::black, 15));
      painter.drawLines(page.rules);
    }
    painter.end();
    return buffer.data();
  }

 private:
  void Add(const TextMark& mark) {
    qsizetype font = known_.indexOf(mark.font);
    if (font < 0) {
      font = known_.size();
      known_.append(mark.font);
      fonts_.append(TwipFont(mark.font));
    }
    const double ascent = QFontMetricsF(fonts_[font]).ascent();
    pages_.last().texts.append({{double(mark.x), mark.y + ascent}, mark.text, int(font)});
  }
  void Add(const LineMark& mark) {
    pages_.last().rules.append(QLine(mark.x1, mark.y1, mark.x2, mark.y2));
  }

  QList<PageFont> known_;
  QList<QFont> fonts_;
  QList<BarePage> pages_;
};

void ResultsOf20PlayersIn4Rounds(benchmark::State& state) {
  const ClassResults results = SampleSingles(20, 76);
  for (auto _ : state) benchmark::DoNotOptimize(PdfBytes(SheetOf(results)));
}
BENCHMARK(ResultsOf20PlayersIn4Rounds)->Unit(benchmark::kMillisecond);

void TheSameTextsWithBareQt(benchmark::State& state) {
  const BareSheet sheet(SheetOf(SampleSingles(20, 76)));
  for (auto _ : state) benchmark::DoNotOptimize(sheet.Pdf());
}
BENCHMARK(TheSameTextsWithBareQt)->Unit(benchmark::kMillisecond);

/// Resident memory in kilobytes.
double Resident() {
  QFile file(QStringLiteral("/proc/self/statm"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  return file.readAll().split(' ').value(1).toDouble() * 4;
}

void ClassesInARow(benchmark::State& state) {
  const ClassResults results = SampleSingles(20, 76);
  PdfBytes(SheetOf(results));
  const double before = Resident();
  for (auto _ : state) {
    for (int i = 0; i < state.range(0); ++i) benchmark::DoNotOptimize(PdfBytes(SheetOf(results)));
  }
  state.counters["grown_kB"] = Resident() - before;
}
BENCHMARK(ClassesInARow)->Arg(10)->Arg(20)->Arg(40)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
