#include "controls/GridCore.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QApplication>
#include <QMenuBar>
#include <QScrollBar>
#include <QTimer>

#include "controls/GridDelegate.h"
#include "controls/GridEX.h"

namespace tavrelin {

GridCore::GridCore(GridEX& owner, GridGuard guard)
    : face(owner), model(this), cursor(&model, this), guard_(std::move(guard)) {
  Q_ASSERT(guard_);
  cursor.ask = [this](const QModelIndex& index) { MoveTo(index.row(), index.column()); };
  model.mayEdit = [this](int line, int number) { return MayEdit(line, number); };
  model.fetch.text = [this](int row, const QString& key, const Value& value, const QString& text) {
    return FetchText(row, key, value, text);
  };
  model.fetch.icon = [this](int row, const QString& key) { return FetchIcon(row, key); };
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { FocusMoved(now); });
}

GridCore::~GridCore() = default;

bool GridCore::Guarded(const char* name, const std::function<void()>& body) const {
  return guard_((face.objectName().toUtf8() + '_' + name).constData(), body);
}

// The rows on show ------------------------------------------------------------------------------

void GridCore::Bind(Recordset* recordset) {
  CloseCell(false);
  ++moves_;
  sortKeys.clear();
  groups.clear();
  fetchFailed_ = false;
  model.Bind(recordset);
  model.LayOut(recordset && allowAddNew, {}, {});
  const int first = model.Rows().LineOfRow(1);
  Q_EMIT OrderChanged();
  Place(first >= 0 ? first : model.Rows().LineOfRow(-1), 0, true);
}

void GridCore::Rebind() {
  Recordset* recordset = model.Bound();
  if (!recordset || !recordset->IsOpen()) return LayOut();
  Guarded("Rebind", [&] {
    if (!recordset->Sort().isEmpty()) recordset->SetSort(recordset->Sort());
    if (here_ != 0) recordset->GoTo(here_);
  });
  LayOut();
}

void GridCore::Sort() {
  Recordset* recordset = model.Bound();
  if (!recordset || !recordset->IsOpen()) return LayOut();
  Guarded("Sort", [&] {
    const QString text = SortText(*recordset, Keys());
    if (!text.isEmpty() && recordset->Sort() != text) recordset->SetSort(text);
    if (here_ != 0) recordset->GoTo(here_);
  });
  LayOut();
}

// The order beyond the fields holds only while the recordset lies as the keys want it: a screen may
// have sorted it otherwise since.
void GridCore::LayOut() {
  CloseCell(true);
  const int row = Row(), column = Column();
  const bool newRow = row == -1;
  Recordset* recordset = model.Bound();
  std::vector<int> order;
  if (recordset && recordset->IsOpen() && recordset->Sort() == SortText(*recordset, Keys())) {
    Guarded("Sort", [&] { order = OrderBeyondFields(*recordset, Keys()); });
  }
  const int scrolled = view ? view->verticalScrollBar()->value() : 0;
  model.LayOut(recordset && allowAddNew, std::move(order), GroupColumns());
  Restore(newRow, row, column);
  if (view) view->verticalScrollBar()->setValue(scrolled);
}

void GridCore::Restore(bool newRow, int row, int column) {
  int line = newRow ? model.Rows().LineOfRow(-1) : model.LineOf(here_);
  const int records = model.Rows().Records();
  if (line < 0 && records > 0) line = model.Rows().LineOfRow(std::clamp(row, 1, records));
  if (line < 0) line = model.Rows().LineOfRow(-1);
  const bool same = newRow ? model.Rows().IsNewRow(line) : model.BookmarkAt(line) == here_;
  if (!same) model.Pending() = {};
  here_ = model.BookmarkAt(line);
  cursor.Place(line < 0 ? QModelIndex() : model.index(line, std::max(column, 0)));
  Q_EMIT CurrentChanged();
}

QList<ColumnOrder> GridCore::Keys() const {
  QList<ColumnOrder> keys;
  for (const QString& group : groups) {
    const auto key = std::find_if(sortKeys.begin(), sortKeys.end(), [&](const GridSortKey& k) {
      return k.column.compare(group, Qt::CaseInsensitive) == 0;
    });
    const int number = model.ColumnNumber(group);
    keys.append({model.Column(number), key == sortKeys.end() ? SortOrder::Ascending : key->order});
  }
  for (const GridSortKey& key : sortKeys) {
    if (groups.contains(key.column, Qt::CaseInsensitive)) continue;
    keys.append({model.Column(model.ColumnNumber(key.column)), key.order});
  }
  return keys;
}

void GridCore::SetSortKeys(const QList<GridSortKey>& keys) {
  sortKeys = keys;
  sortKeys.removeIf([this](const GridSortKey& key) { return model.ColumnNumber(key.column) == 0; });
  if (!sortKeys.isEmpty()) Sort();
  Q_EMIT OrderChanged();
}

void GridCore::SetGroups(const QStringList& keys) {
  groups = keys;
  Sort();
  Q_EMIT OrderChanged();
}

void GridCore::RemoveGroup(const QString& key) {
  if (!Commit()) return;
  QStringList left = groups;
  left.removeAll(key);
  SetGroups(left);
}

