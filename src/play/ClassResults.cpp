#include "play/ClassResults.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "basic/Figures.h"
#include "data/Connection.h"
#include "play/PlayFormat.h"
#include "play/Ranking.h"
#include "play/StandingRows.h"
#include "tournament/Tournaments.h"

namespace tavrelin {
namespace {

/// Reads rows by position, so that whoever shows the recordset keeps its cursor.
class RowReader {
 public:
  RowReader(const Recordset& rows, int position) : rows_(rows), position_(position) {}

  Value operator()(const QString& field) const {
    const int index = rows_.FieldIndex(field);
    return index < 0 ? Value() : rows_.CellAt(position_, index);
  }
  QString Text(const char* field) const { return (*this)(QLatin1String(field)).Trimmed(); }
  double Number(const char* field) const { return (*this)(QLatin1String(field)).ToNumber(); }
  int Whole(const char* field) const {
    return static_cast<int>((*this)(QLatin1String(field)).ToWhole());
  }

 private:
  const Recordset& rows_;
  int position_;
};

StandingLine LineAt(const RowReader& row, const PlayFormat& format) {
  StandingLine line;
  line.name = row(format.standingsName).Trimmed();
  line.entryAverage = row.Number("EntryAvg");
  line.category = row.Text("Category");
  line.card = row.Text("Card");
  line.state = row.Text("State");
  line.won = row.Number("Won");
  line.loss = row.Number("Loss");
  line.points = row.Whole("Points");
  line.ringers = row.Whole("Ringers");
  line.shoes = row.Whole("Shoes");
  line.percent = RingerPercentage(line.ringers, line.shoes);
  line.headToHead = row.Whole("HeadToHead");
  line.overAverage = row.Number("OverAverage");
  return line;
}

}  // namespace

QList<StandingLine> StandingLines(const Standings& standings) {
  const ClassRules& rules = standings.rules;
  const PlayFormat& format = FormatOf(rules);
  const double best = LargestFigure(standings.rows, QStringLiteral("EntryAvg"));
  QList<StandingLine> lines;
  for (int position = 1; position <= standings.rows.RecordCount(); ++position) {
    StandingLine line = LineAt(RowReader(standings.rows, position), format);
    line.place = position;
    line.handicap =
        HandicapFigure(best, line.entryAverage, rules.shoes, rules.handicapPct, format.Pitchers());
    lines << line;
  }
  return lines;
}

ClassResults ReadResults(Connection& connection, Standings& standings) {
  ClassResults results;
  results.sanctionID = standings.rules.sanctionID;
  results.className = standings.rules.name;
  results.rankBasis = standings.rankBasis;
  results.doubles = FormatOf(standings.rules).IsDoubles();
  if (const auto tournament = FindTournament(connection, results.sanctionID)) {
    results.tournament = tournament->name;
    results.date = tournament->date;
  }
  results.standings = StandingLines(standings);
  results.boxScores = BoxScores(connection, standings);
  return results;
}

int CopiesOf(const QString& text) {
  return IsNumeric(text) ? std::max(CLng(text), 1) : 1;
}

}  // namespace tavrelin
