#include "support/OldClub.h"

#include <QMap>

#include "data/Schema.h"
#include "support/PlainDatabase.h"

namespace {

/// What takes a step back. Every club file once lacked these things.
const QMap<int, QString>& Undoing() {
  static const QMap<int, QString> undoing{
      {1, "DROP TABLE SystemSettings"},
      {2,
       "ALTER TABLE PlayerScores DROP COLUMN Wins; ALTER TABLE PlayerScores DROP COLUMN Losses;"
       "ALTER TABLE PlayerScores DROP COLUMN Place"},
      {3,
       "ALTER TABLE PlayerScores DROP COLUMN HiGame;"
       "ALTER TABLE TournamentEntrants DROP COLUMN HiGame;"
       "ALTER TABLE TournamentTeamEntrants DROP COLUMN PlayerOneHiGame;"
       "ALTER TABLE TournamentTeamEntrants DROP COLUMN PlayerTwoHiGame"},
      {4, "DELETE FROM SystemSettings WHERE SettingID = 3"},
      {5, "DELETE FROM SystemSettings WHERE SettingID = 4"},
      {6,
       "DELETE FROM SystemSettings WHERE SettingID = 5;"
       "ALTER TABLE LeagueScores DROP COLUMN Handicap"},
      {7, "DELETE FROM SystemSettings WHERE SettingID = 6"},
      {8,
       "DROP TABLE ScoreSheet;"
       "CREATE TABLE Old (SanctionID CHAR(7) COLLATE RTRIM, ClassID TEXT(3) COLLATE NOCASE, Game "
       "INTEGER, Court TEXT(3) COLLATE NOCASE, Shoes INTEGER, PlayerOneID TEXT(6) COLLATE NOCASE, "
       "PlayerTwoID TEXT(6) COLLATE NOCASE, PlayerOnePoints INTEGER, PlayerTwoPoints INTEGER, "
       "PlayerOneRingers INTEGER, PlayerTwoRingers INTEGER, Approved YESNO NOT NULL DEFAULT 0);"
       "INSERT INTO Old SELECT SanctionID, ClassID, Game, Court, Shoes, PlayerOneID, PlayerTwoID, "
       "PlayerOnePoints, PlayerTwoPoints, PlayerOneRingers, PlayerTwoRingers, Approved FROM "
       "TournamentSinglesRR; DROP TABLE TournamentSinglesRR;"
       "ALTER TABLE Old RENAME TO TournamentSinglesRR"},
      {9, "ALTER TABLE TournamentSinglesRR DROP COLUMN ScorekeeperName"},
      {10, "ALTER TABLE TournamentClasses DROP COLUMN Report"},
      {11,
       "ALTER TABLE TournamentTeamEntrants DROP COLUMN HeadToHead;"
       "DELETE FROM SystemSettings WHERE SettingID = 0"},
      {12,
       "ALTER TABLE TournamentSinglesRR DROP COLUMN PlayerOneNumber;"
       "ALTER TABLE TournamentSinglesRR DROP COLUMN PlayerTwoNumber"},
      {13, "ALTER TABLE LeagueScores DROP COLUMN GameID"},
      {14,
       "ALTER TABLE TournamentSinglesRR DROP COLUMN PlayerOneSinglePoints;"
       "ALTER TABLE TournamentSinglesRR DROP COLUMN PlayerTwoSinglePoints;"
       "ALTER TABLE TournamentSinglesRR DROP COLUMN PlayerOneForfeit;"
       "ALTER TABLE TournamentSinglesRR DROP COLUMN PlayerTwoForfeit"},
      {15, "DELETE FROM SystemSettings WHERE SettingID = 7"},
      {16, "DELETE FROM SystemSettings WHERE SettingID = 8"},
      {17, "DELETE FROM SystemSettings WHERE SettingID = 9"},
      {18, "DELETE FROM SystemSettings WHERE SettingID = 10"},
      {19,
       "ALTER TABLE TournamentClasses DROP COLUMN RankOverride;"
       "ALTER TABLE TournamentEntrants DROP COLUMN RankOverride"},
      {20,
       "ALTER TABLE Players DROP COLUMN CellPhone; ALTER TABLE Players DROP COLUMN Email;"
       "ALTER TABLE Players DROP COLUMN EmergencyInfo; ALTER TABLE Players DROP COLUMN Awards"},
      {21, "DROP TABLE ReportGroup; DROP TABLE ReportGroupClass"},
      {22, "ALTER TABLE Players DROP COLUMN MembershipType"},
      {23,
       "DROP TABLE StateMembershipReport;"
       "CREATE TABLE StateMembershipReport (SanctionID TEXT(7) COLLATE NOCASE, Year TEXT(4) "
       "COLLATE "
       "NOCASE, ReportNumber INTEGER, ReportDate TEXT(20) COLLATE NOCASE, CharterName TEXT(100) "
       "COLLATE NOCASE, OfficerName TEXT(100) COLLATE NOCASE, AdultCount INTEGER, JuniorCount "
       "INTEGER, AdultAmount DOUBLE, JuniorAmount DOUBLE, AdultCountYTD INTEGER, AdultAmountYTD "
       "DOUBLE, JuniorCountYTD INTEGER, JuniorAmountYTD DOUBLE, AdultCountPellOTR INTEGER, "
       "JuniorCountPellOTR INTEGER, LifetimeMembersOTR INTEGER, AdultCountPellYTD INTEGER, "
       "JuniorCountPellYTD INTEGER, LifetimeMembers INTEGER);"
       "INSERT INTO StateMembershipReport (SanctionID, Year, ReportNumber, AdultCount, "
       "AdultAmount) "
       "VALUES ('35', '2005', 1, 40, 1000)"},
      {24,
       "ALTER TABLE PlayerScores DROP COLUMN Points;"
       "ALTER TABLE PlayerScores DROP COLUMN HiGamePoints;"
       "ALTER TABLE TournamentEntrants DROP COLUMN HiGamePoints;"
       "ALTER TABLE TournamentTeamEntrants DROP COLUMN HiGamePoints"},
      {25, "ALTER TABLE PlayerScores DROP COLUMN ClassID"},
  };
  return undoing;
}

/// One-letter divisions in a narrow column behind which the later columns still follow.
QString NarrowDivision(PlainDatabase& db, const QString& table) {
  QStringList declarations;
  for (const QStringList& column :
       db.Rows(QStringLiteral("SELECT name, type, dflt_value FROM pragma_table_info('%1')")
                   .arg(table))) {
    const bool division = column[0] == u"Category";
    QString line = column[0] + u' ' + (division ? QStringLiteral("VARCHAR(1)") : column[1]);
    if (line.contains(u"TEXT") || line.contains(u"VARCHAR")) {
      line += " COLLATE NOCASE";
    } else if (line.contains(u"CHAR")) {
      line += " COLLATE RTRIM";
    }
    if (column[2] != u"(null)") line += " DEFAULT " + column[2];
    declarations += line;
  }
  return QStringLiteral(
             "CREATE TABLE Old (%1); INSERT INTO Old SELECT * FROM %2; DROP TABLE %2;"
             "ALTER TABLE Old RENAME TO %2;"
             "UPDATE %2 SET Category = CASE Category WHEN 'AM' THEN 'M' WHEN 'AW' THEN 'W' WHEN "
             "'EM' THEN 'E' WHEN 'JB' THEN 'B' WHEN 'JG' THEN 'G' WHEN 'CA' THEN 'C' WHEN 'SM' "
             "THEN "
             "'S' WHEN 'SW' THEN 'L' END")
      .arg(declarations.join(u','), table);
}

void FillRows(PlainDatabase& db) {
  const QStringList divisions{"AM", "AW", "EM", "JB", "JG", "CA", "SM", "SW"};
  for (int i = 0; i < divisions.size(); ++i) {
    const QString id = QStringLiteral("PLAY%1").arg(i, 2, 10, QLatin1Char('0'));
    db.Run(
        QStringLiteral("INSERT INTO Players (PlayerID, FirstName, LastName, Category, City, "
                       "State, ZipCode, Telephone, CellPhone, Email) VALUES ('%1', 'Él%2', "
                       "'O''Tavish', '%3', 'Dry Fork', 'TX', '79999', '', '', '');"
                       "INSERT INTO PlayerScores (SanctionID, PlayerID, Shoes, Ringers, Category,"
                       " Wins, Losses, Place, HiGame, Points, HiGamePoints, ClassID) VALUES "
                       "('TX05001', '%1', 100, %2, '%3', 0, 0, 0, 0, 0, 0, '')")
            .arg(id)
            .arg(i)
            .arg(divisions[i]));
  }
  db.Run(
      "INSERT INTO Tournaments VALUES ('TX05001', 'Old Settlers', '2005-07-04 00:00:00', 'Dry "
      "Fork', 'TX', 'A. Pike');"
      "INSERT INTO TournamentClasses (SanctionID, ClassID, Shoes) VALUES ('TX05001', 'A', 40);"
      "INSERT INTO TournamentEntrants (SanctionID, PlayerID, ClassID) VALUES ('TX05001', 'PLAY00', "
      "'A'), ('TX05001', 'PLAY01', 'A');"
      "INSERT INTO TournamentSinglesRR (SanctionID, ClassID, Game, Court, PlayerOneID, PlayerTwoID,"
      " PlayerOneNumber, PlayerTwoNumber) VALUES ('TX05001', 'A', 1, '  1', 'PLAY00', 'PLAY01', 0, "
      "0), ('TX05001', 'A', 2, '  1', 'PLAY01', 'PLAY00', 0, 0);"
      "INSERT INTO LeagueScores (SanctionID, PlayerID, Points, Handicap) VALUES ('TX05L01', "
      "'PLAY00', 30, 0)");
}

}  // namespace

