#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include "play/Cards.h"
#include "play/CardSettings.h"

namespace tavrelin {

/// The face of a standard card; None while neither is selected.
enum class CardFace { None, Front, Back };

/// The four procedures that print cards.
enum class CardProcedure { OldMethod, NewMethod, World, Worksheet };

/// What the director chose in the frame "Round Robin Cards".
struct CardChoice {
  CardFace face = CardFace::Back;
  QString from;  ///< the two boxes; see CardGames
  QString to;
  int entrant = 0;         ///< number of the one entrant whose card is wanted; 0 for all
  bool worksheet = false;  ///< singles only
};

/// Everything that goes on paper after the operator pressed Print, or why nothing does.
struct CardJob {
  CardProcedure procedure = CardProcedure::OldMethod;
  QString name;     ///< of the job in the print queue
  Refusal refusal;  ///< about "To" when the box for the last game must be mended
  GameRange range;
  QString title;     ///< of the question
  QString question;  ///< Yes or No before anything is printed; mostly empty
  CardFace face = CardFace::Back;
  CardFace nextFace = CardFace::Back;  ///< what is selected after the run

  QString tournament;
  QDateTime date;  ///< of the tournament; may be invalid
  QString className;
  int shoes = 0;  ///< a game; 0: no fixed number
  bool doubles = false;
  int down = 0;       ///< twips by which every card is moved down
  int right = 0;      ///< and to the right
  QList<Card> cards;  ///< in printing order
  QList<WorksheetLine> lines;

  /// False when it was refused, or neither face is selected.
  bool Prints() const { return !cards.isEmpty() || !lines.isEmpty(); }
};

/// Which procedure the Print button runs.
CardProcedure ProcedureFor(const CardSettings& settings, const CardChoice& choice,
                           const PlayFormat& format);

/// The face that is selected after a run: the back follows the front, so that the same sheets can
/// be fed again, and the front the back, for the next set, unless only backs are printed.
CardFace FaceAfter(CardFace face, bool backOnly);

/// Makes the job of a loaded class ready. Writes nothing.
CardJob MakeCardJob(Connection& connection, const LoadedClass& loaded, const CardSettings& settings,
                    const CardChoice& choice);

}  // namespace tavrelin
