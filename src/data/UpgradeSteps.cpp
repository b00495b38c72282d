#include "data/UpgradeSteps.h"

namespace tavrelin {
namespace {

using Kind = LayoutChange::Kind;
using Needed = UpgradeStep::Needed;
using Changes = QList<LayoutChange>;

constexpr LayoutChange Create(const char* table) {
  return {Kind::CreateTable, table};
}
constexpr LayoutChange Add(const char* table, const char* column) {
  return {Kind::AddColumn, table, column};
}
constexpr LayoutChange AddZero(const char* table, const char* column) {
  return {Kind::AddZero, table, column};
}
constexpr LayoutChange Widen(const char* table, const char* column, const char* type) {
  return {Kind::Widen, table, column, 0, type};
}
constexpr LayoutChange Run(const char* statement) {
  return {Kind::Run, statement};
}
constexpr LayoutChange Setting(int id) {
  return {Kind::Setting, nullptr, nullptr, id};
}
constexpr LayoutChange OldSetting(int id, const char* prompt, const char* value) {
  return {Kind::Setting, prompt, value, id};
}

/// The association's two-letter divisions took the place of the one-letter ones.
void Recode(Changes& changes, const char* table, const QList<const char*>& statements) {
  changes += Widen(table, "Category", "VARCHAR(2)");
  for (const char* statement : statements) changes += Run(statement);
}

Changes DivisionChanges() {
  Changes changes;
  Recode(changes, "Players",
         {"UPDATE Players SET Category = 'AM' WHERE Category = 'M' ",
          "UPDATE Players SET Category = 'AW' WHERE Category = 'W' ",
          "UPDATE Players SET Category = 'EM' WHERE Category = 'E' ",
          "UPDATE Players SET Category = 'JB' WHERE Category = 'B' ",
          "UPDATE Players SET Category = 'JG' WHERE Category = 'G' ",
          "UPDATE Players SET Category = 'CA' WHERE Category = 'C' ",
          "UPDATE Players SET Category = 'SM' WHERE Category = 'S' ",
          "UPDATE Players SET Category = 'SW' WHERE Category = 'L' "});
  Recode(changes, "PlayerScores",
         {"UPDATE PlayerScores SET Category = 'AM' WHERE Category = 'M' ",
          "UPDATE PlayerScores SET Category = 'AW' WHERE Category = 'W' ",
          "UPDATE PlayerScores SET Category = 'EM' WHERE Category = 'E' ",
          "UPDATE PlayerScores SET Category = 'JB' WHERE Category = 'B' ",
          "UPDATE PlayerScores SET Category = 'JG' WHERE Category = 'G' ",
          "UPDATE PlayerScores SET Category = 'CA' WHERE Category = 'C' ",
          "UPDATE PlayerScores SET Category = 'SM' WHERE Category = 'S' ",
          "UPDATE PlayerScores SET Category = 'SW' WHERE Category = 'L' "});
  return changes;
}

Changes MembershipReportChanges() {
  Changes changes;
  for (const char* statement : {"ALTER TABLE StateMembershipReport DROP COLUMN AdultAmount",
                                "ALTER TABLE StateMembershipReport DROP COLUMN JuniorAmount",
                                "ALTER TABLE StateMembershipReport DROP COLUMN AdultCountYTD",
                                "ALTER TABLE StateMembershipReport DROP COLUMN AdultAmountYTD",
                                "ALTER TABLE StateMembershipReport DROP COLUMN JuniorCountYTD",
                                "ALTER TABLE StateMembershipReport DROP COLUMN JuniorAmountYTD",
                                "ALTER TABLE StateMembershipReport DROP COLUMN AdultCountPellOTR",
                                "ALTER TABLE StateMembershipReport DROP COLUMN JuniorCountPellOTR",
                                "ALTER TABLE StateMembershipReport DROP COLUMN LifetimeMembersOTR",
                                "ALTER TABLE StateMembershipReport DROP COLUMN AdultCountPellYTD",
                                "ALTER TABLE StateMembershipReport DROP COLUMN JuniorCountPellYTD",
                                "ALTER TABLE StateMembershipReport DROP COLUMN LifetimeMembers"}) {
    changes += Run(statement);
  }
  for (const char* column : {"LifetimeCount", "DirectCount", "ProvisionalCount"}) {
    changes += Add("StateMembershipReport", column);
  }
  changes += Run(
      "UPDATE StateMembershipReport SET LifetimeCount = 0, DirectCount = 0, ProvisionalCount = 0");
  return changes;
}

}  // namespace

const QList<UpgradeStep>& UpgradeSteps() {
  static const QList<UpgradeStep> steps{
      {"SELECT * FROM SystemSettings",
       Needed::Missing,
       {Create("SystemSettings"), Setting(1), Setting(2)}},
      {"SELECT Wins FROM PlayerScores WHERE 1 = 2",
       Needed::Missing,
       {AddZero("PlayerScores", "Wins"), AddZero("PlayerScores", "Losses"),
        AddZero("PlayerScores", "Place")}},
      {"SELECT HiGame FROM PlayerScores WHERE 1 = 2",
       Needed::Missing,
       {AddZero("PlayerScores", "HiGame"), AddZero("TournamentEntrants", "HiGame"),
        AddZero("TournamentTeamEntrants", "PlayerOneHiGame"),
        AddZero("TournamentTeamEntrants", "PlayerTwoHiGame")}},
      // A file that has no row 3 yet gets the old prompt and keeps it: only a row from before is
      // renamed.
      {"SELECT * FROM SystemSettings WHERE SettingID = 3",
       Needed::NoRows,
       {OldSetting(3, "Print Round Robin Cards on 8 1/2 X 11 Paper", "N")},
       nullptr,
       {Run("UPDATE SystemSettings SET PromptValue = 'Round Robin Card Style: 1=Card; 2=Folded; "
            "3=2up' WHERE SettingID = 3 AND PromptValue LIKE 'Print Round Robin%'")}},
      {"SELECT * FROM SystemSettings WHERE SettingID = 4", Needed::NoRows, {Setting(4)}},
      {"SELECT * FROM SystemSettings WHERE SettingID = 5",
       Needed::NoRows,
       {Setting(5), AddZero("LeagueScores", "Handicap")}},
      {"SELECT * FROM SystemSettings WHERE SettingID = 6", Needed::NoRows, {Setting(6)}},
      {"SELECT COUNT(*) FROM ScoreSheet WHERE 1 = 2",
       Needed::Missing,
       {Create("ScoreSheet"),
        Run("ALTER TABLE TournamentSinglesRR ADD COLUMN GameID AUTOINCREMENT")}},
      {"SELECT ScorekeeperName FROM TournamentSinglesRR WHERE 1 = 2",
       Needed::Missing,
       {Add("TournamentSinglesRR", "ScorekeeperName")}},
      {"SELECT Report FROM TournamentClasses WHERE 1 = 2",
       Needed::Missing,
       {AddZero("TournamentClasses", "Report")}},
      {"SELECT HeadToHead FROM TournamentTeamEntrants WHERE 1 = 2",
       Needed::Missing,
       {AddZero("TournamentTeamEntrants", "HeadToHead"),
        OldSetting(0, "Database Version", "11.1")}},
      {"SELECT PlayerOneNumber FROM TournamentSinglesRR WHERE 1 = 2",
       Needed::Missing,
       {AddZero("TournamentSinglesRR", "PlayerOneNumber"),
        AddZero("TournamentSinglesRR", "PlayerTwoNumber")},
       "11.2"},
      {"SELECT GameID FROM LeagueScores WHERE 1 = 2",
       Needed::Missing,
       {Add("LeagueScores", "GameID")},
       "11.3"},
      {"SELECT PlayerOneSinglePoints FROM TournamentSinglesRR WHERE 1 = 2",
       Needed::Missing,
       {Add("TournamentSinglesRR", "PlayerOneSinglePoints"),
        Add("TournamentSinglesRR", "PlayerTwoSinglePoints"),
        Add("TournamentSinglesRR", "PlayerOneForfeit"),
        Add("TournamentSinglesRR", "PlayerTwoForfeit")},
       "11.4"},
      {"SELECT * FROM SystemSettings WHERE SettingID = 7", Needed::NoRows, {Setting(7)}, "11.5"},
      {"SELECT * FROM SystemSettings WHERE SettingID = 8", Needed::NoRows, {Setting(8)}, "11.6"},
      {"SELECT * FROM SystemSettings WHERE SettingID = 9", Needed::NoRows, {Setting(9)}, "11.7"},
      {"SELECT * FROM SystemSettings WHERE SettingID = 10", Needed::NoRows, {Setting(10)}, "11.8"},
      {"SELECT RankOverride FROM TournamentClasses WHERE 1 = 2",
       Needed::Missing,
       {AddZero("TournamentClasses", "RankOverride"),
        AddZero("TournamentEntrants", "RankOverride")},
       "11.9"},
      {"SELECT CellPhone FROM Players WHERE 1 = 2",
       Needed::Missing,
       {Add("Players", "CellPhone"), Add("Players", "Email"), Add("Players", "EmergencyInfo"),
        Add("Players", "Awards")},
       "11.10"},
      {"SELECT * FROM ReportGroup",
       Needed::Missing,
       {Create("ReportGroup"), Create("ReportGroupClass")},
       "11.11"},
      {"SELECT MembershipType FROM Players WHERE 1 = 2",
       Needed::Missing,
       {Add("Players", "MembershipType"), Run("UPDATE Players SET MembershipType = 'S'")},
       "11.12"},
      {"SELECT ProvisionalCount FROM StateMembershipReport WHERE 1 = 2", Needed::Missing,
       MembershipReportChanges(), "11.13"},
      {"SELECT Points FROM PlayerScores WHERE 1 = 2",
       Needed::Missing,
       {AddZero("PlayerScores", "Points"), AddZero("PlayerScores", "HiGamePoints"),
        AddZero("TournamentEntrants", "HiGamePoints"),
        AddZero("TournamentTeamEntrants", "HiGamePoints")},
       "11.14"},
      {"SELECT ClassID FROM PlayerScores WHERE 1 = 2",
       Needed::Missing,
       {Add("PlayerScores", "ClassID"), Run("UPDATE PlayerScores SET ClassID = ''")},
       "11.15"},
      // There has never been an 11.16.
      {"SELECT * FROM Players WHERE Category = 'AM' ", Needed::NoRows, DivisionChanges(), "11.17"},
  };
  return steps;
}

}  // namespace tavrelin
