#include "data/SystemSettings.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/Schema.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

SystemSettings With(Setting setting, const Value& value) {
  Recordset rows;
  rows.Append("SettingID", FieldType::Short);
  rows.Append("SettingValue", FieldType::Text, 20);
  rows.OpenInMemory();
  rows.AddNew();
  rows.Set("SettingID", static_cast<int>(setting));
  rows.Set("SettingValue", value);
  rows.Update();
  return rows;
}

TEST(SystemSettings, YesIsYOrYesWithoutRegardToCaseOrBlanks) {
  const QPair<const char*, bool> cases[] = {{"Y", true},     {" y ", true}, {"yes", true},
                                            {"N", false},    {"", false},   {"1", false},
                                            {"True", false}, {"YY", false}};
  for (const auto& [value, on] : cases) {
    EXPECT_EQ(With(Setting::OmitPhones, value).IsOn(Setting::OmitPhones), on) << value;
  }
}

TEST(SystemSettings, TwipsCountWhenTheyAreANumber) {
  const QPair<const char*, int> cases[] = {
      {"150", 150}, {" -75 ", -75}, {"2.5", 2}, {"3.5", 4}, {"x", 0}, {"", 0}, {"-1e9", -20000}};
  for (const auto& [value, twips] : cases) {
    EXPECT_EQ(With(Setting::ResultsVertical, value).Twips(Setting::ResultsVertical), twips)
        << value;
  }
}

TEST(SystemSettings, AMissingRowAndANullReadAsNotSet) {
  const SystemSettings settings = With(Setting::CardStyle, Value());
  for (const Setting setting : {Setting::CardStyle, Setting::LeagueSync}) {
    EXPECT_EQ(settings.Text(setting), "");
    EXPECT_FALSE(settings.IsOn(setting));
    EXPECT_EQ(settings.Twips(setting), 0);
  }
}

TEST(SystemSettings, ANewClubHasAllElevenAndNoneIsOn) {
  const QTemporaryDir folder;
  DeliverClubFile(folder.filePath("club.mdb"));
  Connection connection;
  connection.Open(ConnectStringFor(folder.filePath("club.mdb")));
  const SystemSettings settings(connection);
  const char* values[] = {"11.17", "0", "0", "N", "N", "N", "N", "N", "N", "0", "N"};
  for (int id = 0; id <= 10; ++id) {
    EXPECT_EQ(settings.Text(Setting(id)), values[id]) << id;
    EXPECT_FALSE(settings.IsOn(Setting(id))) << id;
  }
}

TEST(CheckSetting, OnlyTheAdjustmentsOfTheCardsMustBeNumeric) {
  const struct {
    int id;
    Value value;
    bool refused;
  } cases[] = {
      {1, "X", true},   {2, "X", true},    {1, "", true},     {2, Value(), true},
      {1, "12x", true}, {1, "-40", false}, {2, "2.5", false}, {3, "whatever", false},
      {4, "X", false},  {7, "", false},    {9, "X", false},   {10, Value(), false},
  };
  for (const auto& one : cases) {
    const RowCheck check = CheckSetting({{"SettingID", one.id}, {"SettingValue", one.value}});
    SCOPED_TRACE(one.id);
    EXPECT_EQ(check.verdict, one.refused ? RowCheck::Verdict::Cancel : RowCheck::Verdict::Save);
    EXPECT_EQ(check.message, one.refused ? "Adjustment must be numeric" : "");
  }
}

}  // namespace
}  // namespace tavrelin
