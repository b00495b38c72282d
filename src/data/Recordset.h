#pragma once

#include <memory>
#include <QList>
#include <QString>
#include <QStringList>

#include "basic/Value.h"

namespace tavrelin {

class Connection;
class Criterion;
class ValueIndex;
struct RowSourceResult;

/// What a column holds. Sizes are characters; a size of 0 is unlimited.
enum class FieldType { Text, Memo, Short, Long, Single, Double, YesNo, Date, AutoNumber };

/// One column of a recordset.
struct Field {
  QString name;
  FieldType type = FieldType::Text;
  int size = 0;           ///< characters of a text; 0 for no limit and for other types
  bool updatable = true;  ///< false for expressions and for columns the engine fills itself; what
                          ///< is set in an expression's field shows, and is not written
};

/// Rows fetched whole, walked with a cursor, edited in place: a client-side cursor over a query, or
/// a table in memory made field by field.
///
/// Positions count from 1 in the present Sort and Filter. A bookmark names a row for the
/// recordset's life and survives Sort, Filter and Requery of the same rows; it is shared with
/// clones. Field names are case-insensitive. Everything throws Error: NoSuchField, RecordState (no
/// current row), FieldTooSmall, DataTypeMismatch, Database. A failed Update leaves the edit
/// pending, so that it can be mended and tried again, or given up by CancelUpdate. Leaving a row
/// with a change pending (any Move, Find, GoTo, SetSort, SetFilter, AddNew) updates it first. A row
/// keeps its place while it is changed, and a new row stands behind the last, until the next
/// SetSort, SetFilter or Requery. The rows are shared with clones and live as long as the last of
/// them; the connection must outlive every Update, Delete and Requery.
class Recordset {
 public:
  using Bookmark = qint64;
  enum class Lock { ReadOnly, Optimistic };

  Recordset();
  ~Recordset();
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;

  // Opening

  /// Runs a query and fetches all its rows; the cursor stands on the first. With Lock::Optimistic a
  /// query over one table, without grouping, can be edited row by row.
  void Open(const QString& sql, Connection& connection, Lock lock = Lock::ReadOnly,
            const QList<Value>& parameters = {});
  /// Appends a field to a table in memory; only before OpenInMemory.
  void Append(const QString& name, FieldType type, int size = 0);
  void OpenInMemory();
  /// Cuts the rows loose from the file: edits stay in memory from here on, also to expressions'
  /// columns.
  void Disconnect();
  void Close();
  bool IsOpen() const;
  /// Runs the query again and goes to the first row; Sort and Filter stay.
  void Requery();
  /// Same rows, own cursor, own Sort and Filter. Sees at once what the original writes, and the
  /// reverse.
  Recordset Clone() const;

  // Fields

  const QList<Field>& Fields() const;
  int FieldIndex(const QString& name) const;  ///< -1 when there is none
  /// The name of the one table behind an updatable recordset; empty otherwise.
  QString TableName() const;
  /// Marks a field for Find and Sort by index.
  void Optimize(const QString& field);

  // The cursor

  bool AtEnd() const;        ///< behind the last row, or no rows
  bool AtBeginning() const;  ///< before the first row, or no rows
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  int RecordCount() const;       ///< rows under the present filter
  int AbsolutePosition() const;  ///< 1 to RecordCount; 0 when there is no current row
  void SetAbsolutePosition(int position);
  Bookmark CurrentBookmark() const;  ///< 0 when there is no current row
  /// Goes to a row; false, and no move, when the present filter hides it or it was deleted.
  bool GoTo(Bookmark bookmark);

  // Reading

  Value operator[](const QString& field) const;
  Value At(int field) const;
  /// A cell by position and field without moving the cursor: what a grid paints from.
  Value CellAt(int position, int field) const;
  Bookmark BookmarkAt(int position) const;
  /// 1 to RecordCount, 0 when the row is hidden or gone.
  int PositionOf(Bookmark bookmark) const;

  // Writing

  void AddNew();
  bool IsAdding() const;
  bool IsEditing() const;  ///< a change is pending (AddNew included)
  /// Sets a field of the current or new row. Converts to the field's type at once, or throws.
  void Set(const QString& field, const Value& value);
  void Set(int field, const Value& value);
  /// Writes the pending row, one commit. After an AddNew the cursor stands on the new row, with
  /// what the engine gave it (numbers, defaults).
  void Update();
  void CancelUpdate();
  /// Deletes the current row; the cursor moves to the next, or behind the last.
  void Delete();

  // Order and choice

  /// From the current row on (`skip` rows further), forward: stops at the first row that meets the
  /// criterion, or behind the last. Criterion: field, then = <> < > <= >= or LIKE, then a number,
  /// 'text' or #date#.
  void Find(const QString& criterion, int skip = 0);
  /// Several criteria joined by AND; "" shows all rows. Goes to the first row.
  void SetFilter(const QString& criteria);
  QString Filter() const;
  /// "Field ASC, Other DESC"; stable; null first. "" gives the order of the query. Goes to the
  /// first row.
  void SetSort(const QString& keys);
  QString Sort() const;

 private:
  struct Rows;    // what clones share
  struct Cursor;  // what each has of its own

  Cursor& Here() const;
  int IndexOrThrow(const QString& field) const;
  void CheckField(int field) const;
  void CheckWritable() const;
  int RowAt(int position) const;
  void MoveTo(int position);
  int FindByIndex(const Criterion& wanted, ValueIndex& index, int start);
  void TakeResult(RowSourceResult&& result);
  void WriteNewRow();
  void WriteChanges();

  std::shared_ptr<Rows> rows_;
  std::unique_ptr<Cursor> cursor_;
};

}  // namespace tavrelin
