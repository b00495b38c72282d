#pragma once

#include <gtest/gtest.h>

#include <QDate>
#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "leagues/League.h"
#include "leagues/LeagueOptions.h"
#include "leagues/LeagueStats.h"
#include "support/QtPrinters.h"

namespace tavrelin {

/// A member's row as a test stores it.
struct MemberRow {
  Value active = true;
  Value start = 0;
  Value highPoints = 0;
  Value highRingers = 0;
};

/// A game as a test stores it.
struct GameRow {
  int shoes = 50;
  int points = 0;
  int ringers = 0;
  QString result = "W";
  int team = 0;
};

/// A club's file with one league, "26-05-001", as yet without members: 50 shoes, every ringer
/// counts, no handicap, singles.
class LeagueBench : public testing::Test {
 protected:
  static inline const QString Sanction = "2605001";
  static inline const QDate FirstNight{2026, 4, 7};

  LeagueBench() {
    DeliverClubFile(path_);
    connection_.Open("DBQ=" + path_);
    connection_.Execute(
        "INSERT INTO Leagues VALUES(?, 'Thursday League', 'Maple Creek', 'OH', 'Ida Berg', 0, 50, "
        "False, 'S')",
        {Sanction});
  }

  void SetLeague(const QString& column, const Value& value) {
    connection_.Execute("UPDATE Leagues SET " + column + " = ? WHERE SanctionID = ?",
                        {value, Sanction});
  }

  void AddPlayer(const QString& id, const QString& last, const QString& first = "Ann") {
    connection_.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, Category, CardNumber, AddressOne, "
        "City, State, ZipCode) VALUES (?, ?, ?, 'AW', '301234', '12 Elm St', 'Erie', 'PA', "
        "'165011234')",
        {id, last, first});
  }

  /// A member who is on the roster by his number as last name.
  void AddMember(const QString& id, const MemberRow& row = {}) {
    AddPlayer(id, id);
    AddMemberRow(id, row);
  }
  void AddMemberRow(const QString& id, const MemberRow& row = {}) {
    connection_.Execute("INSERT INTO LeagueMembers VALUES(?, ?, ?, ?, ?, ?)",
                        {Sanction, id, row.active, row.start, row.highPoints, row.highRingers});
  }

  void AddGame(const QString& id, const GameRow& game, const Value& date = FirstNight,
               const QString& sanction = Sanction) {
    connection_.Execute(
        "INSERT INTO LeagueScores (SanctionID, PlayerID, TeamID, [Date], Shoes, Points, Ringers, "
        "WinLoss) VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
        {sanction, id, game.team, date, game.shoes, game.points, game.ringers, game.result});
  }
  /// One game a night with these points and 10 ringers, all of them won.
  void AddGames(const QString& id, const QList<int>& points) {
    QDate night = FirstNight;
    for (const int one : points) {
      AddGame(id, {.points = one, .ringers = 10}, night);
      night = night.addDays(7);
    }
  }

  /// The number the file gave the team.
  int AddTeam(const QString& name, const QStringList& players = {}) {
    connection_.Execute("INSERT INTO Teams (Team) VALUES (?)", {name});
    const int id = AskFor("SELECT TeamID FROM Teams WHERE Team = ?", {name}).toInt();
    for (const QString& player : players) {
      connection_.Execute("INSERT INTO TeamPlayers VALUES(?, ?)", {id, player});
    }
    return id;
  }
  void AddLeagueTeamRow(int team) {
    connection_.Execute("INSERT INTO LeagueTeams VALUES(?, ?)", {Sanction, team});
  }
  void AddTeamWins(int team, double wins, double losses, const QDate& date = FirstNight) {
    connection_.Execute("INSERT INTO LeagueTeamScores VALUES(?, ?, ?, ?, ?)",
                        {Sanction, team, date, wins, losses});
  }

  League TheLeague() { return FindLeague(connection_, Sanction).value(); }

  LeagueStats Stats(const LeagueOptions& options = {}) {
    return LoadStats(connection_, TheLeague(), options);
  }
  /// One cell of the member table, as text.
  QString Cell(const QString& id, const QString& field, const LeagueOptions& options = {}) {
    LeagueStats stats = Stats(options);
    stats.members.Find("PlayerID = '" + id + "'");
    EXPECT_FALSE(stats.members.AtEnd()) << id.toStdString();
    return stats.members.AtEnd() ? QString() : stats.members[field].ToText();
  }

  /// The first cell of a query, as text.
  QString AskFor(const QString& sql, const QList<Value>& parameters = {}) {
    Recordset rows;
    rows.Open(sql, connection_, Recordset::Lock::ReadOnly, parameters);
    return rows.AtEnd() ? QString() : rows.At(0).ToText();
  }
  /// A query's rows, their cells with blanks between.
  QStringList Rows(const QString& sql) {
    Recordset rows;
    QStringList all;
    for (rows.Open(sql, connection_); !rows.AtEnd(); rows.MoveNext()) {
      QStringList cells;
      for (int i = 0; i < rows.Fields().size(); ++i) cells << rows.At(i).ToText();
      all << cells.join(u' ');
    }
    return all;
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath("Club.mdb");
  Connection connection_;
};

}  // namespace tavrelin
