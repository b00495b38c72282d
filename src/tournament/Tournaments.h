#pragma once

#include <optional>
#include <QDateTime>
#include <QList>
#include <QString>

#include "data/Recordset.h"

namespace tavrelin {

class Connection;

/// A tournament as boxes and reports name it. Texts are trimmed.
struct Tournament {
  QString sanctionID;
  QString name;    ///< may be empty
  QDateTime date;  ///< invalid when the file holds none

  /// What a box offers: "@@-@@-@@@", three blanks and the name; the number alone without a name.
  QString BoxText() const;
};

/// All tournaments of the file, the latest first.
QList<Tournament> AllTournaments(Connection& connection);

/// A tournament by its number, in whatever case; nothing when the file holds none of it.
std::optional<Tournament> FindTournament(Connection& connection, const QString& sanctionID);

/// The tournaments, the latest first, to be edited; the connection must outlive them.
Recordset OpenTournaments(Connection& connection);

}  // namespace tavrelin
