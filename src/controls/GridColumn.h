#pragma once

#include <QHash>
#include <QIcon>
#include <QList>
#include <QString>

#include "basic/CodeText.h"
#include "basic/Value.h"

namespace tavrelin {

/// One row of a value list: what the field stores and what people read.
struct ValueItem {
  Value code;
  QString text;
};

/// The codes of a column with their texts, in the order in which the drop-down offers them. Copies
/// share their content; looking a code up takes the same time in a list of 50,000 players as in one
/// of two.
class ValueList {
 public:
  ValueList() = default;
  ValueList(std::initializer_list<ValueItem> items);
  ValueList(const QList<CodeText>& choices);  // NOLINT(google-explicit-constructor)

  void Add(const Value& code, const QString& text);
  void Clear();
  bool IsEmpty() const { return items_.isEmpty(); }
  const QList<ValueItem>& Items() const { return items_; }
  /// The place of a code, compared by its text without regard to case or outer blanks; -1 when the
  /// list does not hold it.
  int IndexOf(const Value& code) const;
  /// The place of a text as people read it, without regard to case or outer blanks; -1 when none.
  int IndexOfText(const QString& text) const;

 private:
  QList<ValueItem> items_;
  QHash<QString, int> byCode_;
};

/// What a cell is edited with.
enum class CellEditor {
  Text,
  Number,  ///< a text that is right-aligned while typed; what is no number is the screen's to tell
  Date,    ///< typed, or picked from a calendar
  DateTime,  ///< the same; picking a day keeps the time
  CheckBox,  ///< toggled in place; the cell is True or False
  List,      ///< one of the value list, nothing else
  Combo,     ///< one of the value list, or typed freely
  Delete,    ///< not edited: a button that deletes its row
};

/// By what a column sorts. Numeric and Date also order a text field by the number or the date that
/// its text reads as; Shown goes by the text of the value list in place of the code.
enum class SortKind { Text, Numeric, Date, Shown };

/// One column of a grid, as data: the same table feeds the grid, its tests and the screen reader.
/// Members have the order in which they are usually named:
///
///     {.caption = "Rgr %", .field = "Average", .width = 705, .picture = "#0.00",
///      .alignment = Qt::AlignRight, .sort = SortKind::Numeric}
struct GridColumn {
  QString caption = {};
  QString field = {};
  /// The column's own name among the columns; empty means the name of its field. Needed where two
  /// columns stand on one field.
  QString key = {};
  /// Twips at the 8-point font the widths were drawn with; 0 takes no room. A column is never
  /// narrower than its caption and what its picture writes.
  int width = 1005;
  /// Place on the screen, from 1; 0 means its place in the table. Equal places keep table order.
  int position = 0;
  bool visible = true;
  bool selectable = true;   ///< the cursor can stand on it
  bool editable = true;     ///< only where the grid allows editing, too
  bool newRowOnly = false;  ///< editable on the new-record row alone
  int maxLength = 0;        ///< characters that can be typed; 0 for no limit
  CellEditor editor = CellEditor::Text;
  QString picture = {};
  Qt::Alignment alignment = Qt::AlignLeft;
  SortKind sort = SortKind::Text;
  ValueList values = {};       ///< shown in place of the codes; offered by List and Combo
  Value defaultValue = {};     ///< of a new row; null for none
  bool upperCase = false;      ///< letters arrive in upper case as they are typed
  bool icon = false;           ///< shows an icon of the grid's in place of the text: FetchIcon
  bool fetchData = false;      ///< the displayed text comes from FetchData
  bool compact = false;        ///< card view: shares a line with the next compact column
  bool fill = false;           ///< takes the width that is left over
  QString spokenCaption = {};  ///< for the screen reader, where the caption is too short to be said

  const QString& Key() const { return key.isEmpty() ? field : key; }

  // One member changed, for tables of ready-made columns: see Columns.h.

  GridColumn& Keyed(const QString& name);
  GridColumn& Spoken(const QString& words);
  GridColumn& Pictured(const QString& pattern);
  GridColumn& Placed(int place);
  GridColumn& SortedBy(SortKind kind);
  GridColumn& Defaulted(const Value& value);
  GridColumn& Filling();
  GridColumn& Compacted();
  GridColumn& UpperCased();
  GridColumn& Skipped();  ///< the cursor cannot stand on it
  GridColumn& ReadOnly();
};

/// The widest of what a column's picture writes, digits taken as zeros and letters as Ms: a figure
/// cut off with an ellipsis tells nothing. Empty without a picture.
QString WidestText(const GridColumn& column);

/// An icon of a grid, with the word that stands for it where it can't be seen ("Win").
struct GridIcon {
  QIcon icon;
  QString text;
};

}  // namespace tavrelin
