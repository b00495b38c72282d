#include "play/ClassResults.h"

#include <gtest/gtest.h>

#include "play/Ranking.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct Entrant {
  double average;
  double won;
  int ringers;
  int shoes;
};

Standings Ranked(const QList<Entrant>& entrants, double handicapPct, int shoes,
                 const QString& format = QStringLiteral("S")) {
  Standings standings;
  standings.rules.handicapPct = handicapPct;
  standings.rules.shoes = shoes;
  standings.rules.playFormat = format;
  Recordset& rows = standings.rows;
  rows.Append(QStringLiteral("PlayerName"), FieldType::Text, 45);
  rows.Append(QStringLiteral("Team"), FieldType::Text, 45);
  for (const char* field : {"EntryAvg", "Won", "Loss", "OverAverage"}) {
    rows.Append(QLatin1String(field), FieldType::Double);
  }
  for (const char* field : {"Points", "Ringers", "Shoes", "HeadToHead"}) {
    rows.Append(QLatin1String(field), FieldType::Long);
  }
  rows.OpenInMemory();
  for (const Entrant& entrant : entrants) {
    rows.AddNew();
    rows.Set(QStringLiteral("PlayerName"), QStringLiteral("Ann Baker"));
    rows.Set(QStringLiteral("Team"), QStringLiteral("Stakes"));
    rows.Set(QStringLiteral("EntryAvg"), entrant.average);
    rows.Set(QStringLiteral("Won"), entrant.won);
    rows.Set(QStringLiteral("Ringers"), entrant.ringers);
    rows.Set(QStringLiteral("Shoes"), entrant.shoes);
    rows.Update();
  }
  rows.MoveFirst();
  return standings;
}

TEST(ClassResults, HandicapIsReckonedFromTheLargestEntryAverage) {
  // (70 - 60) * 40 * 0.0003 * 80 = 9.6; doubles twice that.
  const QList<Entrant> entrants = {{60, 1, 10, 40}, {70, 0, 20, 40}};
  EXPECT_EQ(StandingLines(Ranked(entrants, 80, 40))[0].handicap, 10);
  EXPECT_EQ(StandingLines(Ranked(entrants, 80, 40))[1].handicap, 0);
  EXPECT_EQ(StandingLines(Ranked(entrants, 80, 40, "D"))[0].handicap, 19);
  EXPECT_EQ(StandingLines(Ranked(entrants, 0, 40))[0].handicap, 0);
}

TEST(ClassResults, AClassWithShoesOfZeroHasNoHandicapAndNoPercentages) {
  const QList<StandingLine> lines = StandingLines(Ranked({{60, 1, 0, 0}, {70, 0, 3, 0}}, 80, 0));
  for (const StandingLine& line : lines) {
    EXPECT_EQ(line.handicap, 0);
    EXPECT_EQ(line.percent, 0);
  }
}

TEST(ClassResults, PlacesCountFromOneAndTheCursorStays) {
  Standings standings = Ranked({{60, 1.5, 10, 40}, {70, 0, 20, 40}, {50, 0, 1, 40}}, 0, 40);
  standings.rows.MoveNext();
  const QList<StandingLine> lines = StandingLines(standings);
  ASSERT_EQ(lines.size(), 3);
  EXPECT_EQ(lines[2].place, 3);
  EXPECT_EQ(lines[0].won, 1.5);
  EXPECT_EQ(lines[0].percent, 25);
  EXPECT_EQ(standings.rows.AbsolutePosition(), 2);
}

TEST(ClassResults, ATeamGoesByItsTeamName) {
  EXPECT_EQ(StandingLines(Ranked({{60, 1, 10, 40}}, 0, 40, "D"))[0].name, "Stakes");
}

TEST(ClassResults, NoEntrantsAreNoLines) {
  EXPECT_TRUE(StandingLines(Ranked({}, 0, 40)).isEmpty());
}

}  // namespace
}  // namespace tavrelin
