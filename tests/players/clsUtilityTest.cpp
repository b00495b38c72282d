#include "players/clsUtility.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include "controls/GridBench.h"
#include "players/Vocabulary.h"
#include "support/RecordsetPrinters.h"

namespace tavrelin {
namespace {

TEST(clsUtility, AComboIsFilledAnewWithCodesThatAreTheirOwnTexts) {
  QComboBox combo;
  combo.addItem("old");
  clsUtility::LoadStateCombo(combo);
  ASSERT_EQ(combo.count(), 64);
  for (int i = 0; i < combo.count(); ++i) EXPECT_EQ(combo.itemData(i), combo.itemText(i));
  EXPECT_EQ(combo.itemText(0), "AB");
  EXPECT_EQ(combo.itemText(63), "US");
  EXPECT_EQ(combo.findText("NA"), -1);
  EXPECT_EQ(combo.findText("ZA"), -1);
}

TEST(clsUtility, AGridOffersAllCodesInTheirOrder) {
  GridBench bench;
  clsUtility::LoadStateValueList(*bench.grid, "CardNumber");
  QStringList codes, texts;
  for (const ValueItem& item : bench.grid->Columns()[4].values.Items()) {
    codes << item.code.ToText();
    texts << item.text;
  }
  EXPECT_EQ(codes.join(' '),
            "AB AK AL AR AZ BC CA CO CT DC DE FL GA HI IA ID IL IN JP KS KY LA MA MB MD ME MI MN "
            "MO MS MT NA NB NC ND NE NH NJ NM NO NS NV NY OH OK ON OR PA PI PQ RI SC SD SK TN TX "
            "UT VA VT WA WI WV WY YK ZA US");
  EXPECT_EQ(texts, codes);
}

TEST(clsUtility, WordsAreOfferedInTheOrderOfTheirList) {
  const QList<ValueItem> divisions = ValueList(Divisions()).Items();
  ASSERT_EQ(divisions.size(), 12);
  EXPECT_EQ(divisions.first().code, Value("AM"));
  EXPECT_EQ(divisions.first().text, "Men");
  EXPECT_EQ(divisions.last().text, "Exempt");
}

}  // namespace
}  // namespace tavrelin
