// The sheet of a class of 20 over 4 rounds (standings and box scores, 76 games a player) as PDF,
// beside painting the same texts at the same places with bare Qt; and 40 such classes in a row.
#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include "Compare.h"
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

void ResultsBesideBareQt(benchmark::State& state) {
  const ClassResults results = SampleSingles(20, 76);
  const BareSheet sheet(SheetOf(results));
  Compare(state, 1.5,
          {[&] { benchmark::DoNotOptimize(PdfBytes(SheetOf(results))); },
           [&] { benchmark::DoNotOptimize(sheet.Pdf()); },
           {}});
}
BENCHMARK(ResultsBesideBareQt)->Name("Results of 20 in 4 rounds to PDF")->Iterations(9);

void Sheets(const ClassResults& results, int classes) {
  for (int i = 0; i < classes; ++i) benchmark::DoNotOptimize(PdfBytes(SheetOf(results)));
}

void ClassesInARow(benchmark::State& state) {
  const ClassResults results = SampleSingles(20, 76);
  Compare(state, 4.0, {[&] { Sheets(results, 40); }, [&] { Sheets(results, 10); }, {}});
}
BENCHMARK(ClassesInARow)->Name("40 classes to PDF beside 10: time")->Iterations(1);

/// Resident memory in kilobytes.
double Resident() {
  QFile file(QStringLiteral("/proc/self/statm"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  return file.readAll().split(' ').value(1).toDouble() * 4;
}

void MemoryOfClasses(benchmark::State& state) {
  const ClassResults results = SampleSingles(20, 76);
  Sheets(results, 1);
  const double before = Resident();
  for (auto _ : state) Sheets(results, 40);
  Tell(state, 1.1, Resident(), before, "kB");
}
BENCHMARK(MemoryOfClasses)->Name("40 classes to PDF beside 1: memory")->Iterations(1);

}  // namespace
