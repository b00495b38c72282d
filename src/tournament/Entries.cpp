#include "tournament/Entries.h"

#include <cmath>
#include <limits>
#include <QMap>

#include "basic/Conversions.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/EntryAverage.h"

namespace tavrelin {

namespace {

struct Partner {
  QString playerID;
  QString category;
  double rosterAverage = 0;  ///< 0 when the roster has none
};

// Partners by team, each team's in the order in which they were put on it. Players who have left
// the roster are no partners any more.
QMap<int, QList<Partner>> PartnersByTeam(Connection& connection, const QString& condition = {}) {
  Recordset rows;
  rows.Open(
      "SELECT t.TeamID, t.PlayerID, p.Category, p.Average FROM TeamPlayers t, Players p "
      "WHERE t.PlayerID = p.PlayerID" +
          condition,
      connection);
  QMap<int, QList<Partner>> teams;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    teams[CLng(rows["TeamID"])].append(
        {rows["PlayerID"].Trimmed(), rows["Category"].Trimmed(), rows["Average"].ToNumber()});
  }
  return teams;
}

bool IsEntered(Connection& connection, const QString& sanctionID, int teamID) {
  Recordset entries;
  entries.Open("SELECT TeamID FROM TournamentTeamEntrants WHERE SanctionID = ? AND TeamID = ?",
               connection, Recordset::Lock::ReadOnly, {sanctionID, teamID});
  return !entries.AtEnd();
}

// Half the sum of the two, but a second player counts only beside a first one who has an average.
double TeamAverage(const QList<Partner>& partners) {
  double sum = partners[0].rosterAverage;
  if (partners[1].rosterAverage != 0 && sum != 0) sum += partners[1].rosterAverage;
  return sum / 2;
}

Refusal CheckFigures(const RowValues& row) {
  if (!IsNumeric(row.value("RingerPercent"))) return {"Invalid ringer percent"};
  if (!IsNumeric(row.value("Paid"))) return {"Invalid payment"};
  if (!IsNumeric(row.value("Seed"))) return {"Invalid seed"};
  return {};
}

// A count of shoes is a 16-bit number, as the columns that it is compared in.
bool IsCount(const Value& value) {
  constexpr double Most = std::numeric_limits<qint16>::max();
  return IsNumeric(value) && std::abs(CDbl(value)) <= Most;
}

Refusal CheckShoes(const RowValues& row) {
  if (!IsCount(row.value("TotalShoes"))) return {"Invalid Shoes"};
  if (!IsCount(row.value("TotalRingers"))) return {"Invalid Ringers"};
  if (CInt(row.value("TotalRingers")) > CInt(row.value("TotalShoes")))
    return {"Ringers cannot be greater than Shoes"};
  return {};
}

Refusal CheckPartners(const QList<Partner>& partners) {
  if (partners.size() == 2) return {};
  return {"Team must have two players"};
}

}  // namespace

RowCheck CheckSecondEntry(Recordset& entries, const QString& playerID) {
  RowCheck check;
  if (entries.RecordCount() == 0) return check;
  entries.MoveFirst();
  entries.Find("PlayerID = '" + EscapeQuotes(playerID) + "'");
  if (entries.AtEnd()) return check;
  if (entries["ClassID"].Trimmed().isEmpty())
    return check.Refuse(
        "Player already entered in tournament. Cannot be entered again until first "
        "entry is placed in a class. ");
  check.message = "Player already entered in tournament. Enter again? ";
  return check.AskFirst("Duplicate Entry", check.message);
}

double EnterPlayer(Connection& connection, const QString& sanctionID, const QString& playerID,
                   const QString& category, const QDate& today) {
  const double average = EntryAverage(connection, playerID, category, today);
  connection.Execute(
      "INSERT INTO TournamentEntrants (SanctionID, PlayerID, RingerPercent, RankOverride, ClassID) "
      "VALUES (?, ?, ?, 0, '')",
      {sanctionID, playerID, average});
  return average;
}

