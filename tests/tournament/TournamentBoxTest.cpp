#include "tournament/TournamentBox.h"

#include <gtest/gtest.h>

#include "support/QtPrinters.h"
#include "tournament/Tournaments.h"

namespace tavrelin {
namespace {

TEST(TournamentBox, GivesTheNumberOfTheTournamentThatItsTextNamesElseTheOneTyped) {
  TournamentBox box(nullptr);
  box.Offer({{"MN25A01", "Spring Open", {}}, {"WI2025B02", "Fall Open", {}}}, "");
  const struct {
    QString text, number;
  } cases[] = {
      {box.itemText(0), "MN25A01"},
      {box.itemText(1),
       "WI2025B02"},  // longer than the program gives: its text cannot be read back
      {"mn-25-a01   spring open", "MN25A01"},
      {"IA-25-C03   Gone", "IA25C03"},
      {"ia25c03", "ia25c03"},
      {"", ""},
  };
  for (const auto& c : cases) {
    box.setEditText(c.text);
    EXPECT_EQ(box.SanctionID(), c.number) << c.text.toStdString();
  }
}

}  // namespace
}  // namespace tavrelin
