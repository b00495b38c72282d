#include "leagues/MemberTable.h"

#include <algorithm>
#include <cmath>

#include "basic/Conversions.h"
#include "data/Connection.h"
#include "leagues/League.h"
#include "leagues/TeamTable.h"
#include "players/PlayerTexts.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// A figure of a member's row; nothing counts as 0.
int FigureOf(const Value& value) {
  return Rounded(value.ToNumber());
}

/// A stored postal code has nine characters; what older programs stored with its hyphen has ten.
QString ZipCodeOf(const Value& stored) {
  const QString zip = stored.ToText();
  return zip.size() > 9 ? StoredZipCode(zip) : zip;
}

/// Who stepped over a full ten percent that he did not hold before the season has earned it.
QString Eligibility(const MemberStats& member) {
  const double mark = std::floor(RoundHalfEven(double{member.highPercent}) / 10) * 10;
  return mark >= 10 && double{member.previousHighPercent} < mark ? u"Yes"_s : QString();
}

qint64 OverAverage(qint64 high, int average) {
  return std::max<qint64>(0, high - average);
}

/// In the order of MemberFields.
QList<Value> CellsOf(const MemberStats& member) {
  return {member.playerID,
          member.name,
          member.category,
          member.cardNumber,
          member.address,
          member.city,
          member.state,
          member.zipCode,
          member.active,
          member.averagePoints,
          member.start.average,
          double{member.ringerPercent},
          member.handicap,
          member.wins,
          member.losses,
          WinShare(member.wins, member.losses),
          member.totalPoints,
          member.totalRingers,
          member.totalShoes,
          member.highPoints,
          member.highRingers,
          double{member.highPercent},
          double{member.previousHighPercent},
          Eligibility(member),
          member.highWithHandicap,
          OverAverage(member.highPoints, member.averagePoints),
          double{std::max(0.0F, member.highPercent - member.ringerPercent)}};
}

Value Fitting(const Value& cell, const Field& field) {
  return field.type == FieldType::Text ? Value(cell.ToText().left(field.size)) : cell;
}

}  // namespace

QList<MemberStats> ReadMembers(Connection& connection, const League& league) {
  Recordset rows;
  rows.Open(
      u"SELECT m.PlayerID, m.StartingAverage, m.HighGamePoints, m.HighGameRingers, m.Active, "
      "p.FirstName, p.LastName, p.Category, p.CardNumber, p.AddressOne, p.City, p.State, "
      "p.ZipCode FROM LeagueMembers m, Players p "
      "WHERE m.SanctionID = ? AND m.PlayerID = p.PlayerID ORDER BY m.PlayerID"_s,
      connection, Recordset::Lock::ReadOnly, {league.sanctionID});
  QList<MemberStats> members;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    members.append({.playerID = rows.At(0).ToText(),
                    .name = rows.At(6).ToText() + u", "_s + rows.At(5).ToText(),
                    .category = rows.At(7).ToText(),
                    .cardNumber = rows.At(8).ToText(),
                    .address = rows.At(9).ToText(),
                    .city = rows.At(10).ToText(),
                    .state = rows.At(11).ToText(),
                    .zipCode = ZipCodeOf(rows.At(12)),
                    .active = rows.At(4).ToYesNo(),
                    .start = {FigureOf(rows.At(1)), FigureOf(rows.At(2)), FigureOf(rows.At(3))}});
  }
  return members;
}

const QList<Field>& MemberFields() {
  static const QList<Field> fields{{u"PlayerID"_s, FieldType::Text, 6},
                                   {u"PlayerName"_s, FieldType::Text, 45},
                                   {u"Category"_s, FieldType::Text, 2},
                                   {u"CardNumber"_s, FieldType::Text, 8},
                                   {u"AddressOne"_s, FieldType::Text, 40},
                                   {u"City"_s, FieldType::Text, 30},
                                   {u"State"_s, FieldType::Text, 2},
                                   {u"ZipCode"_s, FieldType::Text, 9},
                                   {u"Active"_s, FieldType::YesNo},
                                   {u"AveragePoints"_s, FieldType::Long},
                                   {u"StartingAverage"_s, FieldType::Long},
                                   {u"RingerPercent"_s, FieldType::Single},
                                   {u"Handicap"_s, FieldType::Long},
                                   {u"Win"_s, FieldType::Single},
                                   {u"Loss"_s, FieldType::Single},
                                   {u"WinPercent"_s, FieldType::Single},
                                   {u"TotalPoints"_s, FieldType::Long},
                                   {u"TotalRingers"_s, FieldType::Long},
                                   {u"TotalShoes"_s, FieldType::Long},
                                   {u"HighGamePoints"_s, FieldType::Long},
                                   {u"HighGameRingers"_s, FieldType::Long},
                                   {u"HighRingerPercent"_s, FieldType::Single},
                                   {u"PreviousHighRingerPercent"_s, FieldType::Single},
                                   {u"Elgible"_s, FieldType::Text, 3},
                                   {u"HighGamePointsWH"_s, FieldType::Long},
                                   {u"HighGamePointsOA"_s, FieldType::Long},
                                   {u"HighRingerPercentOA"_s, FieldType::Single}};
  return fields;
}

Recordset MemberTable(const QList<MemberStats>& members) {
  const QList<Field>& fields = MemberFields();
  Recordset table;
  for (const Field& field : fields) table.Append(field.name, field.type, field.size);
  table.OpenInMemory();
  for (const MemberStats& member : members) {
    table.AddNew();
    const QList<Value> cells = CellsOf(member);
    for (int i = 0; i < cells.size(); ++i) table.Set(i, Fitting(cells[i], fields[i]));
    table.Update();
  }
  if (!members.isEmpty()) table.MoveFirst();
  return table;
}

}  // namespace tavrelin
