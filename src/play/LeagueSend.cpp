#include "play/LeagueSend.h"

#include <QHash>
#include <QSet>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "leagues/League.h"
#include "leagues/LeagueGames.h"
#include "play/ClassLoad.h"
#include "play/Game.h"
#include "play/PlayFormat.h"
#include "players/ByID.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// A league row that came from a game, by game and player.
using SentKey = QPair<qint64, QString>;
struct SentRow {
  qint64 id = 0;
  QString sanctionID;  ///< of its league
};
using SentRows = QMultiHash<SentKey, SentRow>;

SentRows RowsOfClass(Connection& connection, const ClassRules& rules) {
  Recordset rows;
  rows.Open(
      u"SELECT ID, GameID, PlayerID, SanctionID FROM LeagueScores WHERE GameID IN "
      "(SELECT GameID FROM TournamentSinglesRR WHERE SanctionID = ? AND ClassID = ?)"_s,
      connection, Recordset::Lock::ReadOnly, {rules.sanctionID, rules.classID});
  SentRows sent;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    sent.insert({rows.At(1).ToWhole(), IDKey(rows.At(2).ToText())},
                {rows.At(0).ToWhole(), rows.At(3).Trimmed()});
  }
  return sent;
}

QString ResultOf(const Game& game, int side, const PlayFormat& format) {
  switch (OutcomeOf(game, side, format)) {
    case Outcome::Win:
      return u"W"_s;
    case Outcome::Loss:
      return u"L"_s;
    default:
      return u"T"_s;
  }
}

/// Sends one class, game by game.
class Sender {
 public:
  Sender(Connection& connection, const ClassRules& rules, const League& league,
         const QDate& evening)
      : connection_(connection),
        league_(league),
        evening_(evening),
        format_(FormatOf(rules)),
        present_(RowsOfClass(connection, rules)),
        teams_(LeagueTeamsOfPlayers(connection, league.sanctionID)) {
    sent_.teamLeague = league.teams;
  }

  void Send(const Game& game, qint64 gameID) {
    for (int side = 0; side < 2; ++side) {
      const QString& player = game.sides[static_cast<size_t>(side)].id;
      if (format_.IsPacer(player)) continue;
      FindTeam(player);
      SendSide(game, gameID, side);
    }
  }

  const SentToLeague& Sent() const { return sent_; }

 private:
  void FindTeam(const QString& player) {
    if (teams_.contains(player)) {
      team_ = teams_.value(player);
    } else if (!strangers_.contains(IDKey(player))) {
      strangers_.insert(IDKey(player));
      ++sent_.withoutTeam;
    }
  }

  void SendSide(const Game& game, qint64 gameID, int side) {
    const GameSide& own = game.sides[static_cast<size_t>(side)];
    const QList<Value> figures = {own.points, game.shoes, own.Ringers(),
                                  ResultOf(game, side, format_)};
    const QList<SentRow> before = present_.values({gameID, IDKey(own.id)});
    if (before.isEmpty()) Insert(own.id, gameID, figures);
    for (const SentRow& row : before) Update(row, figures);
  }

  void Insert(const QString& player, qint64 gameID, const QList<Value>& figures) {
    connection_.Execute(
        u"INSERT INTO LeagueScores (SanctionID,PlayerID,TeamID,[Date],Points,Shoes,Ringers,"
        "WinLoss,Handicap,GameID) VALUES (?,?,?,?,?,?,?,?,0,?)"_s,
        QList<Value>{league_.sanctionID, player, team_, evening_} + figures + QList<Value>{gameID});
    ++sent_.added;
  }

  void Update(const SentRow& row, const QList<Value>& figures) {
    connection_.Execute(
        u"UPDATE LeagueScores SET Points = ?, Shoes = ?, Ringers = ?, WinLoss = ? WHERE ID = ?"_s,
        figures + QList<Value>{row.id});
    const bool here = CompareText(row.sanctionID, league_.sanctionID) == 0;
    ++(here ? sent_.updated : sent_.elsewhere);
  }

  Connection& connection_;
  const League& league_;
  QDate evening_;
  const PlayFormat& format_;
  SentRows present_;
  ByID<qint64> teams_;
  qint64 team_ = 0;  ///< of the latest player who has one
  QSet<QString> strangers_;
  SentToLeague sent_;
};

}  // namespace

QString SentToLeague::Message() const {
  const QString counts = u"%1 new, %2 updated, %3 left in another league"_s;
  const QString message = u"Class information has been sent to league: "_s +
                          counts.arg(added).arg(updated).arg(elsewhere);
  if (!teamLeague) return message;
  return message + u", %1 %2 without a team"_s.arg(withoutTeam)
                       .arg(withoutTeam == 1 ? u"player"_s : u"players"_s);
}

SentToLeague SendClassToLeague(Connection& connection, const ClassRules& rules,
                               const League& league, const QDate& evening) {
  Recordset rows;
  rows.Open(FormatOf(rules).gamesStatement, connection, Recordset::Lock::ReadOnly,
            {rules.sanctionID, rules.classID});
  const int number = rows.FieldIndex(u"GameID"_s);
  const GameReader reader(rows, FormatOf(rules));
  Sender sender(connection, rules, league, evening);
  Batch batch(connection);
  for (int position = 1; position <= rows.RecordCount(); ++position) {
    const Game game = reader.Read(rows, position);
    if (game.approved) sender.Send(game, rows.CellAt(position, number).ToWhole());
  }
  batch.Commit();
  return sender.Sent();
}

int RowsSentToLeagues(Connection& connection, const ClassRules& rules) {
  return static_cast<int>(RowsOfClass(connection, rules).size());
}

}  // namespace tavrelin
