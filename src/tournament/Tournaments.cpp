#include "tournament/Tournaments.h"

#include "basic/SanctionNumber.h"
#include "data/Connection.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

const QString Statement = u"SELECT SanctionID, Name, Date FROM Tournaments "_s;

Tournament TournamentAt(const Recordset& rows) {
  return {rows.At(0).Trimmed(), rows.At(1).Trimmed(), rows.At(2).ToDate()};
}

}  // namespace

QString Tournament::BoxText() const {
  return SanctionComboText(sanctionID, name);
}

QList<Tournament> AllTournaments(Connection& connection) {
  Recordset rows;
  rows.Open(Statement + u"ORDER BY Date DESC"_s, connection);
  QList<Tournament> tournaments;
  for (; !rows.AtEnd(); rows.MoveNext()) tournaments.append(TournamentAt(rows));
  return tournaments;
}

std::optional<Tournament> FindTournament(Connection& connection, const QString& sanctionID) {
  Recordset rows;
  rows.Open(Statement + u"WHERE SanctionID = ?"_s, connection, Recordset::Lock::ReadOnly,
            {sanctionID.trimmed()});
  if (rows.AtEnd()) return std::nullopt;
  return TournamentAt(rows);
}

Recordset OpenTournaments(Connection& connection) {
  Recordset rows;
  rows.Open(u"SELECT * FROM Tournaments ORDER BY Date DESC"_s, connection,
            Recordset::Lock::Optimistic);
  return rows;
}

}  // namespace tavrelin
