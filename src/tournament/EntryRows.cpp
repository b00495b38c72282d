#include "tournament/EntryRows.h"

#include "data/Connection.h"
#include "players/PlayerNames.h"
#include "players/PlayerRows.h"
#include "players/Vocabulary.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

QStringList Entrants(EntryKind kind, const Recordset& entries) {
  const int field = entries.FieldIndex(EntrantField(kind));
  QStringList ids;
  for (int position = 1; position <= entries.RecordCount(); ++position)
    ids.append(entries.CellAt(position, field).Trimmed());
  ids.removeDuplicates();
  return ids;
}

QString FieldsOf(EntryKind kind, EntryFields fields) {
  const QString common =
      u"SanctionID, %1, Paid, Seed, RingerPercent, ClassID"_s.arg(EntrantField(kind));
  if (fields == EntryFields::WithoutShoes) return common;
  return common + (kind == EntryKind::Teams ? u", PlayerOneID, PlayerTwoID"_s
                                            : u", TotalShoes, TotalRingers, RankOverride"_s);
}

EntrantTexts TextsOfPlayers(Connection& connection, const QStringList& ids) {
  const ByID<PersonName> people = PlayerNames(connection, ids, {u"Category"_s});
  EntrantTexts texts;
  for (const QString& id : ids) {
    const PersonName person = people.value(id);
    texts.names.append({id, people.contains(id) ? person.Listed() : NotOnFile(id)});
    texts.divisions.append({id, EntryDivisionText(person.values.value(u"Category"_s).ToText())});
  }
  return texts;
}

EntrantTexts TextsOfTeams(Connection& connection, const QStringList& ids) {
  const ByID<QString> teams = TeamNames(connection, ids);
  EntrantTexts texts;
  for (const QString& id : ids) texts.names.append({id, teams.value(id, NotOnFile(id))});
  return texts;
}

}  // namespace

QString EntrantField(EntryKind kind) {
  return kind == EntryKind::Teams ? u"TeamID"_s : u"PlayerID"_s;
}

QString PlayFormatOf(EntryKind kind) {
  return kind == EntryKind::Teams ? u"D"_s : u"S"_s;
}

Recordset EntrantList(Connection& connection, EntryKind kind) {
  if (kind == EntryKind::Teams) return TeamList(connection);
  return RosterList(connection,
                    {u"LastName"_s, u"Category"_s, u"CardNumber"_s, u"State"_s, u"CardYear"_s},
                    RosterOrder::LastName);
}

Recordset OpenEntries(Connection& connection, EntryKind kind, const QString& sanctionID,
                      EntryFields fields) {
  const QString table =
      kind == EntryKind::Teams ? u"TournamentTeamEntrants"_s : u"TournamentEntrants"_s;
  Recordset entries;
  entries.Open(u"SELECT %1 FROM %2 WHERE SanctionID = ?"_s.arg(FieldsOf(kind, fields), table),
               connection, Recordset::Lock::Optimistic, {sanctionID});
  return entries;
}

EntrantTexts TextsOf(Connection& connection, EntryKind kind, const Recordset& entries) {
  const QStringList ids = Entrants(kind, entries);
  return kind == EntryKind::Teams ? TextsOfTeams(connection, ids) : TextsOfPlayers(connection, ids);
}

}  // namespace tavrelin
