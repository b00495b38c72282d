#include "tournament/EntrySide.h"

#include <QHBoxLayout>
#include <QLabel>

#include "controls/GridEX.h"
#include "controls/TypedSearch.h"
#include "shell/Labels.h"
#include "shell/SideBySide.h"
#include "tournament/Classes.h"

namespace tavrelin {

EntrySide::EntrySide(EntrySideKind kind, const GridGuard& guard, QWidget* parent)
    : QWidget(parent),
      kind_(std::move(kind)),
      list_(new GridEX(kind_.listName, kind_.listCaption, guard, this)),
      entries_(new GridEX(kind_.entriesName, kind_.entriesCaption, guard, this)) {
  BuildList();
  BuildEntries();
  LayOut();
}

EntrySide::~EntrySide() = default;

void EntrySide::BuildList() {
  list_->SetColumns(kind_.listColumns);
  list_->SetAllowEdit(false);
  list_->SetRowMode(true);
  list_->SetEmptyText(kind_.listEmptyText);
  search_ = std::make_unique<TypedSearch>(*list_, 1500, [this](const QString& typed) {
    return TypedSearch::ByStart(kind_.searchField, typed);
  });
  search_->SetDigits(false);
  list_->on.KeyDown = [this](GridKeyDown& event) { List_KeyDown(event); };
  list_->on.DblClick = [this] {
    if (entries_->isEnabled() && Selected) Selected();
  };
}

void EntrySide::BuildEntries() {
  entries_->SetColumns(kind_.entryColumns);
  entries_->SetAllowDelete(true);
  entries_->SetEmptyText(kind_.entriesEmptyText);
  entries_->setEnabled(false);
  entries_->on.KeyDown = [this](GridKeyDown& event) { Entries_KeyDown(event); };
  entries_->on.ColumnHeaderClick = [this](const QString& column) {
    Entries_ColumnHeaderClick(column);
  };
}

void EntrySide::LayOut() {
  QHBoxLayout* halves = SideBySide(
      {{NewHeading(kind_.listLabel, kind_.listCaption, list_, this), list_, 34},
       {NewHeading(kind_.entriesLabel, kind_.entriesCaption, entries_, this), entries_, 66}});
  halves->setContentsMargins(8, 8, 8, 8);
  setLayout(halves);
}

void EntrySide::ShowList(Connection& connection) {
  list_->SetRecordset(nullptr);
  listRows_ = EntrantList(connection, kind_.kind);
  list_->SetRecordset(&listRows_);
}

void EntrySide::ShowEntries(Connection& connection, const QString& sanctionID, EntryFields fields) {
  entries_->SetRecordset(nullptr);
  entryRows_ = OpenEntries(connection, kind_.kind, sanctionID, fields);
  entryKeys_ = entryRows_.Clone();
  const EntrantTexts texts = TextsOf(connection, kind_.kind, entryKeys_);
  entries_->SetValueList(EntrantField(kind_.kind), texts.names);
  entries_->SetValueList("Category", texts.divisions);
  LetEditWhatIsRead();
  entries_->SetRecordset(&entryRows_);
  entries_->AddSortKey("ClassID", SortOrder::Ascending);
  entries_->AddSortKey("RingerPercent", SortOrder::Descending);
}

// What is typed into a column whose field was not read could not be stored.
void EntrySide::LetEditWhatIsRead() {
  const QList<GridColumn> columns = entries_->Columns();
  for (const GridColumn& column : columns)
    entries_->SetEditable(column.Key(), entryRows_.FieldIndex(column.field) >= 0);
}

void EntrySide::OfferClasses(Connection& connection, const QString& sanctionID) {
  const QList<ClassRules> classes = ClassesOf(connection, sanctionID, PlayFormatOf(kind_.kind));
  entries_->SetValueList("ClassID", ClassChoices(classes, "   "));
}

void EntrySide::GoToPayment(const QString& entrant) {
  entries_->setFocus();
  for (int row = 1; row <= entries_->RowCount(); ++row) {
    if (entries_->ValueAt(row, EntrantField(kind_.kind)).Trimmed() != entrant) continue;
    entries_->SetRow(row);
    entries_->SetCol("Paid");
    return;
  }
}

void EntrySide::SetEntriesEnabled(bool enabled) {
  entries_->setEnabled(enabled);
}

void EntrySide::Release() {
  search_->Clear();
  for (GridEX* grid : {list_, entries_}) grid->SetRecordset(nullptr);
  for (Recordset* rows : {&listRows_, &entryKeys_, &entryRows_}) rows->Close();
  SetEntriesEnabled(false);
}

void EntrySide::List_KeyDown(GridKeyDown& event) {
  const bool enter = event.key == Qt::Key_Return || event.key == Qt::Key_Enter;
  if (enter && entries_->isEnabled() && list_->Row() > 0) {
    event.swallow = true;
    if (Selected) Selected();
  } else if (event.key == Qt::Key_Left || event.key == Qt::Key_Right) {
    list_->ClearCol();
  } else {
    search_->KeyDown(event);
  }
}

bool EntrySide::IsFirstCell() const {
  for (int col = entries_->Col() - 1; col >= 1; --col) {
    const GridColumn& column = entries_->Columns().at(col - 1);
    if (column.visible && column.selectable) return false;
  }
  return true;
}

void EntrySide::Entries_KeyDown(GridKeyDown& event) {
  const bool back =
      event.key == Qt::Key_Tab && (event.modifiers & Qt::ShiftModifier) && IsFirstCell();
  if (event.key == Qt::Key_Escape || back) {
    event.swallow = true;
    list_->setFocus();
  } else if (event.key == Qt::Key_Left && IsFirstCell()) {
    event.swallow = true;
  }
}

// Equal values remain in order of strength.
void EntrySide::Entries_ColumnHeaderClick(const QString& column) {
  const SortOrder order = entries_->NextOrder(column);
  entries_->ClearSortKeys();
  entries_->AddSortKey(column, order);
  if (column != "RingerPercent") entries_->AddSortKey("RingerPercent", SortOrder::Descending);
}

}  // namespace tavrelin
