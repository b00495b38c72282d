#include "play/ClassBench.h"

#include "data/Recordset.h"
#include "data/Schema.h"

namespace tavrelin {

ClassBench::ClassBench() : path_(folder_.filePath(QStringLiteral("Club.mdb"))) {
  DeliverClubFile(path_);
  connection_.Open(QStringLiteral("DBQ=") + path_);
  connection_.Execute(QStringLiteral("INSERT INTO Tournaments (SanctionID, Name, [Date]) "
                                     "VALUES (?, 'Spring Open', #5/9/2026#)"),
                      {Sanction});
}

void ClassBench::AddClass(const QString& method, double handicapPct, const QString& format,
                          const QString& classID, int shoes) {
  connection_.Execute(
      QStringLiteral(
          "INSERT INTO TournamentClasses (SanctionID, ClassID, Name, HandicapPct, Shoes, "
          "RankMethod, PlayFormat) VALUES (?, ?, ?, ?, ?, ?, ?)"),
      {Sanction, classID, QStringLiteral("Class ") + classID, handicapPct, shoes, method, format});
}

void ClassBench::AddPlayers(int count) {
  for (int n = 1; n <= count; ++n) {
    connection_.Execute(
        QStringLiteral("INSERT INTO Players (PlayerID, FirstName, LastName, State, Category, "
                       "CardNumber) VALUES (?, ?, 'Stone', 'IA', 'AM', ?)"),
        {Player(n), QStringLiteral("P%1").arg(n), QStringLiteral("C%1").arg(n)});
  }
}

void ClassBench::AddTeams(int count) {
  for (int n = 1; n <= count; ++n) {
    connection_.Execute(QStringLiteral("INSERT INTO Teams (TeamID, Team) VALUES (?, ?)"),
                        {n, QStringLiteral("Team %1").arg(n)});
    for (const int pitcher : {0, 1}) {
      connection_.Execute(
          QStringLiteral("INSERT INTO Players (PlayerID, FirstName, LastName) VALUES (?, ?, ?)"),
          {Partner(n, pitcher), pitcher == 0 ? "Ann" : "Bob", QStringLiteral("Of%1").arg(n)});
    }
  }
}

void ClassBench::Enter(int n, double average, int seed, const QString& classID) {
  connection_.Execute(
      QStringLiteral("INSERT INTO TournamentEntrants (SanctionID, PlayerID, Seed, RingerPercent, "
                     "ClassID) VALUES (?, ?, ?, ?, ?)"),
      {Sanction, Player(n), seed, average, classID});
}

void ClassBench::EnterTeam(int n, double average, int seed, const QString& classID) {
  connection_.Execute(
      QStringLiteral("INSERT INTO TournamentTeamEntrants (SanctionID, TeamID, Seed, RingerPercent, "
                     "ClassID, PlayerOneID, PlayerTwoID) VALUES (?, ?, ?, ?, ?, ?, ?)"),
      {Sanction, n, seed, average, classID, Partner(n, 0), Partner(n, 1)});
}

void ClassBench::MakeSingles(int entrants, const QString& method, double handicap) {
  Batch batch(connection_);
  AddClass(method, handicap);
  AddPlayers(entrants);
  for (int n = 1; n <= entrants; ++n) Enter(n);
}

void ClassBench::MakeDoubles(int teams, const QString& method, double handicap) {
  Batch batch(connection_);
  AddClass(method, handicap, QStringLiteral("D"));
  AddTeams(teams);
  for (int n = 1; n <= teams; ++n) EnterTeam(n);
}

void ClassBench::Store(const Played& game, const QString& classID) {
  const auto id = [](int n) { return n == 0 ? QStringLiteral("PPPPPP") : Player(n); };
  connection_.Execute(
      QStringLiteral("INSERT INTO TournamentSinglesRR (SanctionID, ClassID, Game, Court, Shoes, "
                     "PlayerOneID, PlayerTwoID, PlayerOnePoints, PlayerTwoPoints, "
                     "PlayerOneRingers, PlayerTwoRingers, Approved, PlayerOneForfeit, "
                     "PlayerTwoForfeit, PlayerOneNumber, PlayerTwoNumber) "
                     "VALUES (?, ?, ?, '  1', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      {Sanction, classID, game.game, game.shoes, id(game.one), id(game.two), game.points[0],
       game.points[1], game.ringers[0].value(0), game.ringers[1].value(0), game.approved,
       game.forfeit[0], game.forfeit[1], game.one, game.two});
}

void ClassBench::StoreTeams(const Played& game, const QString& classID) {
  const auto player = [](int n, int pitcher) {
    return n == 0 ? QStringLiteral("PPPPP%1").arg(pitcher + 1) : Partner(n, pitcher);
  };
  connection_.Execute(
      QStringLiteral("INSERT INTO TournamentDoublesRR (SanctionID, ClassID, Game, Court, Shoes, "
                     "TeamOneID, TeamTwoID, TeamOnePoints, TeamTwoPoints, TeamOnePlayerOneID, "
                     "TeamOnePlayerTwoID, TeamTwoPlayerOneID, TeamTwoPlayerTwoID, "
                     "TeamOnePlayerOneRingers, TeamOnePlayerTwoRingers, TeamTwoPlayerOneRingers, "
                     "TeamTwoPlayerTwoRingers, Approved) "
                     "VALUES (?, ?, ?, '  1', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      {Sanction, classID, game.game, game.shoes, game.one, game.two, game.points[0], game.points[1],
       player(game.one, 0), player(game.one, 1), player(game.two, 0), player(game.two, 1),
       game.ringers[0].value(0), game.ringers[0].value(1), game.ringers[1].value(0),
       game.ringers[1].value(1), game.approved});
}

ClassRules ClassBench::Rules(const QString& classID) {
  return FindClass(connection_, Sanction, classID).value();
}

Value ClassBench::Cell(const QString& sql) {
  Recordset rows;
  rows.Open(sql, connection_);
  return rows.AtEnd() ? Value() : rows.At(0);
}

QStringList ClassBench::Rows(const QString& sql) {
  QStringList all;
  Recordset rows;
  for (rows.Open(sql, connection_); !rows.AtEnd(); rows.MoveNext()) {
    QStringList cells;
    for (int i = 0; i < rows.Fields().size(); ++i) cells << rows.At(i).ToText();
    all << cells.join(u' ');
  }
  return all;
}

}  // namespace tavrelin
