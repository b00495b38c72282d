#include "play/Pairing.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "data/Connection.h"
#include "play/ClassLoad.h"
#include "play/Game.h"
#include "play/modRoundRobin.h"
#include "play/PlayFormat.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// The columns of one new game row and their values.
struct NewRow {
  QStringList columns;
  QList<Value> values;

  void Set(const QString& column, const Value& value) {
    if (column.isEmpty()) return;
    columns << column;
    values << value;
  }
};

void Insert(Connection& connection, const QString& table, const NewRow& row) {
  const QStringList marks(row.columns.size(), QStringLiteral("?"));
  connection.Execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                         .arg(table, row.columns.join(u','), marks.join(u',')),
                     row.values);
}

/// Turns the cells of a schedule into the stored games of one class.
class Pairing {
 public:
  Pairing(Connection& connection, const LoadedClass& loaded, const PairingChoice& choice,
          Schedule schedule)
      : connection_(connection),
        loaded_(loaded),
        format_(loaded.Format()),
        schedule_(std::move(schedule)),
        left_(loaded.IsOdd() ? loaded.entrants + 1 : 0),
        bye_(left_ != 0 && choice.odd == OddEntrant::Bye) {
    for (const QString& court : choice.courts) courts_ << RightJustifyCourt(court);
  }

  void WriteRound(int round) {
    for (int game = 1; game <= schedule_.Games(); ++game) {
      for (int court = 1; court <= schedule_.Courts(); ++court) {
        const PairingCell& cell = schedule_.At(game, court);
        if (bye_ && Holds(cell, left_)) continue;
        WriteGame(round * schedule_.Games() + game, CourtOf(game, cell), cell);
      }
    }
  }

 private:
  static bool Holds(const PairingCell& cell, int number) {
    return cell.first == number || cell.second == number;
  }

  int ByeCourt(int game) const {
    int court = 1;
    while (!Holds(schedule_.At(game, court), left_)) ++court;
    return court;
  }

  QString CourtOf(int game, const PairingCell& cell) const {
    const QString& court = courts_[cell.court - 1];
    const bool moved = bye_ && court == courts_.last() && court.trimmed().isEmpty();
    return moved ? courts_[ByeCourt(game) - 1] : court;
  }

  void WriteGame(int game, const QString& court, const PairingCell& cell) {
    NewRow row;
    row.Set(QStringLiteral("SanctionID"), loaded_.rules.sanctionID);
    row.Set(QStringLiteral("ClassID"), loaded_.rules.classID);
    row.Set(QStringLiteral("Game"), game);
    row.Set(QStringLiteral("Court"), court);
    row.Set(QStringLiteral("Shoes"), loaded_.rules.shoes);
    row.Set(QStringLiteral("Approved"), false);
    SetSide(row, format_.sides[0], cell.first);
    SetSide(row, format_.sides[1], cell.second);
    Insert(connection_, format_.gameTable, row);
  }

  void SetSide(NewRow& row, const SideColumns& side, int number) const {
    row.Set(side.number, number);
    if (number == left_) {
      SetPacer(row, side);
    } else {
      SetEntrant(row, side, number);
    }
  }

  void SetPacer(NewRow& row, const SideColumns& side) const {
    row.Set(side.id, format_.pacerID);
    if (!side.IsTeam()) return;
    for (qsizetype i = 0; i < side.pitchers.size(); ++i)
      row.Set(side.pitchers[i], format_.pacerPitchers[i]);
  }

  void SetEntrant(NewRow& row, const SideColumns& side, int number) const {
    row.Set(side.id, Listed(number, format_.entrantID));
    for (qsizetype i = 0; i < side.pitchers.size(); ++i) {
      if (side.IsTeam()) row.Set(side.pitchers[i], Listed(number, format_.pitchers[i].id));
      row.Set(side.ringers[i], 0);
    }
    row.Set(side.points, 0);
    row.Set(side.singlePoints, 0);
  }

  /// The list stands in the order of the numbers.
  Value Listed(int number, const QString& field) const {
    return loaded_.list.CellAt(number, loaded_.list.FieldIndex(field));
  }

  Connection& connection_;
  const LoadedClass& loaded_;
  const PlayFormat& format_;
  Schedule schedule_;
  int left_;  ///< the number of the bye or the pacer; 0, which no cell holds, in an even class
  bool bye_;
  QStringList courts_;
};

Refusal CheckPairing(const LoadedClass& loaded, const PairingChoice& choice,
                     const Schedule& schedule) {
  if (loaded.refusal) return loaded.refusal;
  if (loaded.isPaired) return {u"Class has already been paired"_s};
  if (loaded.IsOdd() && choice.odd == OddEntrant::NotChosen) {
    return {u"Select Bye or Pacer"_s, u"Bye"_s};
  }
  if (schedule.IsEmpty()) return {u"Cannot auto create pairings for a class of this size"_s};
  if (choice.courts.size() == schedule.Courts()) return {};
  return {u"The class plays on %1 courts, but %2 were given"_s.arg(schedule.Courts())
              .arg(choice.courts.size()),
          u"Courts"_s};
}

}  // namespace

Refusal CreatePairing(Connection& connection, const ClassRules& rules,
                      const PairingChoice& choice) {
  const LoadedClass loaded = LoadClass(connection, rules);
  const Schedule schedule = ScheduleFor(loaded.entrants);
  if (const Refusal refusal = CheckPairing(loaded, choice, schedule)) return refusal;

  Pairing pairing(connection, loaded, choice, schedule);
  Batch batch(connection);
  try {
    for (int round = 0; round < std::max(choice.rounds, 1); ++round) pairing.WriteRound(round);
  } catch (...) {
    batch.Rollback();
    throw;
  }
  batch.Commit();
  return {};
}

void DeletePairing(Connection& connection, const ClassRules& rules) {
  connection.Execute(QStringLiteral("DELETE FROM %1 WHERE SanctionID = ? AND ClassID = ?")
                         .arg(FormatOf(rules).gameTable),
                     {rules.sanctionID, rules.classID});
}

Refusal CheckByeCourts(const QStringList& courts) {
  for (qsizetype i = 0; i + 1 < courts.size(); ++i) {
    if (courts[i].trimmed().isEmpty()) return {u"Invalid court"_s, u"Courts"_s};
  }
  return {};
}

QString ByeCourtAdvice(const QStringList& courts) {
  // Classes of 5 to 10 play by tables that leave the last court to the bye anyway.
  const bool freedAnyway = courts.size() >= 3 && courts.size() <= 5;
  if (courts.isEmpty() || courts.last().trimmed().isEmpty() || freedAnyway) return {};
  return u"Blank out last court to optimize court use"_s;
}

int RoundsOf(const QString& text) {
  const int rounds = IsInt(text) ? CInt(text) : 0;
  return rounds == 0 ? 1 : rounds;
}

}  // namespace tavrelin
