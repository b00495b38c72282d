#include "play/StandingRows.h"

#include "play/RankingBench.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

class StandingRowsTest : public RankingBench {
 protected:
  /// The fields of the first row, with blanks between.
  static QString Cells(const Recordset& rows, const QStringList& fields) {
    QStringList cells;
    for (const QString& field : fields) cells << rows[field].ToText();
    return cells.join(u' ');
  }
};

TEST_F(StandingRowsTest, AnEntryIsReadAsItIsStoredAndNothingIsWritten) {
  MakeSingles(2);
  connection_.Execute(
      u"UPDATE TournamentEntrants SET RingerPercent = 20, TotalWins = 2.5, TotalLosses = 0.5, "
      "TotalRingers = 30, TotalShoes = 120, TotalPoints = 77, HeadToHead = 3, HiGame = 75, "
      "RankOverride = 2, Seed = 4 WHERE PlayerID = '000001'"_s);
  Store({2, 1, {30, 10}});
  const Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(rows.RecordCount(), 2);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(Cells(rows, {u"PlayerID"_s, u"Won"_s, u"Loss"_s, u"Ringers"_s, u"Shoes"_s, u"Points"_s,
                         u"HeadToHead"_s, u"HiGame"_s, u"Override"_s, u"Seed"_s}),
            u"000001 2.5 0.5 30 120 77 3 75 2 4"_s);
  EXPECT_EQ(rows[u"RingerPercent"_s].ToNumber(), 25);
  EXPECT_EQ(rows[u"OverAverage"_s].ToNumber(), 5);
  EXPECT_EQ(Stored(2, u"TotalWins"_s), 0);
}

TEST_F(StandingRowsTest, WithoutShoesThereIsNoPercentageAndWithoutASeed99) {
  MakeSingles(1);
  SetAverage(1, 40);
  const Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(Cells(rows, {u"RingerPercent"_s, u"OverAverage"_s, u"Seed"_s}), u"0 0 99"_s);
  EXPECT_EQ(Stored(1, u"Seed"_s), 0);
}

TEST_F(StandingRowsTest, APlayerHasHisColumnsOfTheRoster) {
  MakeSingles(1);
  connection_.Execute(
      u"UPDATE Players SET City = 'Ames', CardYear = '2026', Telephone = "
      "'5155550123'"_s);
  const Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(Cells(rows, {u"PlayerName"_s, u"City"_s, u"State"_s, u"Category"_s, u"Card"_s,
                         u"CardYear"_s, u"Telephone"_s}),
            u"P1 Stone Ames IA AM C1 2026 5155550123"_s);
}

TEST_F(StandingRowsTest, ATeamHasThemForEachPartner) {
  MakeDoubles(1);
  connection_.Execute(u"UPDATE Players SET City = 'Ames', Category = 'AW' WHERE PlayerID = ?"_s,
                      {Partner(1, 1)});
  connection_.Execute(
      u"UPDATE TournamentTeamEntrants SET PlayerTwoRingers = 9, PlayerTwoShoes = "
      "40, PlayerTwoHiGame = 22.5"_s);
  const Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(Cells(rows, {u"TeamID"_s, u"Team"_s, u"PlayerOneName"_s, u"PlayerOneID"_s}),
            u"1 Team 1 Ann Of1 10001"_s);
  EXPECT_EQ(Cells(rows, {u"PlayerTwoName"_s, u"PlayerTwoCity"_s, u"PlayerTwoCategory"_s,
                         u"PlayerTwoRingers"_s, u"PlayerTwoShoes"_s, u"PlayerTwoHiGame"_s}),
            u"Bob Of1 Ames AW 9 40 22.5"_s);
  EXPECT_EQ(rows.FieldIndex(u"Override"_s), -1);
}

TEST_F(StandingRowsTest, WhoLeftTheRosterIsNotListedAndATeamKeepsItsRow) {
  MakeSingles(3);
  connection_.Execute(u"DELETE FROM Players WHERE PlayerID = '000001'"_s);
  Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(Column(rows, u"PlayerID"_s), u"000002 000003"_s);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  connection_.Execute(u"DELETE FROM Players"_s);
  EXPECT_EQ(ReadStandingRows(connection_, Rules()).RecordCount(), 0);

  AddClass(u"P"_s, 0, u"D"_s, u"T"_s);
  AddTeams(1);
  EnterTeam(1, 0, 0, u"T"_s);
  connection_.Execute(u"DELETE FROM Players WHERE PlayerID = ?"_s, {Partner(1, 0)});
  const Recordset teams = ReadStandingRows(connection_, Rules(u"T"_s));
  EXPECT_EQ(teams[u"PlayerOneName"_s].ToText(), u"10001 (not on file)"_s);
}

TEST_F(StandingRowsTest, ANameTooLongForItsColumnIsCut) {
  MakeDoubles(1);
  connection_.Execute(u"UPDATE Players SET FirstName = ?, LastName = ? WHERE PlayerID = ?"_s,
                      {QString(20, u'f'), QString(25, u'l'), Partner(1, 0)});
  const Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(rows[u"PlayerOneName"_s].ToText(), QString(20, u'f') + u' ' + QString(24, u'l'));
}

TEST_F(StandingRowsTest, TheLargestFigureIsThatOfAllRowsWhereverTheCursorIs) {
  MakeSingles(3);
  SetAverage(2, 61.5);
  const Recordset rows = ReadStandingRows(connection_, Rules());
  EXPECT_EQ(LargestFigure(rows, u"EntryAvg"_s), 61.5);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
}

}  // namespace
}  // namespace tavrelin
