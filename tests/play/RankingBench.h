#pragma once

#include "play/ClassBench.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"

namespace tavrelin {

/// Plays the games of a class and reads its standings.
class RankingBench : public ClassBench {
 protected:
  void Play(const QList<Played>& games) {
    Batch batch(connection_);
    for (const Played& game : games) Store(game);
  }

  Standings Rank(bool honourOverride = false) {
    return RankTheClass(connection_, Rules(),
                        honourOverride ? StandingOrder::Directed : StandingOrder::Computed);
  }

  /// The entrants' numbers in place order.
  static std::string Order(const Standings& standings) {
    QStringList order;
    const int id = standings.rows.FieldIndex(FormatOf(standings.rules).entrantID);
    for (int place = 1; place <= standings.rows.RecordCount(); ++place) {
      order << QString::number(standings.rows.CellAt(place, id).ToWhole());
    }
    return order.join(u' ').toStdString();
  }

  /// A field of entrant n's line.
  static double Figure(const Standings& standings, int n, const QString& field) {
    const int id = standings.rows.FieldIndex(FormatOf(standings.rules).entrantID);
    for (int place = 1; place <= standings.rows.RecordCount(); ++place) {
      if (standings.rows.CellAt(place, id).ToWhole() != n) continue;
      return standings.rows.CellAt(place, standings.rows.FieldIndex(field)).ToNumber();
    }
    ADD_FAILURE() << "no line for " << n;
    return -1;
  }

  double Stored(int n, const QString& column, const QString& classID = QStringLiteral("A")) {
    return Cell(QStringLiteral("SELECT %1 FROM TournamentEntrants WHERE PlayerID = '%2' AND "
                               "ClassID = '%3'")
                    .arg(column, Player(n), classID))
        .ToNumber();
  }

  void SetAverage(int n, double average) {
    connection_.Execute("UPDATE TournamentEntrants SET RingerPercent = ? WHERE PlayerID = ?",
                        {average, Player(n)});
  }
};

}  // namespace tavrelin
