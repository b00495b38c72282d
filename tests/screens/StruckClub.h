#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <QFile>

#include "controls/GridEX.h"
#include "data/Connection.h"
#include "support/FaultBench.h"
#include "support/ScreenBench.h"

namespace tavrelin {

/// What the struck process does: this program again, one of these tests alone, on a club's file
/// that is there already. Every row is tried twice at most.
struct StruckChild : testing::Test {
  static constexpr const char* FileName = "TAVRELIN_FAULT_FILE";
  ScreenBench bench{qEnvironmentVariable(FileName)};

  GridEX& Grid(const char* name) { return bench.Find<GridEX>(name); }
  void Enter(const char* grid) {
    bench.Focus(grid);
    Grid(grid).SetRow(1);
    bench.Press(Qt::Key_Return);
  }
  // True, and the error taken, when the file would not have the row.
  bool Refused() {
    if (bench.errors.Count() == 0) return false;
    EXPECT_NE(bench.errors.Take().description, "");
    std::puts("refused");
    return true;
  }
};

/// A club's file of which each struck process gets a fresh copy. Players: Karen Olson, and the two
/// of a singles class with one game; a team without players.
struct StruckClub {
  ScreenBench clubs;
  const QString copy = clubs.PathOf("copy.mdb");
  FaultBench fault;

  StruckClub() {
    Connection club;
    club.Open(ConnectString);
    club.Execute(
        "INSERT INTO Players (PlayerID, LastName, FirstName, Category) "
        "VALUES ('OLSKAR', 'Olson', 'Karen', 'AW')");
    club.Execute("INSERT INTO Teams (Team) VALUES ('Ringers')");
    AddClass(club);
    fault.SetVariable(StruckChild::FileName, copy);
    fault.SetVariable("ASAN_OPTIONS", "detect_leaks=0");  // it cannot look under strace
  }
  /// A singles class of two with one game.
  static void AddClass(Connection& club) {
    club.Execute(
        "INSERT INTO Tournaments (SanctionID, Name, Date) VALUES ('MN25C03', NULL, #6/20/2025#)");
    club.Execute(
        "INSERT INTO TournamentClasses (SanctionID, ClassID, PlayFormat, RankMethod) "
        "VALUES ('MN25C03', 'A', 'S', 'P')");
    for (const char* id : {"YOUWIL", "ZIMWAL"}) {
      club.Execute(
          "INSERT INTO Players (PlayerID, LastName, FirstName, Category) VALUES (?, ?, 'W', "
          "'AM')",
          {id, id});
      club.Execute(
          "INSERT INTO TournamentEntrants (SanctionID, PlayerID, ClassID) "
          "VALUES ('MN25C03', ?, 'A')",
          {id});
    }
    club.Execute(
        "INSERT INTO TournamentSinglesRR (SanctionID, ClassID, Game, Court, PlayerOneID, "
        "PlayerTwoID) VALUES ('MN25C03', 'A', 1, '  1', 'YOUWIL', 'ZIMWAL')");
  }
  void FreshCopy() const {
    QFile::remove(copy);
    QFile::remove(copy + "-journal");
    ASSERT_TRUE(QFile::copy(clubs.ClubFile(), copy));
  }
};

}  // namespace tavrelin
