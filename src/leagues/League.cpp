#include "leagues/League.h"

#include <algorithm>
#include <QHash>

#include "basic/Picture.h"
#include "basic/SanctionNumber.h"
#include "data/Connection.h"
#include "data/Recordset.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

const QString Columns =
    u"SELECT SanctionID, Name, State, Director, HandicapPct, Shoes, Cancellation, PlayFormat "
    "FROM Leagues "_s;

League LeagueAt(const Recordset& rows) {
  return {.sanctionID = rows.At(0).Trimmed(),
          .name = rows.At(1).Trimmed(),
          .state = rows.At(2).Trimmed(),
          .director = rows.At(3).Trimmed(),
          .handicapPct = rows.At(4).ToNumber(),
          .shoes = static_cast<int>(rows.At(5).ToWhole()),
          .cancellation = rows.At(6).ToYesNo(),
          .teams = CompareText(rows.At(7).Trimmed(), u"T") == 0};
}

bool SameName(const QString& one, const QString& other) {
  return CompareText(one.trimmed(), other.trimmed()) == 0;
}

}  // namespace

std::optional<League> FindLeague(Connection& connection, const QString& sanctionID) {
  Recordset rows;
  rows.Open(Columns + u"WHERE SanctionID = ?"_s, connection, Recordset::Lock::ReadOnly,
            {QString(sanctionID).remove(u'-').trimmed()});
  if (rows.AtEnd()) return std::nullopt;
  return LeagueAt(rows);
}

QList<League> AllLeagues(Connection& connection) {
  Recordset rows;
  rows.Open(Columns + u"ORDER BY SanctionID DESC"_s, connection);
  QList<League> leagues;
  for (; !rows.AtEnd(); rows.MoveNext()) leagues.append(LeagueAt(rows));
  return leagues;
}

QList<LeagueChoice> LeagueChoices(Connection& connection) {
  const QList<League> leagues = AllLeagues(connection);
  QList<LeagueChoice> choices;
  for (const League& league : leagues) {
    const auto same = std::count_if(leagues.begin(), leagues.end(), [&](const League& other) {
      return SameName(other.name, league.name);
    });
    const QString number = FormatSanction(league.sanctionID);
    const QString named = same > 1 ? league.name + u"   "_s + number : league.name;
    choices.append({league.sanctionID, league.name.isEmpty() ? number : named, league.name});
  }
  return choices;
}

int PlaceOfLeague(const QList<LeagueChoice>& choices, const QString& name) {
  const auto found = std::find_if(choices.begin(), choices.end(), [&](const LeagueChoice& choice) {
    return SameName(choice.name, name);
  });
  return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
}

}  // namespace tavrelin
