#pragma once

#include "play/CardLayout.h"
#include "print/Document.h"

namespace tavrelin {

class OutputTarget;

/// Draws the faces of cards where the job's adjustments put them. What the styles do differently it
/// is told: the paper, and what stands in the information line.
class CardPrinter {
 public:
  using Information = QList<CardText> (*)(const CardJob& job, const Card& card);

  /// Target and job must outlive it.
  CardPrinter(OutputTarget& target, const CardJob& job, Orientation paper, Information information);

  /// A new page, unless nothing was drawn yet.
  void StartCard();
  void Front(const Card& card);
  /// The front upside down, so that it reads right once the sheet is folded.
  void TurnedFront(const Card& card);
  /// The back, moved down by so many twips.
  void Back(const Card& card, int lower = 0);

 private:
  int X(int x) const;
  int Y(int y) const;
  int RoomFrom(int x) const;
  void PrintAt(int x, int y, const QString& text);
  void PrintWithin(int x, int y, int room, const QString& text);
  void Turned(int y, const QString& text);
  void InformationLine(const Card& card);
  void Grid();
  void Rows(const Card& card);

  OutputTarget& target_;
  const CardJob& job_;
  const CardGrid& grid_;
  Information information_;
  int paperWidth_;
  int lower_ = 0;
  bool started_ = false;
};

}  // namespace tavrelin
