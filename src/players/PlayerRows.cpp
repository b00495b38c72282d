#include "players/PlayerRows.h"

#include "basic/Picture.h"
#include "data/Connection.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

Recordset Editable(Connection& connection, const QString& query,
                   const QList<Value>& parameters = {}) {
  Recordset rows;
  rows.Open(query, connection, Recordset::Lock::Optimistic, parameters);
  return rows;
}

Recordset ReadOnly(Connection& connection, const QString& query) {
  Recordset rows;
  rows.Open(query, connection);
  return rows;
}

}  // namespace

Recordset OpenRoster(Connection& connection) {
  Recordset players = Editable(connection, u"SELECT * FROM Players ORDER BY LastName"_s);
  players.Optimize(u"PlayerID"_s);
  players.Optimize(u"CardNumber"_s);
  return players;
}

Recordset PlayersByLastName(Connection& connection) {
  return ReadOnly(connection,
                  u"SELECT PlayerID, LastName, FirstName, Category FROM Players "
                  "ORDER BY LastName"_s);
}

Recordset OpenHistory(Connection& connection, const Value& playerID) {
  return Editable(connection,
                  u"SELECT PlayerID, Category, SanctionID, Shoes, Ringers, "
                  "(Ringers / Shoes * 100) AS Pct, Wins, Losses, Place, HiGame "
                  "FROM PlayerScores WHERE PlayerID = ?"_s,
                  {playerID});
}

QList<CodeText> SanctionChoices(Connection& connection) {
  Recordset rows = ReadOnly(connection, u"SELECT SanctionID FROM Tournaments ORDER BY Date DESC"_s);
  QList<CodeText> choices;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const QString number = rows.At(0).ToText();
    choices.append({number, FormatSanction(number)});
  }
  return choices;
}

Recordset OpenTeams(Connection& connection) {
  return Editable(connection, u"SELECT * FROM Teams ORDER BY Team"_s);
}

Recordset TeamList(Connection& connection) {
  return ReadOnly(connection, u"SELECT TeamID, Team FROM Teams ORDER BY Team"_s);
}

Recordset OpenTeamPlayers(Connection& connection, const Value& teamID) {
  return Editable(connection,
                  u"SELECT TeamID, PlayerID FROM TeamPlayers WHERE TeamID = ? "
                  "ORDER BY PlayerID"_s,
                  {teamID});
}

}  // namespace tavrelin
