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
  const TableForm& form = grid_.form;
  int y = Y(CardGrid::Top);
  DrawBand(target_, *form.ruling, X(0), y);
  PrintHeadings(target_, grid_.games, form, X(0), y + form.headingsDrop);
  y += form.headHeight;
  DrawRows(target_, *form.ruling, X(0), y, form.rowHeight, CardGrid::Games);
  y += CardGrid::Games * form.rowHeight;
  DrawRows(target_, grid_.totals, X(0), y, form.rowHeight);
  PrintAt(300, CardGrid::TotalsY, QStringLiteral("Totals"));
  PrintAt(1500, CardGrid::TotalsY, QStringLiteral("Wins:"));
  PrintAt(2800, CardGrid::TotalsY, QStringLiteral("Losses:"));
}

void CardPrinter::Rows(const Card& card) {
  const TableForm& form = grid_.form;
  int y = Y(CardGrid::Top) + form.headHeight + form.textDrop;
  for (const CardLine& line : card.lines) {
    PrintCells(target_, line.bye ? grid_.byes : grid_.games, form, CardCells(line), X(0), y);
    y += form.rowHeight;
  }
}

}  // namespace tavrelin
