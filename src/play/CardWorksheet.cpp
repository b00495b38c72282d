#include <array>

#include "play/CardJob.h"
#include "play/CardLayout.h"
#include "play/CardSheets.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

constexpr int Left = 200;
constexpr int Right = 14200;
constexpr int HeadTop = 600;
constexpr int HeadTextY = 650;
constexpr int FirstRow = 1000;
constexpr int RowHeight = 400;
constexpr int LastRow = 10800;  // a row that would begin below it begins a page
constexpr int RowsOnPage = (LastRow - FirstRow) / RowHeight + 1;
constexpr int TextIndent = 100;
constexpr int Gap = 40;
constexpr std::array Verticals = {200, 1200, 2200, 6200, 7200, 8200, 12200, 13200, 14200};

const QList<CardText>& Headings() {
  static const QList<CardText> headings = {{250, "Game"},     {1250, "Court"},   {2350, "Player"},
                                           {6250, "Points"},  {7250, "Ringers"}, {8350, "Player"},
                                           {12250, "Points"}, {13250, "Ringers"}};
  return headings;
}

/// The empty cells between two rules.
void Frame(OutputTarget& target, int top, int bottom) {
  target.Line(Left, top, Right, top);
  for (const int x : Verticals) target.Line(x, top, x, bottom);
  target.Line(Left, bottom, Right, bottom);
}

void Head(OutputTarget& target) {
  target.Font().size = 12;
  target.Font().SetBold(true);
  Frame(target, HeadTop, FirstRow);
  target.SetCurrentY(HeadTextY);
  for (const CardText& heading : Headings()) target.PrintAt(heading.x, heading.text);
  target.Font().SetBold(false);
}

void Name(OutputTarget& target, int x, int end, const QString& name) {
  target.SetCurrentX(x);
  target.PrintWithin(end - x - Gap, name);
}

void Row(OutputTarget& target, const WorksheetLine& line, int y) {
  Frame(target, y, y + RowHeight);
  target.SetCurrentY(y + TextIndent);
  target.PrintAt(250, QString::number(line.game));
  target.PrintAt(1250, line.court);
  Name(target, 2350, 6200, line.one);
  Name(target, 8350, 12200, line.two);
}

}  // namespace

void PrintPairWorksheet(OutputTarget& target, const CardJob& job) {
  target.SetOrientation(Orientation::Landscape);
  for (qsizetype i = 0; i < job.lines.size(); ++i) {
    const auto row = static_cast<int>(i % RowsOnPage);
    if (row == 0 && i > 0) target.NewPage();
    if (row == 0) Head(target);
    Row(target, job.lines[i], FirstRow + row * RowHeight);
  }
}

}  // namespace tavrelin
