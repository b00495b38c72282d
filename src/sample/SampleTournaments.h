#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include "play/Pairing.h"

namespace tavrelin {

class Connection;
class Dice;
struct SamplePlayer;
struct SampleTeam;

/// A class of the sample.
struct SampleClass {
  enum class Scores { Unpaired, Half, All };

  const char* id;
  const char* name;
  double handicapPct;
  const char* rankMethod;
  const char* playFormat;  ///< "S" or "D"
  int entrants;            ///< players or teams
  OddEntrant odd;
  Scores scores;
};

/// A tournament of the sample. It is posted when all its classes are played.
struct SampleTournament {
  const char* sanctionID;
  const char* name;
  QDate date;
  const char* city;
  const char* state;
  const char* director;
  QList<SampleClass> classes;
};

/// Sets up a tournament, enters the strongest first and nobody twice, pairs its classes by their
/// schedules, pitches the games, ranks and posts.
void AddSampleTournament(Connection& connection, Dice& dice, const SampleTournament& plan,
                         const QList<SamplePlayer>& players, const QList<SampleTeam>& teams);

}  // namespace tavrelin
