// Rows, values and order of GridEX: the public words for what GridCore does.

#include <QAbstractItemView>

#include "basic/RowCheck.h"
#include "controls/GridCore.h"
#include "controls/GridEX.h"

namespace tavrelin {

void GridUpdate::Obey(const RowCheck& check) {
  const bool undo = check.verdict == RowCheck::Verdict::Undo;
  if (undo || check.verdict == RowCheck::Verdict::Cancel) cancel = true;
  if (undo || check.verdict == RowCheck::Verdict::Discard) dataChanged = false;
}

// Rows ------------------------------------------------------------------------------------------

void GridEX::SetRecordset(Recordset* recordset) {
  core_->Bind(recordset);
}

Recordset* GridEX::BoundRecordset() const {
  return core_->model.Bound();
}

void GridEX::Rebind() {
  core_->Rebind();
}

void GridEX::Refetch(int row) {
  core_->model.Touch(core_->model.Rows().LineOfRow(row));
}

int GridEX::RowCount() const {
  return core_->model.Rows().Records();
}

int GridEX::Row() const {
  return core_->Row();
}

int GridEX::Col() const {
  return core_->Col();
}

Recordset::Bookmark GridEX::CurrentBookmark() const {
  return core_->Here();
}

bool GridEX::SetRow(int row) {
  if (row == -1) return core_->MoveToNewRow();
  return core_->MoveTo(core_->model.Rows().LineOfRow(row), core_->Column());
}

bool GridEX::SetCol(int col) {
  return core_->Line() >= 0 && core_->MoveTo(core_->Line(), core_->StopAt(col));
}

bool GridEX::MoveToBookmark(Recordset::Bookmark bookmark) {
  return core_->MoveTo(core_->model.LineOf(bookmark), core_->Column());
}

void GridEX::EnsureVisible(int row) {
  const int line = core_->model.Rows().LineOfRow(row);
  if (line >= 0) core_->view->scrollTo(core_->model.index(line, qMax(core_->Column(), 0)));
}

// The current row -------------------------------------------------------------------------------

tavrelin::Value GridEX::Value(const QString& key) const {
  return ValueAt(Row(), key);
}

tavrelin::Value GridEX::ValueAt(int row, const QString& key) const {
  const int line = core_->model.Rows().LineOfRow(row);
  if (line < 0 || row == 0) return {};
  const int number = ColumnNumber(key);
  return number > 0 ? core_->model.CellValue(line, number) : core_->model.FieldValue(line, key);
}

QString GridEX::TextAt(int row, const QString& key) const {
  const int line = core_->model.Rows().LineOfRow(row), number = ColumnNumber(key);
  return line < 0 || number == 0 ? QString() : core_->model.CellText(line, number);
}

void GridEX::SetValue(const QString& key, const tavrelin::Value& value) {
  const int number = ColumnNumber(key);
  core_->SetField(number > 0 ? Columns()[number - 1].field : key, value);
}

void GridEX::Apply(const RowCheck& check) {
  for (const auto& [column, value] : check.fixes) SetValue(column, value);
}

bool GridEX::DataChanged() const {
  return core_->Changed();
}

void GridEX::SetDataChanged(bool changed) {
  if (changed) {
    core_->ForceChanged();
  } else {
    core_->Discard();
  }
}

void GridEX::SetRowName(const QString& pattern) {
  core_->rowName = pattern;
}

QString GridEX::RowName() const {
  if (core_->rowName.isEmpty()) return core_->FirstText();
  QString name = core_->rowName;
  for (const GridColumn& column : Columns()) {
    const QString place = u'{' + column.Key() + u'}';
    if (name.contains(place)) name.replace(place, TextAt(Row(), column.Key()));
  }
  return name.simplified();
}

bool GridEX::IsEditing() const {
  return core_->IsOpen();
}

bool GridEX::EditCell() {
  return core_->OpenCell();
}

void GridEX::EndEdit() {
  core_->CloseCell(true);
}

bool GridEX::CommitRow() {
  return core_->Commit();
}

bool GridEX::DeleteRow() {
  return core_->DeleteRow();
}

// Order -----------------------------------------------------------------------------------------

void GridEX::ClearSortKeys() {
  core_->SetSortKeys({});
}

void GridEX::SetSortKeys(const QList<GridSortKey>& keys) {
  core_->SetSortKeys(keys);
}

void GridEX::AddSortKey(const QString& key, SortOrder order) {
  core_->SetSortKeys(SortKeys() + QList<GridSortKey>{{key, order}});
}

const QList<GridSortKey>& GridEX::SortKeys() const {
  return core_->sortKeys;
}

SortOrder GridEX::NextOrder(const QString& key) const {
  const bool first =
      !SortKeys().isEmpty() && SortKeys().first().column.compare(key, Qt::CaseInsensitive) == 0;
  const bool up = first && SortKeys().first().order == SortOrder::Ascending;
  return up ? SortOrder::Descending : SortOrder::Ascending;
}

}  // namespace tavrelin
