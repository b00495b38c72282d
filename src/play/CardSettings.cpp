#include "play/CardSettings.h"

#include <algorithm>
#include <QHash>

#include "basic/Conversions.h"
#include "data/Recordset.h"
#include "play/PlayFormat.h"

namespace tavrelin {
namespace {

enum Setting { Vertical = 1, Horizontal = 2, Style = 3, BackOnly = 4, Warnings = 7 };

constexpr double FarthestShift = 20000;  // twips: beyond it nothing is left on any sheet

QHash<int, QString> ValuesByNumber(const Recordset& settings) {
  const int id = settings.FieldIndex(QStringLiteral("SettingID"));
  const int value = settings.FieldIndex(QStringLiteral("SettingValue"));
  QHash<int, QString> values;
  for (int position = 1; position <= settings.RecordCount(); ++position) {
    const auto number = static_cast<int>(settings.CellAt(position, id).ToWhole());
    values[number] = settings.CellAt(position, value).Trimmed().toUpper();
  }
  return values;
}

bool IsYes(const QString& value) {
  return value == u"Y" || value == u"YES";
}

int Shift(const QString& value) {
  if (!IsNumeric(value)) return 0;
  return static_cast<int>(std::clamp(RoundHalfEven(CDbl(value)), -FarthestShift, FarthestShift));
}

CardStyle StyleOf(const QString& value, const PlayFormat& format) {
  if (IsYes(value)) return CardStyle::Folded;
  if (!format.hasTwoUpCards) return CardStyle::Card;
  if (value == u"2") return CardStyle::Folded;
  return value == u"3" ? CardStyle::TwoUp : CardStyle::Card;
}

}  // namespace

CardSettings ReadCardSettings(const Recordset& settings, const PlayFormat& format) {
  const QHash<int, QString> values = ValuesByNumber(settings);
  CardSettings read;
  read.style = StyleOf(values[Style], format);
  read.backOnly = IsYes(values[BackOnly]);
  read.confirms = IsYes(values[Warnings]);
  read.down = Shift(values[Vertical]);
  read.right = Shift(values[Horizontal]);
  return read;
}

}  // namespace tavrelin
