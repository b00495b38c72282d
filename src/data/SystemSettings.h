#pragma once

#include <QHash>
#include <QString>

#include "basic/RowCheck.h"

namespace tavrelin {

class Connection;
class Recordset;

/// The settings that belong to a club's file, by their numbers in the table SystemSettings.
enum class Setting {
  DatabaseVersion = 0,  ///< the upgrade's own; never shown
  CardsVertical = 1,    ///< twips by which round-robin cards are moved down
  CardsHorizontal = 2,  ///< and to the right
  CardStyle = 3,        ///< 1, 2, 3, or "Y" from the time when it was a yes or no
  CardsBackOnly = 4,
  WeeklyHandicaps = 5,
  EmailResults = 6,
  WorldWarnings = 7,
  LeagueSync = 8,       ///< never shown; changed in the file itself
  ResultsVertical = 9,  ///< twips by which the sheet of results is moved down
  OmitPhones = 10,
};

/// What a club set for its file, read once. A screen reads it when it is shown. Made from a
/// connection, or from rows of SystemSettings that are open already; their cursor stays. A row that
/// is missing reads as an empty text.
class SystemSettings {
 public:
  SystemSettings(Connection& connection);     // NOLINT(google-explicit-constructor)
  SystemSettings(const Recordset& settings);  // NOLINT(google-explicit-constructor)

  /// Trimmed and in upper case, as people are not asked to care about either.
  QString Text(Setting setting) const;
  /// "Y", or "YES" written out. Anything else is no.
  bool IsOn(Setting setting) const;
  /// Whole twips; 0 when it holds no number. Cut at 20000, beyond which nothing is left on any
  /// sheet.
  int Twips(Setting setting) const;

 private:
  QHash<int, QString> values_;
};

/// The rows that the Settings screen shows, to be edited: all but those that are never shown. The
/// connection must outlive them.
Recordset OpenShownSettings(Connection& connection);

/// May the operator leave a row of the Settings screen? The two adjustments of the cards must be
/// numbers; all else is taken as it is typed.
RowCheck CheckSetting(const RowValues& row);

}  // namespace tavrelin