QList<int> GridCore::GroupColumns() const {
  QList<int> numbers;
  for (const QString& group : groups) numbers.append(model.ColumnNumber(group));
  return numbers;
}

void GridCore::HeaderClicked(int number) {
  if (number < 1 || !Commit()) return;
  const QString key = model.Column(number).Key();
  if (face.on.ColumnHeaderClick) {
    Raise("ColumnHeaderClick", face.on.ColumnHeaderClick, key);
  } else {
    face.SetSortKeys({{key, face.NextOrder(key)}});
  }
}

// The cursor ------------------------------------------------------------------------------------

int GridCore::Row() const {
  return model.Rows().RowAt(Line());
}

int GridCore::Col() const {
  if (Row() == 0) return 0;
  return Column() > 0 ? Column() : -1;
}

QList<int> GridCore::Stops() const {
  QList<int> stops;
  if (rowMode) return stops;
  for (int number : model.VisibleColumns()) {
    if (model.Column(number).selectable) stops.append(number);
  }
  return stops;
}

int GridCore::StopAt(int column) const {
  if (column <= 0 || rowMode) return 0;
  const QList<int> visible = model.VisibleColumns();
  for (qsizetype i = std::max<qsizetype>(visible.indexOf(column), 0); i < visible.size(); ++i) {
    if (model.Column(visible[i]).selectable) return visible[i];
  }
  return 0;
}

// While a row is left, its procedures may bind other rows, rebind these in another order, or go to
// a row of their own. A move of their own stands; otherwise the row aimed at is looked up again.
bool GridCore::MoveTo(int line, int column) {
  if (model.Rows().RowAt(line) == 0) return false;
  if (line == Line()) {
    CloseCell(true);
    if (column != Column()) Place(line, column);
    return true;
  }
  const bool toNewRow = model.Rows().IsNewRow(line);
  const auto target = model.BookmarkAt(line);
  const int moves = moves_;
  if (!Commit(true)) return false;
  if (moves != moves_) return true;
  line = toNewRow ? model.Rows().LineOfRow(-1) : model.LineOf(target);
  if (line < 0) return false;
  ++moves_;
  Place(line, column);
  return true;
}

bool GridCore::MoveToNewRow() {
  if (!OnNewRow()) return model.Rows().HasNewRow() && MoveTo(0, Column());
  return Commit();
}

void GridCore::Place(int line, int column, bool bound) {
  const int lastRow = bound ? 0 : Row(), lastCol = bound ? 0 : Col();
  if (lastRow != model.Rows().RowAt(line)) model.Pending() = {};
  cursor.Place(line < 0 ? QModelIndex() : model.index(line, column));
  here_ = model.BookmarkAt(line);
  if (here_ != 0) Guarded("RowColChange", [&] { model.Bound()->GoTo(here_); });
  if (view && line >= 0) view->scrollTo(cursor.currentIndex());
  Repaint();
  Q_EMIT CurrentChanged();
  if (lastRow != Row() || lastCol != Col()) {
    Raise("RowColChange", face.on.RowColChange, lastRow, lastCol);
  }
}

// The views -------------------------------------------------------------------------------------

void GridCore::Repaint() {
  if (view) view->viewport()->update();
}

bool GridCore::IsInside(const QWidget* widget) const {
  while (widget && widget != &face) widget = widget->parentWidget();
  return widget != nullptr;
}

// Dialogs, other windows and the menus do not take the focus out of the grid: it comes back.
// Leaving for another control saves the row, and a row that is refused brings the focus back.
void GridCore::FocusMoved(QWidget* now) {
  const bool inside = IsInside(now);
  const bool aside = !now || now->window() != face.window() || qobject_cast<QMenuBar*>(now);
  if (inside == hasFocus_ || (!inside && aside)) return;
  if (!inside && !Commit() && face.isVisible() && face.isEnabled()) {
    view->setFocus();
    return;
  }
  hasFocus_ = inside;
  Repaint();
  if (inside) {
    Raise("GotFocus", face.on.GotFocus);
  } else {
    Raise("LostFocus", face.on.LostFocus);
  }
}

// Cells are fetched while they are painted: a failure there must not open a dialog on the spot, nor
// one for every cell.
void GridCore::FetchFailed(const char* event) {
  fetchFailed_ = true;
  const std::exception_ptr failure = std::current_exception();
  QTimer::singleShot(0, this, [this, event, failure] {
    Guarded(event, [&] { std::rethrow_exception(failure); });
  });
}

QString GridCore::FetchText(int row, const QString& key, const Value& value, const QString& text) {
  if (!face.on.FetchData || fetchFailed_) return text;
  GridFetchData event{row, key, value, text};
  try {
    face.on.FetchData(event);
  } catch (...) {
    FetchFailed("FetchData");
  }
  return event.text;
}

int GridCore::FetchIcon(int row, const QString& key) {
  GridFetchIcon event{row, row > 0 ? model.Rows().PositionOfRow(row) : 0, key};
  if (!face.on.FetchIcon || fetchFailed_) return event.icon;
  try {
    face.on.FetchIcon(event);
  } catch (...) {
    FetchFailed("FetchIcon");
  }
  return event.icon;
}

}  // namespace tavrelin
