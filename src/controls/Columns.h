#pragma once

#include "controls/GridColumn.h"

namespace tavrelin {

class Recordset;

// The kinds of columns that the grids of a club are made of, so that a screen's list of columns
// reads like a table. Widths are in twips; what differs is added behind:
//
//     NumberColumn(u"Hcp"_s, u"HandicapPct"_s, 600).Spoken(u"Handicap percent"_s)

/// A field that rules read and nobody sees.
GridColumn HiddenColumn(const QString& field);

/// `maxLength` in characters; 0 for no limit.
GridColumn TextColumn(const QString& caption, const QString& field, int width, int maxLength = 0);

/// At the right edge, sorted as a number.
GridColumn NumberColumn(const QString& caption, const QString& field, int width);

/// A number with two digits behind the point.
GridColumn PercentColumn(const QString& caption, const QString& field, int width);

/// A day, typed or picked from a calendar.
GridColumn DateColumn(const QString& caption, const QString& field, int width);

/// A day and a time; the time is typed.
GridColumn DateTimeColumn(const QString& caption, const QString& field, int width);

/// Yes or no.
GridColumn CheckColumn(const QString& caption, const QString& field, int width);

/// One of the given codes; they may come later, by GridEX::SetValueList.
GridColumn ListColumn(const QString& caption, const QString& field, int width,
                      const ValueList& values = {});

/// The number of a tournament or league (`SanctionID`): typed with or without hyphens.
GridColumn SanctionColumn(int width);

/// The two letters of a state or province (`State`). Its codes come by
/// clsUtility::LoadStateValueList.
GridColumn StateColumn(int width);

/// Who or what a number names: the row keeps the number, people read and sort by the name. Nothing
/// is typed in it. Its names come by GridEX::SetValueList.
GridColumn NamesColumn(const QString& caption, const QString& field, int width);

/// The texts of a field by the values of another one, for a list of names: two fields of rows that
/// are open, their cursor stays.
ValueList NamesIn(const Recordset& rows, const QString& codeField, const QString& textField);

}  // namespace tavrelin
