#include "controls/Choices.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

TEST(Choices, ABoxShowsTheTextsAndGivesTheCodes) {
  QComboBox box;
  box.addItem("from before");
  Offer(box, {{"A", "A  Men"}, {"B", "B"}});
  ASSERT_EQ(box.count(), 2);
  EXPECT_EQ(box.itemText(0), "A  Men");
  EXPECT_EQ(ChosenCode(box), "A");
  box.setCurrentIndex(1);
  EXPECT_EQ(ChosenCode(box), "B");
  Offer(box, {});
  EXPECT_EQ(ChosenCode(box), "");
}

}  // namespace
}  // namespace tavrelin
