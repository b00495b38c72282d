#include "players/Commands.h"

#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/EntryAverage.h"

namespace tavrelin {

namespace {

int Average(const QStringList& arguments, QTextStream& out, QTextStream&) {
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  Recordset player;
  player.Open("SELECT PlayerID, LastName, FirstName, Category FROM Players WHERE PlayerID = ?",
              connection, Recordset::Lock::ReadOnly, {arguments[1]});
  if (player.AtEnd()) {
    Refuse({QStringLiteral("There is no player with the number %1.").arg(arguments[1])});
  }
  const double average = EntryAverage(connection, player["PlayerID"].ToText(),
                                      player["Category"].ToText(), QDate::currentDate());
  TextTable table(out, {"PlayerID", "LastName", "FirstName", "Category", "Average"});
  table.Row(
      {player["PlayerID"], player["LastName"], player["FirstName"], player["Category"], average});
  return exits::Done;
}

}  // namespace

QList<Command> PlayerCommands() {
  return {{"average", "average FILE PLAYERID",
           "Tells the ringer percent at which a player would enter a tournament today.", 2, 2,
           Average}};
}

}  // namespace tavrelin
