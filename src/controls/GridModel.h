#pragma once

#include <functional>
#include <QAbstractTableModel>
#include <QHash>
#include <QList>

#include "controls/GridColumn.h"
#include "controls/RowMap.h"
#include "data/Recordset.h"

namespace tavrelin {

/// The one row of a grid that holds changes not saved yet.
struct PendingRow {
  bool isNew = false;
  Recordset::Bookmark bookmark = 0;
  bool changed = false;          ///< there is something to save
  bool typed = false;            ///< the operator had a hand in it
  QHash<QString, Value> values;  ///< by field name in lower case
};

/// What a grid shows: column 0 is the row selector, columns 1 to n are those of the column table;
/// rows are the lines of its RowMap. Cells are read from the recordset when they are painted, and
/// nothing is copied.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Answers with the text or the icon number of a cell; filled by the grid from its events.
  struct Fetch {
    std::function<QString(int row, const QString& key, const Value& value, const QString& text)>
        text;
    std::function<int(int row, const QString& key)> icon;
  };

  explicit GridModel(QObject* parent);

  void SetColumns(const QList<GridColumn>& columns);
  const QList<GridColumn>& Columns() const { return columns_; }
  /// A column by its number, from 1.
  const GridColumn& Column(int number) const { return columns_[number - 1]; }
  int ColumnNumber(const QString& key) const;
  /// Changes a column in place; the views are told.
  void Change(int number, const std::function<void(GridColumn&)>& change);
  /// Numbers of the columns on the screen, from left to right.
  QList<int> VisibleColumns() const;

  void SetIcons(const QList<GridIcon>& icons);
  const QList<GridIcon>& Icons() const { return icons_; }
  Fetch fetch;

  /// Binds and lays out the lines anew. `order` and `groups` (column numbers) as in RowMap.
  void Bind(Recordset* recordset);
  void LayOut(bool newRow, std::vector<int> order, const QList<int>& groups);
  Recordset* Bound() const { return recordset_; }
  const RowMap& Rows() const { return rows_; }

  PendingRow& Pending() { return pending_; }
  const PendingRow& Pending() const { return pending_; }
  bool IsPending(int line) const;
  /// Keeps a value for show that the file does not take.
  void Overlay(Recordset::Bookmark row, const QString& field, const Value& value);

  Recordset::Bookmark BookmarkAt(int line) const;  ///< 0 for other lines than rows
  int LineOf(Recordset::Bookmark bookmark) const;  ///< -1 when it is not there
  Value FieldValue(int line, const QString& field) const;
  Value CellValue(int line, int number) const;
  QString CellText(int line, int number) const;
  /// The text a cell opens with for typing: the value itself, a date in its picture.
  QString EditText(int line, int number) const;
  /// The icon number of an icon cell; 0 for none.
  int CellIcon(int line, int number) const;
  bool IsChecked(int line, int number) const { return CellValue(line, number).ToYesNo(); }
  /// All cells of a line with their captions, for the screen reader.
  QString LineText(int line) const;

  void Touch(int line);  ///< the views paint a line anew

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Says whether a cell can be edited; filled by the grid.
  std::function<bool(int line, int number)> mayEdit;

 private:
  void AddHeadings(const QList<int>& groups);
  QString HeadingText(int line, int number, int members) const;
  QString SpokenText(int line, int number) const;
  QString SpokenCaption(int number) const;

  QList<GridColumn> columns_;
  QHash<QString, int> numbers_;
  QList<GridIcon> icons_;
  Recordset* recordset_ = nullptr;
  RowMap rows_;
  PendingRow pending_;
  QHash<QString, QHash<Recordset::Bookmark, Value>> overlay_;
};

}  // namespace tavrelin
