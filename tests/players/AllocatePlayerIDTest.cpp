#include "players/AllocatePlayerID.h"

#include <gtest/gtest.h>

#include "players/Roster.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(AllocatePlayerID, LettersOfNames) {
  struct {
    QString last, first, letters;
  } const cases[] = {
      {"Smith", "John", "SMIJOH"},
      {"LI", "BO", "LIBO00"},
      {"O'Brien", "Al", "OBRAL0"},
      {"O\"Brien", "'Al'", "OBRAL0"},
      {"  Smith ", " John ", "SMIJOH"},
      {"X", "Y", "XY0000"},
      {"Möller", "Åse", "MÖLÅSE"},
      {"Παπάς", "Ηλίας", "ΠΑΠΗΛΊ"},
      {"%'); DROP TABLE Players", "Bob", "%);BOB"},
      {"De La Cruz", "Jo", "DE JO0"},
      {"😀😀", "😎", "😀😎00"},
      {"ßß", "ßß", "SSSSSS"},
  };
  for (const auto& c : cases) EXPECT_EQ(PlayerIDLetters(c.last, c.first), c.letters);
}

TEST(AllocatePlayerID, AnEmptyRosterTakesTheLettersAsTheyAre) {
  Recordset players = RosterInMemory();
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "John"), "SMIJOH");
}

TEST(AllocatePlayerID, TheSecondJohnSmithIsSMIJ01) {
  Recordset players = RosterInMemory();
  AddToRoster(players, "SMIJOH");
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "John"), "SMIJ01");
  AddToRoster(players, "smij01");
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "John"), "SMIJ02");
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "Jack"), "SMIJAC");
}

TEST(AllocatePlayerID, ANumberInBetweenThatWasFreedIsGivenAgain) {
  Recordset players = RosterInMemory();
  for (const char* taken : {"SMIJOH", "SMIJ01", "SMIJ03"}) AddToRoster(players, taken);
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "John"), "SMIJ02");
}

TEST(AllocatePlayerID, AHundredthPlayerOfTheSameLettersGetsSevenCharacters) {
  Recordset players = RosterInMemory();
  for (int player = 0; player < 99; ++player) {
    AddToRoster(players, AllocatePlayerID(players, "Smith", "John"));
  }
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "John"), "SMIJ99");
  AddToRoster(players, "SMIJ99");
  EXPECT_EQ(AllocatePlayerID(players, "Smith", "John"), "SMIJ100");
}

}  // namespace
}  // namespace tavrelin