QString VersionBefore(int step) {
  const QMap<int, QString> stamps{{11, "11.1"},  {12, "11.2"},  {13, "11.3"},  {14, "11.4"},
                                  {15, "11.5"},  {16, "11.6"},  {17, "11.7"},  {18, "11.8"},
                                  {19, "11.9"},  {20, "11.10"}, {21, "11.11"}, {22, "11.12"},
                                  {23, "11.13"}, {24, "11.14"}, {25, "11.15"}};
  return stamps.value(step - 1);
}

void MakeOldClub(const QString& path, int beforeStep) {
  tavrelin::DeliverClubFile(path);
  PlainDatabase db(path);
  FillRows(db);
  // Files of that time know no rules of deletion and no indexes.
  for (const QStringList& other :
       db.Rows("SELECT type, name FROM sqlite_master WHERE type <> 'table' AND sql IS NOT NULL")) {
    db.Run(QStringLiteral("DROP %1 %2").arg(other[0], other[1]));
  }
  for (int step = 26; step >= beforeStep; --step) {
    if (step == 26) {
      db.Run(NarrowDivision(db, "Players"));
      db.Run(NarrowDivision(db, "PlayerScores"));
    } else {
      db.Run(Undoing()[step]);
    }
  }
  if (beforeStep > 11) {
    db.Run(QStringLiteral("UPDATE SystemSettings SET SettingValue = '%1' WHERE SettingID = 0")
               .arg(VersionBefore(beforeStep)));
  }
}
