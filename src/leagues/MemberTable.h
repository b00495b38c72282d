#pragma once

#include <QList>
#include <QString>

#include "data/Recordset.h"
#include "leagues/Season.h"

namespace tavrelin {

class Connection;
struct League;

/// A member of a league: who he is, what he brings along, and the figures of his season. Percents
/// are ringers of 100 shoes.
struct MemberStats {
  QString playerID, name, category, cardNumber, address, city, state, zipCode;
  bool active = false;
  SeasonStart start;
  int averagePoints = 0;
  float ringerPercent = 0;
  int handicap = 0;
  double wins = 0;
  double losses = 0;
  qint64 totalPoints = 0;
  qint64 totalRingers = 0;
  qint64 totalShoes = 0;
  qint64 highPoints = 0;
  qint64 highRingers = 0;
  float highPercent = 0;
  float previousHighPercent = 0;
  qint64 highWithHandicap = 0;
};

/// The members of a league who are on the roster, by PlayerID, as yet without a game.
QList<MemberStats> ReadMembers(Connection& connection, const League& league);

/// The 27 fields of the member table, in their order.
const QList<Field>& MemberFields();

/// The table that the reports read, a row a member, its cursor on the first. A text that is longer
/// than its field is cut. Throws Error for a figure that its field cannot hold.
Recordset MemberTable(const QList<MemberStats>& members);

}  // namespace tavrelin
