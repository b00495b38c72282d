#pragma once

#include "basic/RowCheck.h"

namespace tavrelin {

class Recordset;

/// A tournament row about to be saved: sanction number, its uniqueness (on a new row), date.
/// `others` holds all tournaments; its cursor is moved. `storedNumber` is that of a stored row,
/// which may be mended but not into another tournament's. A row without a number is dropped without
/// a word; one without a date is undone.
RowCheck CheckTournament(const RowValues& row, bool newRow, Recordset& others,
                         const QString& storedNumber = {});

/// A class row about to be saved. `others` holds the classes of this tournament; its cursor is
/// moved. An empty handicap becomes 0. QLTA: ringer percent may not break ties in a handicap class.
RowCheck CheckTournamentClass(const RowValues& row, bool newRow, Recordset& others);

/// When a class plays unless told otherwise: at eight in the morning of the tournament's date.
QDateTime DefaultClassStart(const QDateTime& tournamentDate);

}  // namespace tavrelin
