#include "play/CardPrinter.h"

#include "play/CardJob.h"
#include "print/CRotate.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

constexpr double FrontSize = 72;  // points
constexpr double HeadingSize = 48;
constexpr double GridSize = 12;
constexpr int FrontX = 200;
constexpr int FrontY = 4500;
constexpr int TurnedX = 11000;
constexpr int TurnedFirstY = 4300;
constexpr int TurnedSecondY = 3000;
constexpr int HeadingY = 4600;
constexpr int InformationY = 5800;
constexpr int Gap = 40;      // between a text and the rule to its right
constexpr int WordGap = 90;  // and the next text of its line
constexpr int Margin = 360;  // of the paper, where no printer prints

int WidthOf(Orientation paper) {
  return paper == Orientation::Landscape ? 15840 : 12240;
}

}  // namespace

CardPrinter::CardPrinter(OutputTarget& target, const CardJob& job, Orientation paper,
                         Information information)
    : target_(target),
      job_(job),
      grid_(job.doubles ? DoublesGrid() : SinglesGrid()),
      information_(information),
      paperWidth_(WidthOf(paper)) {
  target_.SetOrientation(paper);
  target_.SetDrawWidth(2);
}

int CardPrinter::X(int x) const {
  return x + job_.right;
}

int CardPrinter::Y(int y) const {
  return y + job_.down + lower_;
}

int CardPrinter::RoomFrom(int x) const {
  return paperWidth_ - Margin - X(x);
}

void CardPrinter::PrintAt(int x, int y, const QString& text) {
  target_.MoveTo(X(x), Y(y));
  target_.PrintOn(text);
}

void CardPrinter::PrintWithin(int x, int y, int room, const QString& text) {
  target_.MoveTo(X(x), Y(y));
  target_.PrintWithin(room, text);
}

void CardPrinter::StartCard() {
  if (started_) target_.NewPage();
  started_ = true;
}

void CardPrinter::Front(const Card& card) {
  target_.Font().size = FrontSize;
  int y = FrontY;
  for (const QString& line : card.front) {
    PrintWithin(FrontX, y, RoomFrom(FrontX), line);
    y += target_.LineHeight();
  }
}

void CardPrinter::TurnedFront(const Card& card) {
  Turned(TurnedFirstY, card.front.value(0));
  Turned(TurnedSecondY, card.front.value(1));
}

// Turned text runs to the left, toward the margin there.
void CardPrinter::Turned(int y, const QString& text) {
  CRotate rotate;
  rotate.SetDevice(target_);
  rotate.SetAngle(180);
  target_.MoveTo(X(TurnedX), Y(y));
  target_.Font().size = FrontSize;
  target_.Font().size = target_.SizeWithin(X(TurnedX) - Margin, text);
  rotate.PrintText(text);
}

void CardPrinter::Back(const Card& card, int lower) {
  lower_ = lower;
  target_.Font().size = HeadingSize;
  PrintWithin(FrontX, HeadingY, RoomFrom(FrontX), CardHeading(card));
  target_.Font().size = GridSize;
  InformationLine(card);
  Grid();
  Rows(card);
  lower_ = 0;
}

void CardPrinter::InformationLine(const Card& card) {
  const QList<CardText> texts = information_(job_, card);
  for (qsizetype i = 0; i < texts.size(); ++i) {
    const int x = texts[i].x;
    const int room = i + 1 < texts.size() ? texts[i + 1].x - x - WordGap : RoomFrom(x);
    PrintWithin(x, InformationY, room, texts[i].text);
  }
}

void CardPrinter::Grid() {
  const int left = X(CardGrid::Left);
  const int right = X(grid_.right);
  const int top = Y(CardGrid::Top);
  const int bottom = Y(CardGrid::Bottom);
  target_.Box(left, top, right, bottom);
  for (int y = top + CardGrid::RowHeight; y < bottom; y += CardGrid::RowHeight) {
    target_.Line(left, y, right, y);
  }
  target_.Line(X(CardGrid::GameRule), top, X(CardGrid::GameRule), Y(CardGrid::TotalsTop));
  for (const int x : grid_.rules) target_.Line(X(x), top, X(x), bottom);
  for (const CardText& heading : grid_.headings) {
    PrintAt(heading.x, CardGrid::HeadingY, heading.text);
  }
  PrintAt(300, CardGrid::TotalsY, QStringLiteral("Totals"));
  PrintAt(1500, CardGrid::TotalsY, QStringLiteral("Wins:"));
  PrintAt(2800, CardGrid::TotalsY, QStringLiteral("Losses:"));
}

void CardPrinter::Rows(const Card& card) {
  int y = CardGrid::HeadingY;
  for (const CardLine& line : card.lines) {
    y += CardGrid::RowHeight;
    PrintAt(CardGrid::GameX, y, QString::number(line.game));
    if (line.bye) {
      ByeRow(y);
    } else {
      GameRow(line, y);
    }
  }
}

void CardPrinter::GameRow(const CardLine& line, int y) {
  const QString number =
      line.opponentNumber == 0 ? QString() : QStringLiteral("%1. ").arg(line.opponentNumber);
  PrintWithin(CardGrid::OpponentX, y, grid_.rules.first() - CardGrid::OpponentX - Gap,
              number + line.opponent);
  PrintAt(grid_.courtX, y, line.court);
  for (const int x : grid_.slashX) PrintAt(x, y, QStringLiteral("/"));
}

void CardPrinter::ByeRow(int y) {
  PrintAt(CardGrid::OpponentX, y, QStringLiteral("X. BYE"));
  for (const int x : grid_.byeX) PrintAt(x, y, QStringLiteral("X"));
}

}  // namespace tavrelin
