#pragma once

#include <QString>
#include <QStringView>

#include "basic/Value.h"
#include "data/Recordset.h"

namespace tavrelin {

/// What a column's declaration in the file allows. The file keeps the Access names of the types
/// ("VARCHAR(2)", "YESNO"), so a declaration is all that is needed to hold a value to its column.
struct ColumnType {
  FieldType type = FieldType::Text;
  int size = 0;        ///< characters of a text; 0 for no limit
  bool fixed = false;  ///< CHAR(n): compared and kept without blanks behind it
  bool byte = false;   ///< 0 to 255
  bool known = true;   ///< false for a declaration that is none of Access's; nothing is held to it
};

/// "CHAR(20)", "SMALLINT", "INTEGER"... in any case, with or without blanks.
ColumnType ParseColumnType(QStringView declared);

/// The declaration that the file gets for a type as a statement names it: the same name, except
/// where SQLite would take a text for a number (STRING becomes TEXT, MEMO becomes LONGTEXT).
QString StoredDeclaration(QStringView declared);

/// The value as the column keeps it: yes/no, whole, floating (of a single: its 32-bit value), text
/// or date; null stays null, except that yes/no knows none and takes No. Throws FieldTooSmall for a
/// text that is too long and a number out of range, DataTypeMismatch for what is no number or no
/// date; the sentence names `column`.
Value ConvertToColumn(const ColumnType& type, const QString& column, const Value& value);

}  // namespace tavrelin
