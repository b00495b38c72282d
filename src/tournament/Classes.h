#pragma once

#include <optional>
#include <QList>
#include <QString>

#include "basic/CodeText.h"
#include "data/Recordset.h"

namespace tavrelin {

class Connection;

/// The rules under which a class plays, as its row in TournamentClasses tells them. Texts are
/// trimmed.
struct ClassRules {
  QString sanctionID;
  QString classID;
  QString name;               ///< may be empty
  double handicapPct = 0;     ///< 0: a class without handicap
  int shoes = 0;              ///< shoes a game; 0: no fixed number
  QString rankMethod;         ///< "P", "R", "H" or "O"
  QString playFormat;         ///< "S" or "D"
  bool rankOverride = false;  ///< the places stand as the director set them
};

/// The class, or nothing when the tournament has none of this ID. IDs are taken trimmed.
std::optional<ClassRules> FindClass(Connection& connection, const QString& sanctionID,
                                    const QString& classID);

/// The classes of a tournament, in the order of their IDs.
QList<ClassRules> ClassesOf(Connection& connection, const QString& sanctionID);
/// Those of them that are played in one format, "S" or "D".
QList<ClassRules> ClassesOf(Connection& connection, const QString& sanctionID,
                            const QString& playFormat);

/// The classes of a tournament, to be edited; the connection must outlive them.
Recordset OpenClasses(Connection& connection, const QString& sanctionID);

/// Classes to choose from: the class's ID as the code, its ID and name as the text. `between`
/// stands between the two; it is left out, with the name, where a class has none.
QList<CodeText> ClassChoices(const QList<ClassRules>& classes, const QString& between);

}  // namespace tavrelin
