#pragma once

#include <QList>
#include <QString>

#include "data/Recordset.h"

namespace tavrelin {

class Connection;
struct ClassRules;

/// The standing of a class as its entries hold it: one row an entrant, cut loose from the file, in
/// the order of the file and on the first row. Reads and writes nothing but these rows. The
/// ranking, the posting of results and the reports after play put them in order (OrderOf).
///
/// Fields: PlayFormat::entrantID and ::standingsName; `EntryAvg`; `Won` and `Loss` (halves occur),
/// `Points`, `Ringers`, `Shoes` and `HeadToHead` as the last ranking stored them; `Seed`, 99 for
/// who has none; `RingerPercent` and `OverAverage` in percent, unrounded, 0 without shoes; `Rank`,
/// and in singles `Override`. Of each pitcher: the fields of PitcherColumns, his name cut to its
/// width, and RosterFields.
///
/// A singles entrant who was taken off the roster is left out; a team keeps its row, and the
/// partner who was has the name NotOnFile.
Recordset ReadStandingRows(Connection& connection, const ClassRules& rules);

/// Walks all rows and stores what `edit` sets in each.
template <typename Edit>
void EachRow(Recordset& rows, Edit edit) {
  for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) {
    edit();
    if (rows.IsEditing()) rows.Update();
  }
}

/// The largest value of a percentage column: the average from which handicaps are counted. 0 when
/// there are no rows. The cursor stays.
double LargestFigure(const Recordset& rows, const QString& field);

}  // namespace tavrelin
