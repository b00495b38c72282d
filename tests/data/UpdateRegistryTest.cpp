#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/clsDDP.h"
#include "shell/Store.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct UpdateRegistryTest : testing::Test {
  QTemporaryDir folder;
  Store store{folder.filePath("own.ini")};
  Store machine{folder.filePath("machine.ini")};

  UpdateRegistryTest() { qputenv("TAVRELIN_MACHINE_STORE", machine.File().toUtf8()); }
  ~UpdateRegistryTest() override { qunsetenv("TAVRELIN_MACHINE_STORE"); }

  void Move() {
    clsDDP([](const ErrorReport&) { FAIL(); }).UpdateRegistry(store);
  }
  QString Own(const QString& name) { return store.GetRegistryString({}, name, "(none)"); }
};

TEST_F(UpdateRegistryTest, OnACleanMachineOnlyTheDefaultPathIsStored) {
  Move();
  EXPECT_EQ(Own("CurrentDatabase"), "C:\\TavrelinData\\Tavrelin.mdb");
  EXPECT_EQ(Own("ScoreCheck"), "(none)");
  EXPECT_EQ(store.RegistryKeyState({}), 0);
}

TEST_F(UpdateRegistryTest, EveryOldSettingOfTheMachineBecomesTheOperatorsOwn) {
  const QStringList names{"CurrentDatabase",
                          "BriefReport",
                          "CountTeamWins",
                          "ExportMembershipPath",
                          "ExportMembershipSanction",
                          "ExportMembershipState",
                          "ExportNatStatsPath",
                          "ExportProfilePath",
                          "ExportStatsPath",
                          "Forfeit",
                          "GameBasis",
                          "HandicapBasis",
                          "LeaguesPath",
                          "NatStatEmail",
                          "RecentLeague",
                          "RecentTournament",
                          "ReturnAddress",
                          "ScoreCheck",
                          "StandingsSort",
                          "TournamentPath"};
  for (const QString& name : names) machine.SaveRegistryString({}, name, "  old " + name + "  ");
  machine.SaveRegistryString({}, "Stranger", "x");
  Move();
  for (const QString& name : names) EXPECT_EQ(Own(name), "old " + name);
  EXPECT_EQ(Own("Stranger"), "(none)");
  EXPECT_EQ(machine.GetRegistryString({}, "ScoreCheck"), "old ScoreCheck");
}

TEST_F(UpdateRegistryTest, ABlankSettingOfTheMachineIsNotMoved) {
  machine.SaveRegistryString({}, "RecentLeague", "   ");
  machine.SaveRegistryString({}, "CurrentDatabase", "   ");
  Move();
  EXPECT_EQ(Own("RecentLeague"), "(none)");
  EXPECT_EQ(Own("CurrentDatabase"), "C:\\TavrelinData\\Tavrelin.mdb");
}

}  // namespace
}  // namespace tavrelin