Refusal EnterTeam(Connection& connection, const QString& sanctionID, int teamID,
                  const QDate& today) {
  if (IsEntered(connection, sanctionID, teamID)) return {"Team already entered in Tournament"};
  const QList<Partner> partners =
      PartnersByTeam(connection, " AND t.TeamID = " + QString::number(teamID)).value(teamID);
  if (const Refusal refusal = CheckPartners(partners)) return refusal;

  Partner one = partners[0], two = partners[1];
  const double first = EntryAverage(connection, one.playerID, one.category, today);
  const double second = EntryAverage(connection, two.playerID, two.category, today);
  if (second > first) std::swap(one, two);
  connection.Execute(
      "INSERT INTO TournamentTeamEntrants (SanctionID, TeamID, RingerPercent, PlayerOneID, "
      "PlayerTwoID) VALUES (?, ?, ?, ?, ?)",
      {sanctionID, teamID, (first + second) / 2, one.playerID, two.playerID});
  return {};
}

bool IsPast(const QDateTime& tournamentDate, const QDate& today) {
  return today > tournamentDate.date();
}

void UpdatePlayerAverages(Connection& connection, const QString& sanctionID) {
  Recordset rows;
  rows.Open(
      "SELECT DISTINCT e.PlayerID, p.Average FROM TournamentEntrants e, Players p "
      "WHERE e.SanctionID = ? AND e.PlayerID = p.PlayerID",
      connection, Recordset::Lock::ReadOnly, {sanctionID});
  Batch batch(connection);
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const double average = rows["Average"].ToNumber();
    if (average == 0) continue;
    connection.Execute(
        "UPDATE TournamentEntrants SET RingerPercent = ? WHERE SanctionID = ? AND PlayerID = ?",
        {average, sanctionID, rows["PlayerID"]});
  }
  batch.Commit();
}

Refusal UpdateTeamAverages(Connection& connection, const QString& sanctionID) {
  const QMap<int, QList<Partner>> teams = PartnersByTeam(connection);
  Recordset rows;
  rows.Open("SELECT TeamID FROM TournamentTeamEntrants WHERE SanctionID = ?", connection,
            Recordset::Lock::ReadOnly, {sanctionID});
  Refusal refusal;
  Batch batch(connection);
  for (; !rows.AtEnd(); rows.MoveNext()) {
    const QList<Partner> partners = teams.value(CLng(rows["TeamID"]));
    refusal = CheckPartners(partners);
    if (refusal) break;
    const double average = TeamAverage(partners);
    if (average == 0) continue;
    connection.Execute(
        "UPDATE TournamentTeamEntrants SET RingerPercent = ? WHERE SanctionID = ? AND TeamID = ?",
        {average, sanctionID, rows["TeamID"]});
  }
  batch.Commit();
  return refusal;
}

RowCheck CheckEntry(const RowValues& row) {
  RowCheck check;
  const Refusal refusal = CheckFigures(row);
  return check.RefuseIf(refusal ? refusal : CheckShoes(row));
}

RowCheck CheckClassChange(Recordset& entries, Recordset::Bookmark own, const RowValues& row) {
  RowCheck check;
  const QString player = row.value("PlayerID").Trimmed();
  const QString classID = row.value("ClassID").Trimmed();
  if (!entries.GoTo(own) || entries["ClassID"].Trimmed() == classID) return check;
  for (entries.MoveFirst(); !entries.AtEnd(); entries.MoveNext()) {
    const bool same =
        entries["PlayerID"].Trimmed() == player && entries["ClassID"].Trimmed() == classID;
    if (!same || entries.CurrentBookmark() == own) continue;
    return check.Refuse(classID.isEmpty() ? "Player already has an entry without a class"
                                          : "Player already entered in this class");
  }
  return check;
}

RowCheck CheckTeamEntry(const RowValues& row) {
  RowCheck check;
  return check.RefuseIf(CheckFigures(row));
}

}  // namespace tavrelin
