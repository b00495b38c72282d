#include "play/Ranking.h"

#include "data/Connection.h"
#include "play/Figures.h"
#include "play/PlayFormat.h"
#include "play/Totals.h"

namespace tavrelin {
namespace {

/// A place in the order by wins, with the figure on which the rank method first compares.
struct Level {
  QString id;
  float wins;
  double figure;
};

Recordset OpenStandings(Connection& connection, const ClassRules& rules, bool forReport) {
  const PlayFormat& format = FormatOf(rules);
  Recordset rows;
  rows.Open(forReport ? format.reportStatement : format.standingsStatement, connection,
            Recordset::Lock::ReadOnly, {rules.sanctionID, rules.classID});
  rows.Disconnect();
  return rows;
}

/// Walks all rows and stores what `edit` sets in each.
template <typename Edit>
void EachRow(Recordset& rows, Edit edit) {
  for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) {
    edit();
    if (rows.IsEditing()) rows.Update();
  }
}

void ComputePercentages(Recordset& rows) {
  EachRow(rows, [&] {
    const double shoes = rows[QStringLiteral("Shoes")].ToNumber();
    const double percent = RingerPercentage(rows[QStringLiteral("Ringers")].ToNumber(), shoes);
    const double entry = rows[QStringLiteral("EntryAvg")].ToNumber();
    rows.Set(QStringLiteral("RingerPercent"), percent);
    rows.Set(QStringLiteral("OverAverage"), shoes > 0 ? percent - entry : 0.0);
  });
}

/// Who was taken off the roster is in no list.
void DropStrangers(Recordset& rows, const QString& idField, const ByID<PersonName>& roster) {
  for (rows.MoveFirst(); !rows.AtEnd();) {
    if (roster.contains(rows[idField].ToText())) {
      rows.MoveNext();
    } else {
      rows.Delete();
    }
  }
}

void FillNames(Connection& connection, const PlayFormat& format, Recordset& rows) {
  QStringList ids, columns;
  for (const auto& [field, column] : format.rosterFields) columns << column;
  EachRow(rows, [&] {
    for (const PitcherColumns& pitcher : format.pitchers) ids << rows[pitcher.id].ToText();
  });
  const ByID<PersonName> names = PlayerNames(connection, ids, columns);
  if (!columns.isEmpty()) DropStrangers(rows, format.entrantID, names);
  EachRow(rows, [&] {
    for (const PitcherColumns& pitcher : format.pitchers) {
      const PersonName name = NameOrNumber(names, rows[pitcher.id].ToText());
      const int width = rows.Fields()[rows.FieldIndex(pitcher.fullName)].size;
      rows.Set(pitcher.fullName, name.Full().left(width));
      for (const auto& [field, column] : format.rosterFields) rows.Set(field, name.values[column]);
    }
  });
}

/// On which figure players must be equal, besides their wins, to count as tied. Method R ties on
/// ringers, not on the percentage; method O on the over-average of single precision; H on the wins.
double TieFigure(const Recordset& rows, const QString& method) {
  if (method == u"H") return 0;
  if (method == u"R") return rows[QStringLiteral("Ringers")].ToNumber();
  if (method == u"O") {
    return double{static_cast<float>(rows[QStringLiteral("OverAverage")].ToNumber())};
  }
  return rows[QStringLiteral("Points")].ToNumber();
}

QPair<QString, QString> PairOf(const QString& winner, const QString& loser) {
  return {IDKey(winner), IDKey(loser)};
}

/// Games won, by winner and loser: on the points as they stand, approved or not, whatever forfeits.
QHash<QPair<QString, QString>, int> Wins(const QList<Game>& games) {
  QHash<QPair<QString, QString>, int> wins;
  for (const Game& game : games) {
    const auto& [one, two] = game.sides;
    if (one.points == two.points) continue;
    const bool first = one.points > two.points;
    ++wins[first ? PairOf(one.id, two.id) : PairOf(two.id, one.id)];
  }
  return wins;
}

/// The games won against the players one is tied with. Who has no win is in no tie.
ByID<int> HeadToHead(const QList<Level>& levels, const QList<Game>& games) {
  const QHash<QPair<QString, QString>, int> wins = Wins(games);
  ByID<int> counts;
  for (const Level& me : levels) {
    if (me.wins == 0) continue;
    for (const Level& other : levels) {
      const bool tied = me.wins == other.wins && me.figure == other.figure;
      if (tied && me.id != other.id) counts[me.id] += wins.value(PairOf(me.id, other.id));
    }
  }
  return counts;
}

/// The stored figure is the player's in the whole tournament: the class is not asked for, so that
/// the class ranked last leaves its figure in all his entries.
void WriteHeadToHead(Connection& connection, Standings& standings) {
  const ClassRules& rules = standings.rules;
  const PlayFormat& format = FormatOf(rules);
  Recordset& rows = standings.rows;
  QList<Level> levels;
  EachRow(rows, [&] {
    levels.append({rows[format.entrantID].Trimmed(),
                   static_cast<float>(rows[QStringLiteral("Won")].ToNumber()),
                   TieFigure(rows, rules.rankMethod)});
  });
  const ByID<int> counts = HeadToHead(levels, standings.games);
  const QString update =
      QStringLiteral("UPDATE %1 SET HeadToHead = ? WHERE %2 = ? AND SanctionID = ?")
          .arg(format.entrantTable, format.entrantID);
  EachRow(rows, [&] {
    const int count = counts.value(rows[format.entrantID].Trimmed());
    rows.Set(QStringLiteral("HeadToHead"), count);
    connection.Execute(update, {count, rows[format.entrantID], rules.sanctionID});
  });
}

/// Unseeded entrants print as 99.
void FillSeeds(Recordset& rows) {
  EachRow(rows, [&] {
    if (rows[QStringLiteral("Seed")].ToWhole() == 0) rows.Set(QStringLiteral("Seed"), 99);
  });
}

void PutInOrder(Standings& standings, bool honourOverride) {
  const RankOrder order = OrderOf(standings.rules, honourOverride);
  standings.rankBasis = order.basis;
  standings.rows.SetSort(order.sort);
  NumberPlaces(standings.rows, standings.rules.rankOverride);
}

struct MethodOrder {
  bool handicap;
  const char* method;  ///< "" is any other
  const char* sort;
  const char* basis;
};

constexpr MethodOrder Orders[] = {
    {false, "H", "Won DESC, Loss ASC, HeadToHead DESC, RingerPercent DESC, Points DESC",
     "(Rank: W/L - H2H - Rgr% - Pts)"},
    {false, "O", "Won DESC, Loss ASC, OverAverage DESC, RingerPercent DESC, Points DESC",
     "(Rank: W/L - OvrAvg - Rgr% - Pts)"},
    {false, "", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, RingerPercent DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
    {true, "R", "Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Rgr% - H2H - OvrAvg)"},
    {true, "H", "Won DESC, Loss ASC, HeadToHead DESC, OverAverage DESC, Points DESC",
     "(Rank: W/L - H2H - OvrAvg - Pts)"},
    {true, "O", "Won DESC, Loss ASC, OverAverage DESC, HeadToHead DESC, Points DESC",
     "(Rank: W/L - OvrAvg - H2H - Pts)"},
    {true, "", "Won DESC, Loss ASC, Points DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Pts - H2H - OvrAvg)"},
};

}  // namespace

RankOrder OrderOf(const ClassRules& rules, bool honourOverride) {
  const PlayFormat& format = FormatOf(rules);
  if (honourOverride && rules.rankOverride && format.hasOverride) {
    return {QStringLiteral("Override ASC"), QStringLiteral("(Rank - Override)")};
  }
  const bool handicap = rules.handicapPct != 0;
  if (!handicap && rules.rankMethod == u"R") return format.ringerOrder;
  for (const MethodOrder& order : Orders) {
    const QString method = QString::fromLatin1(order.method);
    if (order.handicap == handicap && (method.isEmpty() || method == rules.rankMethod)) {
      return {QString::fromLatin1(order.sort), QString::fromLatin1(order.basis)};
    }
  }
  Q_UNREACHABLE();
}

Standings RankTheClass(Connection& connection, const ClassRules& rules,
                       const RankOptions& options) {
  Standings standings;
  standings.rules = rules;
  Batch batch(connection);
  standings.games = ReadClassGames(connection, rules);
  WriteTotals(connection, rules, standings.games);
  standings.rows = OpenStandings(connection, rules, options.forReport);
  if (standings.rows.RecordCount() > 0) FillNames(connection, FormatOf(rules), standings.rows);
  if (standings.rows.RecordCount() == 0) {
    if (!options.forReport) standings.refusal = QStringLiteral("Nothing to report");
  } else {
    ComputePercentages(standings.rows);
    WriteHeadToHead(connection, standings);
    FillSeeds(standings.rows);
    if (!options.forReport) PutInOrder(standings, options.honourOverride);
    standings.rows.MoveFirst();
  }
  batch.Commit();
  return standings;
}

void NumberPlaces(Recordset& rows, bool rankOverride) {
  if (rows.RecordCount() == 0) return;
  const bool placed = rows.FieldIndex(QStringLiteral("Rank")) >= 0;
  int place = 0;
  EachRow(rows, [&] {
    ++place;
    if (placed) rows.Set(QStringLiteral("Rank"), place);
    if (placed && !rankOverride) rows.Set(QStringLiteral("Override"), place);
  });
  rows.MoveFirst();
}

}  // namespace tavrelin
