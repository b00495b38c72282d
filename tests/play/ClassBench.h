#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "play/ClassLoad.h"

namespace tavrelin {

/// A game to be stored, by the numbers of two entrants; 0 is the pacer.
struct Played {
  int one;
  int two;
  int points[2] = {0, 0};
  QList<int> ringers[2] = {{0, 0}, {0, 0}};  ///< by pitcher; singles read the first
  int shoes = 40;
  bool approved = true;
  bool forfeit[2] = {false, false};
  int game = 1;
};

/// A club file of one test with one tournament. Entrant number n has the player "00000n" or the
/// team n with the players "1000n" and "2000n".
class ClassBench : public testing::Test {
 protected:
  ClassBench();

  void AddClass(const QString& method = QStringLiteral("P"), double handicapPct = 0,
                const QString& format = QStringLiteral("S"),
                const QString& classID = QStringLiteral("A"), int shoes = 40);
  /// Adds n players to the roster, unless they are there.
  void AddPlayers(int count);
  void AddTeams(int count);
  /// Enters player or team n into a class.
  void Enter(int n, double average = 0, int seed = 0, const QString& classID = QStringLiteral("A"));
  void EnterTeam(int n, double average = 0, int seed = 0,
                 const QString& classID = QStringLiteral("A"));
  /// A singles or a doubles class "A" with entrants 1 to n, all of average 0 and unseeded.
  void MakeSingles(int entrants, const QString& method = QStringLiteral("P"), double handicap = 0);
  void MakeDoubles(int teams, const QString& method = QStringLiteral("P"), double handicap = 0);
  void Store(const Played& game, const QString& classID = QStringLiteral("A"));
  void StoreTeams(const Played& game, const QString& classID = QStringLiteral("A"));

  ClassRules Rules(const QString& classID = QStringLiteral("A"));
  /// The first cell of a query; null when it finds no row.
  Value Cell(const QString& sql);
  /// All rows of a query, cells joined by blanks.
  QStringList Rows(const QString& sql);

  static QString Player(int n) { return QString::number(n).rightJustified(6, u'0'); }
  static QString Partner(int n, int pitcher) { return QString::number((pitcher + 1) * 10000 + n); }

  QTemporaryDir folder_;
  QString path_;
  Connection connection_;
  static inline const QString Sanction = QStringLiteral("2601007");
};

}  // namespace tavrelin
