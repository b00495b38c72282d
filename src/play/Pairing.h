#pragma once

#include <QString>
#include <QStringList>

#include "basic/Refusal.h"

namespace tavrelin {

class Connection;
struct ClassRules;

/// Who meets the entrant left over in a class of odd size.
enum class OddEntrant { NotChosen, Bye, Pacer };

/// What the director chose before pairing a class.
struct PairingChoice {
  QStringList courts;  ///< the names of the courts by position, one for each court of the schedule
  int rounds = 1;
  OddEntrant odd = OddEntrant::NotChosen;  ///< counts only in a class of odd size
};

/// Stores the games of a class, round after round, as its schedule tells. Refused when the class
/// cannot be paired; then nothing is written. One transaction: all the games or, after a failure or
/// a crash, none.
///
/// With a bye, a game of the bye is not stored; and when the last court is blank, a game that would
/// stand there takes the court which the bye leaves free in that game.
Refusal CreatePairing(Connection& connection, const ClassRules& rules, const PairingChoice& choice);

/// Removes all games of the class; its entries stay.
void DeletePairing(Connection& connection, const ClassRules& rules);

/// The courts once a bye is chosen: every one but the last must have a name.
Refusal CheckByeCourts(const QStringList& courts);
/// What would make better use of them; empty when there is nothing to say. The choice stands.
QString ByeCourtAdvice(const QStringList& courts);

/// The number of rounds that a text asks for: 1 when it cannot be read or is 0.
int RoundsOf(const QString& text);

}  // namespace tavrelin
