#include "play/StandingRows.h"

#include <algorithm>

#include "basic/Figures.h"
#include "play/ClassLoad.h"
#include "play/PlayFormat.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int Unseeded = 99;

ByID<PersonName> PitchersOf(Connection& connection, const Recordset& rows,
                            const PlayFormat& format) {
  QStringList ids, columns;
  for (const PitcherColumns& pitcher : format.pitchers) {
    const int field = rows.FieldIndex(pitcher.id);
    for (int position = 1; position <= rows.RecordCount(); ++position)
      ids << rows.CellAt(position, field).ToText();
  }
  for (const RosterField& field : RosterFields()) columns << field.column;
  return PlayerNames(connection, ids, columns);
}

/// Fills what the entries do not hold in themselves.
class RowFiller {
 public:
  RowFiller(Recordset& rows, const PlayFormat& format, const ByID<PersonName>& names)
      : rows_(rows), format_(format), names_(names) {}

  void FillAll() {
    for (rows_.MoveFirst(); !rows_.AtEnd();) {
      if (format_.listsRosterOnly && !names_.contains(rows_[format_.entrantID].ToText())) {
        rows_.Delete();
        continue;
      }
      Fill();
      rows_.Update();
      rows_.MoveNext();
    }
    if (rows_.RecordCount() > 0) rows_.MoveFirst();
  }

 private:
  void Fill() {
    for (const PitcherColumns& pitcher : format_.pitchers) FillPitcher(pitcher);
    const double shoes = rows_[u"Shoes"_s].ToNumber();
    const double percent = RingerPercentage(rows_[u"Ringers"_s].ToNumber(), shoes);
    rows_.Set(u"RingerPercent"_s, percent);
    rows_.Set(u"OverAverage"_s, shoes > 0 ? percent - rows_[u"EntryAvg"_s].ToNumber() : 0.0);
    if (rows_[u"Seed"_s].ToWhole() == 0) rows_.Set(u"Seed"_s, Unseeded);
  }

  void FillPitcher(const PitcherColumns& pitcher) {
    const PersonName name = NameOrNumber(names_, rows_[pitcher.id].ToText());
    const int width = rows_.Fields()[rows_.FieldIndex(pitcher.fullName)].size;
    rows_.Set(pitcher.fullName, name.Full().left(width));
    for (const RosterField& field : RosterFields())
      rows_.Set(pitcher.prefix + field.name, name.values.value(field.column));
  }

  Recordset& rows_;
  const PlayFormat& format_;
  const ByID<PersonName>& names_;
};

}  // namespace

Recordset ReadStandingRows(Connection& connection, const ClassRules& rules) {
  const PlayFormat& format = FormatOf(rules);
  Recordset rows;
  rows.Open(format.standingsStatement, connection, Recordset::Lock::ReadOnly,
            {rules.sanctionID, rules.classID});
  rows.Disconnect();
  if (rows.RecordCount() == 0) return rows;
  RowFiller(rows, format, PitchersOf(connection, rows, format)).FillAll();
  return rows;
}

double LargestFigure(const Recordset& rows, const QString& field) {
  const int index = rows.FieldIndex(field);
  double largest = 0;
  for (int position = 1; position <= rows.RecordCount(); ++position) {
    largest = std::max(largest, rows.CellAt(position, index).ToNumber());
  }
  return largest;
}

}  // namespace tavrelin
