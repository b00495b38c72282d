#include "play/CardSheets.h"

#include "play/CardJob.h"
#include "play/CardPrinter.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

constexpr int UpperPlace = -7700;  // from the lower card of a sheet to the upper one

// A card of its own lies across the paper. The other styles use Letter paper upright: with their
// shift down to 14600 they are longer than a Letter sheet across.
constexpr Orientation CardPaper = Orientation::Landscape;
constexpr Orientation SheetPaper = Orientation::Portrait;

}  // namespace

void PrintCards(OutputTarget& target, const CardJob& job) {
  switch (job.procedure) {
    case CardProcedure::OldMethod:
      return PrintPairOldMethod(target, job);
    case CardProcedure::NewMethod:
      return PrintPairNewMethod(target, job);
    case CardProcedure::World:
      return PrintPairWorld(target, job);
    case CardProcedure::Worksheet:
      return PrintPairWorksheet(target, job);
  }
}

void PrintPairOldMethod(OutputTarget& target, const CardJob& job) {
  const bool front = job.face == CardFace::Front;
  CardPrinter printer(target, job, CardPaper, CardInformation);
  for (const Card& card : job.cards) {
    const qsizetype copies = front ? card.pitchers.size() : 1;
    for (qsizetype copy = 0; copy < copies; ++copy) {
      printer.StartCard();
      if (front) {
        printer.Front(card);
      } else {
        printer.Back(card);
      }
    }
  }
}

void PrintPairNewMethod(OutputTarget& target, const CardJob& job) {
  CardPrinter printer(target, job, SheetPaper, CardInformation);
  for (const Card& card : job.cards) {
    printer.StartCard();
    printer.TurnedFront(card);
    printer.Back(card);
  }
}

void PrintPairWorld(OutputTarget& target, const CardJob& job) {
  CardPrinter printer(target, job, SheetPaper, TwoUpInformation);
  bool upper = true;
  for (const Card& card : job.cards) {
    if (upper) printer.StartCard();
    printer.Back(card, upper ? UpperPlace : 0);
    const bool startsAnew = card.isPacer && card.number % 2 == 1;
    upper = startsAnew || !upper;
  }
}

}  // namespace tavrelin
