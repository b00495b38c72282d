#pragma once

#include "play/ClassResults.h"

namespace tavrelin {

/// A game of a box score: opponent, points of both, ringers by pitcher, shoes.
inline BoxLine GameLine(const QString& opponent, int points, int opposing, QList<int> ringers,
                        int shoes, const QString& mark = {}) {
  BoxLine line;
  line.opponent = opponent;
  line.forfeitMark = mark;
  line.opposingPoints = opposing;
  line.own = {points, shoes, ringers, {}};
  for (const int made : ringers) line.own.percents << (shoes > 0 ? made * 100.0 / shoes : 0);
  return line;
}

/// A box score whose totals are the sums of its lines.
inline BoxScore Block(int place, const QString& name, const QList<BoxLine>& lines,
                      const QStringList& pitchers = {QString()}) {
  BoxScore block;
  block.place = place;
  block.name = name;
  block.pitchers = pitchers;
  block.lines = lines;
  block.totals.ringers.resize(pitchers.size());
  for (const BoxLine& line : lines) {
    block.totals.points += line.own.points;
    block.totals.shoes += line.own.shoes;
    for (qsizetype i = 0; i < pitchers.size(); ++i) block.totals.ringers[i] += line.own.ringers[i];
    (line.own.points >= line.opposingPoints ? block.won : block.loss) += 1;
  }
  for (const int made : block.totals.ringers) {
    block.totals.percents << (block.totals.shoes > 0 ? made * 100.0 / block.totals.shoes : 0);
  }
  block.played = block.totals;
  return block;
}

/// A singles class in which everybody has played so many games; player n is "First<n> Last<n>" and
/// in game g he made g + n points.
inline ClassResults SampleSingles(int entrants, int games) {
  ClassResults results;
  results.tournament = QStringLiteral("Spring Open");
  results.sanctionID = QStringLiteral("2601007");
  results.date = QDate(2026, 5, 9).startOfDay();
  results.className = QStringLiteral("Class A");
  results.rankBasis = QStringLiteral("(Rank: W/L - Pts - H2H - OvrAvg)");
  for (int n = 1; n <= entrants; ++n) {
    QList<BoxLine> lines;
    for (int g = 1; g <= games; ++g) {
      lines << GameLine(QStringLiteral("Other%1 Player%1").arg(g), 20 + (g + n) % 20, 20, {g % 30},
                        40);
    }
    const QString name = QStringLiteral("First%1 Last%1").arg(n);
    results.boxScores << Block(n, name, lines);
    const BoxScore& block = results.boxScores.last();
    StandingLine line;
    line.place = n;
    line.name = name;
    line.entryAverage = 70 - n;
    line.handicap = n;
    line.category = QStringLiteral("MN");
    line.card = QStringLiteral("10%1").arg(n, 3, 10, QLatin1Char('0'));
    line.state = QStringLiteral("NY");
    line.won = block.won;
    line.loss = block.loss;
    line.points = block.totals.points;
    line.ringers = block.totals.ringers[0];
    line.shoes = block.totals.shoes;
    line.percent = block.totals.percents[0];
    line.overAverage = line.percent - line.entryAverage;
    results.standings << line;
  }
  return results;
}

/// A doubles class of the same kind; team n has the players "Ada<n> First" and "Bob<n> Second".
inline ClassResults SampleDoubles(int teams, int games) {
  ClassResults results = SampleSingles(teams, games);
  results.doubles = true;
  for (int n = 1; n <= teams; ++n) {
    QList<BoxLine> lines;
    for (int g = 1; g <= games; ++g) {
      lines << GameLine(QStringLiteral("Team%1").arg(g), 21, 15, {10, 20}, 40);
    }
    const QString team = QStringLiteral("Stakes%1").arg(n);
    results.boxScores[n - 1] =
        Block(n, team, lines,
              {QStringLiteral("Ada%1 First").arg(n), QStringLiteral("Bob%1 Second").arg(n)});
    results.standings[n - 1].name = team;
  }
  return results;
}

/// Which sections are told.
inline constexpr ResultsChoice StandingsAlone = {true, false, false};
inline constexpr ResultsChoice BriefStandings = {true, false, true};
inline constexpr ResultsChoice BoxScoresAlone = {false, true, false};

/// A line of the standings with half wins and a figure below the average.
inline StandingLine SampleLine() {
  StandingLine line;
  line.place = 1;
  line.name = QStringLiteral("Ann Baker");
  line.entryAverage = 65.43;
  line.handicap = 7;
  line.category = QStringLiteral("MW");
  line.card = QStringLiteral("NY1234");
  line.state = QStringLiteral("NY");
  line.won = 3;
  line.loss = 3.5;
  line.points = 123;
  line.ringers = 45;
  line.headToHead = 2;
  line.overAverage = -1.25;
  line.shoes = 160;
  line.percent = 28.125;
  return line;
}

}  // namespace tavrelin
