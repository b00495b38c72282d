#pragma once

#include <functional>
#include <optional>
#include <QObject>
#include <QTimer>

#include "controls/GridEvents.h"
#include "data/Recordset.h"

namespace tavrelin {

class GridEX;

/// Jumping to a row by typing the start of a name. Each key restarts Timer1; when it fires, a pause
/// has ended the word and the next key begins a new one.
///
/// The search runs on a clone of the grid's recordset, in the order and under the filter of the
/// grid, so that neither the grid's row nor the recordset's cursor moves until a row is found.
class TypedSearch : public QObject {
  Q_OBJECT

 public:
  /// What to look for: from the first row, the first criterion; when no row meets it, the second
  /// one (the next name after what was typed). An empty criterion is not tried.
  struct Criteria {
    QString first;
    QString then;
  };
  using Maker = std::function<Criteria(const QString& typed)>;

  /// `pause` in milliseconds. The grid must outlive the search.
  TypedSearch(GridEX& grid, int pause, Maker maker);

  /// "Name LIKE 'SM%'", then "Name > 'SM%'"; `thenSuffix` "" for screens that compare with the bare
  /// text.
  static Criteria ByStart(const QString& field, const QString& typed,
                          const QString& thenSuffix = QStringLiteral("%"));
  /// "Longevity >= 12", and nothing else.
  static Criteria ByNumber(const QString& field, const QString& typed);

  /// Search in a cell, too; for lists in which nothing is typed.
  void SetInCells(bool inCells) { inCells_ = inCells; }
  /// Digits are part of a word; they are at the start.
  void SetDigits(bool digits) { digits_ = digits; }
  /// Where nothing is found, go to the last row; else nothing moves, as at the start.
  void SetElseLast(bool elseLast) { elseLast_ = elseLast; }

  /// Takes a key of the grid's KeyDown: true, and the key is swallowed, when it belonged to the
  /// search.
  bool KeyDown(GridKeyDown& event);
  const QString& Buffer() const { return buffer_; }
  /// Ends the word.
  void Clear();

 private:
  bool Belongs(const GridKeyDown& event) const;
  Recordset& Clone();
  void Search();

  GridEX& grid_;
  Maker maker_;
  QTimer timer_;
  QString buffer_;
  std::optional<Recordset> clone_;
  bool inCells_ = false, digits_ = true, elseLast_ = false;
};

}  // namespace tavrelin
