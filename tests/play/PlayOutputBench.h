#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>

#include "controls/GridEX.h"
#include "play/ClassBench.h"
#include "play/Pairing.h"
#include "play/PlayFormat.h"
#include "play/uctPlayTime.h"
#include "play/uctPlayTimeTeams.h"
#include "support/ScreenBench.h"

namespace tavrelin {

/// A play screen with a class "A" of entrants of equal average, from which cards, sheets and text
/// files are made. Every game that is played goes 30 to 20 for side one.
template <class ScreenClass>
class PlayOutputBench : public ClassBench {
 protected:
  static constexpr bool Doubles = std::is_same_v<ScreenClass, uctPlayTimeTeams>;
  ScreenBench bench;

  void Show() {
    ConnectString = ConnectStringFor(path_);
    bench.store().SaveRegistryString({}, "RecentTournament", "26-01-007   Spring Open");
    bench.store().SaveRegistryString({}, "TournamentPath", folder_.path() + "/");
    bench.Show<ScreenClass>();
  }
  void ShowResults() {
    Show();
    bench.Click("cmdLoad");
    OpenResults();
  }
  void OpenResults() {
    Tabs().setCurrentIndex(1);
    bench.ProcessEvents();
  }
  void MakePaired(int entrants, OddEntrant odd = OddEntrant::Pacer) {
    Doubles ? MakeDoubles(entrants) : MakeSingles(entrants);
    if (entrants % 2 == 0) odd = OddEntrant::NotChosen;
    const QStringList courts = LoadClass(connection_, Rules()).courts;
    ASSERT_EQ(CreatePairing(connection_, Rules(), {courts, 1, odd}).sentence, QString());
  }
  void Play(const QString& where = "1 = 1") {
    const PlayFormat& format = Doubles ? DoublesFormat() : SinglesFormat();
    const auto& [one, two] = format.sides;
    connection_.Execute(
        QString("UPDATE %1 SET Approved = True, Shoes = 40, %2 = 30, %3 = 20, %4 = 16, %5 = 12 "
                "WHERE %6")
            .arg(format.gameTable, one.points, two.points, one.ringers[0], two.ringers[0], where));
  }
  void Set(int setting, const QString& value) {
    connection_.Execute("UPDATE SystemSettings SET SettingValue = ? WHERE SettingID = ?",
                        {value, setting});
  }

  void Check(const QString& name) {
    if (!bench.Find<QCheckBox>(name).isChecked()) bench.Click(name);
  }
  bool IsChecked(const QString& name) { return bench.Find<QAbstractButton>(name).isChecked(); }
  bool IsEnabled(const QString& name) { return bench.Find(name).isEnabled(); }
  bool IsVisible(const QString& name) { return bench.Find(name).isVisible(); }
  QString Text(const QString& name) { return bench.Find<QLineEdit>(name).text(); }
  QTabWidget& Tabs() { return bench.Find<QTabWidget>("SSTab1"); }
  GridEX& Scores() { return bench.Find<GridEX>("GridEX1"); }
  const Document& Printed() { return bench.printer.printed.last().document; }
  qsizetype Pages() { return Printed().pages.size(); }
  QStringList PrintedTexts() { return TextsOf(Printed()); }
  qsizetype Times(const QString& text) { return PrintedTexts().count(text); }
  void ExpectRefusal(const QString& message) {
    EXPECT_EQ(bench.Message(), message);
    EXPECT_TRUE(bench.Refused());
    EXPECT_EQ(bench.person.beeps, 1);
    EXPECT_TRUE(bench.printer.printed.isEmpty());
    EXPECT_TRUE(bench.printer.previewed.isEmpty());
  }
};

}  // namespace tavrelin
