#include "data/SystemSettings.h"

#include <algorithm>

#include "basic/Conversions.h"
#include "data/Recordset.h"

namespace tavrelin {
namespace {

constexpr double FarthestShift = 20000;  // twips

const QString SettingID = QStringLiteral("SettingID");
const QString SettingValue = QStringLiteral("SettingValue");

Recordset AllSettings(Connection& connection) {
  Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM SystemSettings ORDER BY SettingID"), connection);
  return rows;
}

}  // namespace

SystemSettings::SystemSettings(Connection& connection) : SystemSettings(AllSettings(connection)) {}

SystemSettings::SystemSettings(const Recordset& settings) {
  const int id = settings.FieldIndex(SettingID);
  const int value = settings.FieldIndex(SettingValue);
  for (int position = 1; position <= settings.RecordCount(); ++position) {
    const auto number = static_cast<int>(settings.CellAt(position, id).ToWhole());
    if (values_.contains(number)) continue;
    values_[number] = settings.CellAt(position, value).Trimmed().toUpper();
  }
}

QString SystemSettings::Text(Setting setting) const {
  return values_.value(static_cast<int>(setting));
}

bool SystemSettings::IsOn(Setting setting) const {
  const QString text = Text(setting);
  return text == u"Y" || text == u"YES";
}

int SystemSettings::Twips(Setting setting) const {
  const QString text = Text(setting);
  if (!IsNumeric(text)) return 0;
  return static_cast<int>(std::clamp(RoundHalfEven(CDbl(text)), -FarthestShift, FarthestShift));
}

Recordset OpenShownSettings(Connection& connection) {
  Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM SystemSettings WHERE SettingID NOT IN (%1, %2) "
                           "ORDER BY SettingID")
                .arg(static_cast<int>(Setting::DatabaseVersion))
                .arg(static_cast<int>(Setting::LeagueSync)),
            connection, Recordset::Lock::Optimistic);
  return rows;
}

RowCheck CheckSetting(const RowValues& row) {
  RowCheck check;
  const auto id = static_cast<Setting>(row.value(SettingID).ToWhole());
  const bool isAdjustment = id == Setting::CardsVertical || id == Setting::CardsHorizontal;
  if (isAdjustment && !IsNumeric(row.value(SettingValue))) {
    check.Refuse(QStringLiteral("Adjustment must be numeric"));
  }
  return check;
}

}  // namespace tavrelin
