#include "players/PlayerNames.h"

#include "data/Connection.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// A query for the rows with these IDs; with none it finds no row.
Recordset RowsByID(Connection& connection, const QString& select, const QString& column,
                   const QStringList& ids) {
  QStringList marks(ids.size(), u"?"_s);
  QList<Value> values(ids.begin(), ids.end());
  if (marks.isEmpty()) {
    marks << u"?"_s;
    values << Value();
  }
  Recordset rows;
  rows.Open(u"%1 WHERE %2 IN (%3)"_s.arg(select, column, marks.join(u',')), connection,
            Recordset::Lock::ReadOnly, values);
  return rows;
}

}  // namespace

QString PersonName::Full() const {
  return (first + u' ' + last).trimmed();
}

QString PersonName::Listed() const {
  return first.isEmpty() || last.isEmpty() ? last + first : last + u", "_s + first;
}

QString NotOnFile(const QString& id) {
  return id.trimmed() + u" (not on file)"_s;
}

ByID<PersonName> PlayerNames(Connection& connection, const QStringList& ids,
                             const QStringList& columns) {
  const QStringList all = QStringList{u"PlayerID"_s, u"FirstName"_s, u"LastName"_s} + columns;
  ByID<PersonName> names;
  Recordset rows =
      RowsByID(connection, u"SELECT %1 FROM Players"_s.arg(all.join(u", ")), u"PlayerID"_s, ids);
  for (; !rows.AtEnd(); rows.MoveNext()) {
    PersonName& name = names[rows.At(0).ToText()];
    name = {rows.At(1).Trimmed(), rows.At(2).Trimmed()};
    for (const QString& column : columns) name.values[column] = rows[column];
  }
  return names;
}

PersonName NameOrNumber(const ByID<PersonName>& names, const QString& id) {
  if (names.contains(id) || id.trimmed().isEmpty()) return names.value(id);
  return {{}, NotOnFile(id)};
}

ByID<QString> FullNames(Connection& connection, const QStringList& ids) {
  ByID<QString> names;
  const ByID<PersonName> people = PlayerNames(connection, ids);
  for (const QString& id : ids) {
    if (people.contains(id)) names[id] = people.value(id).Full();
  }
  return names;
}

ByID<QString> TeamNames(Connection& connection, const QStringList& ids) {
  ByID<QString> names;
  Recordset rows = RowsByID(connection, u"SELECT TeamID, Team FROM Teams"_s, u"TeamID"_s, ids);
  for (; !rows.AtEnd(); rows.MoveNext()) names[rows.At(0).ToText()] = rows.At(1).Trimmed();
  return names;
}

Recordset RosterList(Connection& connection, const QStringList& columns, RosterOrder order) {
  const QStringList all =
      QStringList{u"PlayerID"_s, u"RTRIM(LastName) + ', ' + RTRIM(FirstName) AS PlayerName"_s} +
      columns;
  const QString by = order == RosterOrder::ShownName ? u"2"_s : u"LastName, FirstName"_s;
  Recordset rows;
  rows.Open(u"SELECT %1 FROM Players ORDER BY %2"_s.arg(all.join(u", "), by), connection);
  return rows;
}

}  // namespace tavrelin
