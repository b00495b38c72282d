#include "play/CardSettings.h"

#include <gtest/gtest.h>

#include "data/Recordset.h"
#include "data/SystemSettings.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

Recordset Settings(const QList<QPair<int, QString>>& rows) {
  Recordset settings;
  settings.Append("SettingID", FieldType::Short);
  settings.Append("SettingValue", FieldType::Text, 20);
  settings.OpenInMemory();
  for (const auto& [id, value] : rows) {
    settings.AddNew();
    settings.Set("SettingID", id);
    settings.Set("SettingValue", value);
    settings.Update();
  }
  return settings;
}

CardSettings Singles(int id, const QString& value) {
  return ReadCardSettings(Settings({{id, value}}), SinglesFormat());
}

CardSettings Doubles(int id, const QString& value) {
  return ReadCardSettings(Settings({{id, value}}), DoublesFormat());
}

TEST(CardSettings, SettingThreeIsAStyleInSinglesAndAYesOrNoInDoubles) {
  const struct {
    const char* value;
    CardStyle singles, doubles;
  } cases[] = {
      {"yes", CardStyle::Folded, CardStyle::Folded}, {" Y ", CardStyle::Folded, CardStyle::Folded},
      {"2", CardStyle::Folded, CardStyle::Card},     {"3", CardStyle::TwoUp, CardStyle::Card},
      {"1", CardStyle::Card, CardStyle::Card},       {"N", CardStyle::Card, CardStyle::Card},
      {"", CardStyle::Card, CardStyle::Card},        {"23", CardStyle::Card, CardStyle::Card},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Singles(3, c.value).style, c.singles) << c.value;
    EXPECT_EQ(Doubles(3, c.value).style, c.doubles) << c.value;
  }
}

TEST(CardSettings, AdjustmentsCountWhenTheyAreNumbers) {
  const struct {
    const char* value;
    int twips;
  } cases[] = {{"150", 150}, {" -75 ", -75},        {"x", 0}, {"", 0}, {"12x", 0},
               {"2.5", 2},   {"99999999999", 20000}};
  for (const auto& c : cases) {
    EXPECT_EQ(Singles(1, c.value).down, c.twips) << c.value;
    EXPECT_EQ(Singles(2, c.value).right, c.twips) << c.value;
    EXPECT_EQ(Singles(1, c.value).right, 0);
  }
}

TEST(CardSettings, TheSheetStylesStandFartherDownAndToTheRight) {
  CardSettings settings = ReadCardSettings(Settings({{1, "-50"}, {2, "20"}}), SinglesFormat());
  EXPECT_EQ(settings.DownShift(), -50);
  EXPECT_EQ(settings.RightShift(), 20);
  for (const CardStyle style : {CardStyle::Folded, CardStyle::TwoUp}) {
    settings.style = style;
    EXPECT_EQ(settings.DownShift(), 3150);
    EXPECT_EQ(settings.RightShift(), 120);
  }
}

TEST(CardSettings, YesIsYOrYesInAnyCase) {
  const QPair<const char*, bool> cases[] = {{"Y", true},    {"y", true}, {" Yes ", true},
                                            {"N", false},   {"", false}, {"1", false},
                                            {"True", false}};
  for (const auto& [value, yes] : cases) {
    EXPECT_EQ(Singles(4, value).backOnly, yes) << value;
    EXPECT_EQ(Singles(7, value).confirms, yes) << value;
  }
}

TEST(CardSettings, MissingRowsCountAsNotSet) {
  const CardSettings settings = ReadCardSettings(Settings({}), SinglesFormat());
  EXPECT_EQ(settings.style, CardStyle::Card);
  EXPECT_FALSE(settings.backOnly);
  EXPECT_FALSE(settings.confirms);
  EXPECT_EQ(settings.DownShift(), 0);
}

}  // namespace
}  // namespace tavrelin
