#pragma once

#include <optional>
#include <QList>
#include <QString>

namespace tavrelin {

class Connection;

/// A season of weekly play by a club, as its row in Leagues tells it. Empty columns read as "" and
/// 0.
struct League {
  QString sanctionID;
  QString name;
  QString state;
  QString director;
  double handicapPct = 0;
  int shoes = 0;              ///< shoes a game; 0: no fixed number
  bool cancellation = false;  ///< ringers cancel each other; otherwise every ringer counts
  bool teams = false;         ///< players pitch for teams, which have standings of their own
};

/// The league of this number, hyphens disregarded; nothing when the file holds none of it, or no
/// longer.
std::optional<League> FindLeague(Connection& connection, const QString& sanctionID);

/// All leagues, the newest number first.
QList<League> AllLeagues(Connection& connection);

/// A league as the boxes offer it. The number is the item's data: two seasons may share a name.
struct LeagueChoice {
  QString sanctionID;
  QString text;  ///< the name; with the written number where several leagues have it, or none has
  QString name;
};

/// Every league of the file, the newest first.
QList<LeagueChoice> LeagueChoices(Connection& connection);

/// The place of the league that the boxes open on: the newest of this name. -1 when there is none.
int PlaceOfLeague(const QList<LeagueChoice>& choices, const QString& name);

}  // namespace tavrelin
