#include "controls/GridEX.h"

#include <QApplication>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "controls/CardView.h"
#include "controls/GridCore.h"
#include "controls/GridDelegate.h"
#include "controls/GridHeader.h"
#include "controls/GridKeys.h"
#include "controls/GridView.h"
#include "controls/GroupBox.h"
#include "controls/RecordCounter.h"

namespace tavrelin {

namespace {

constexpr double SmallestFont = 10.5;  // points

}  // namespace

/// What stands around the machinery of a grid.
struct GridEX::Widgets {
  Widgets(GridEX& face, GridCore& core);

  GridKeys keys;
  GroupBox* groupBox;
  GridView* table;
  CardView* cards;
  RecordCounter* counter;
  QStackedLayout* views;
};

GridEX::Widgets::Widgets(GridEX& face, GridCore& core)
    : keys(core),
      groupBox(new GroupBox(core, &face)),
      table(new GridView(core, keys, &face)),
      cards(new CardView(core, keys, &face)),
      counter(new RecordCounter(&face)),
      views(new QStackedLayout) {
  auto* layout = new QVBoxLayout(&face);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(groupBox);
  views->addWidget(table);
  views->addWidget(cards);
  layout->addLayout(views, 1);
  layout->addWidget(counter);
  groupBox->hide();
  counter->hide();
}

GridEX::GridEX(const QString& name, const QString& spokenName, GridGuard guard, QWidget* parent)
    : QWidget(parent), core_(std::make_unique<GridCore>(*this, std::move(guard))) {
  setObjectName(name);
  setAccessibleName(spokenName);
  QFont large = font();
  if (large.pointSizeF() < SmallestFont) large.setPointSizeF(SmallestFont);
  setFont(large);
  widgets_ = std::make_unique<Widgets>(*this, *core_);
  widgets_->table->setObjectName(name + QStringLiteral("_Table"));
  widgets_->table->setAccessibleName(spokenName);
  widgets_->cards->setObjectName(name + QStringLiteral("_Cards"));
  widgets_->cards->setAccessibleName(spokenName);
  UseView(widgets_->table);
  connect(core_.get(), &GridCore::CurrentChanged, this, [this] {
    widgets_->counter->Show(Row(), RowCount());
    Q_EMIT CurrentChanged();
  });
  connect(core_.get(), &GridCore::OrderChanged, this, [this] {
    widgets_->table->Header()->ShowSortKey();
    widgets_->groupBox->ShowGroups();
  });
}

// The views go before the model and the cursor that they look at.
GridEX::~GridEX() {
  core_->disconnect();
  QObject::disconnect(qApp, nullptr, core_.get(), nullptr);
  core_->view = nullptr;
  core_->delegate = nullptr;
  delete widgets_->table;
  delete widgets_->cards;
}

// Columns ---------------------------------------------------------------------------------------

void GridEX::SetColumns(const QList<GridColumn>& columns) {
  core_->CloseCell(false);
  core_->groups.clear();
  core_->sortKeys.clear();
  core_->model.SetColumns(columns);
  if (core_->model.Bound()) core_->LayOut();
  widgets_->table->LayOutColumns();
  widgets_->cards->LayOutFields();
}

const QList<GridColumn>& GridEX::Columns() const {
  return core_->model.Columns();
}

int GridEX::ColumnNumber(const QString& key) const {
  return core_->model.ColumnNumber(key);
}

QString GridEX::ColumnKey(int col) const {
  return col >= 1 && col <= Columns().size() ? Columns()[col - 1].Key() : QString();
}

void GridEX::Change(const QString& key, const std::function<void(GridColumn&)>& change) {
  const int number = ColumnNumber(key);
  if (number == 0) return;
  const GridColumn before = Columns()[number - 1];
  core_->model.Change(number, change);
  const GridColumn& after = Columns()[number - 1];
  // Widths that the operator gave the columns outlive all other changes.
  const bool layout = before.caption != after.caption || before.visible != after.visible ||
                      before.width != after.width;
  if (layout) widgets_->table->LayOutColumns();
  widgets_->cards->LayOutFields();
  const int stop = core_->Column();
  if (stop > 0 && !Columns()[stop - 1].visible) SetCol(stop);
}

void GridEX::SetCaption(const QString& key, const QString& caption) {
  Change(key, [&](GridColumn& column) { column.caption = caption; });
}

void GridEX::SetColumnVisible(const QString& key, bool visible) {
  Change(key, [&](GridColumn& column) { column.visible = visible; });
}

void GridEX::SetSelectable(const QString& key, bool selectable) {
  Change(key, [&](GridColumn& column) { column.selectable = selectable; });
}

void GridEX::SetEditable(const QString& key, bool editable) {
  Change(key, [&](GridColumn& column) { column.editable = editable; });
}

void GridEX::SetWidth(const QString& key, int twips) {
  Change(key, [&](GridColumn& column) { column.width = twips; });
}

void GridEX::SetCompact(const QString& key, bool compact) {
  Change(key, [&](GridColumn& column) { column.compact = compact; });
}

void GridEX::SetValueList(const QString& key, const ValueList& values) {
  Change(key, [&](GridColumn& column) { column.values = values; });
}

void GridEX::SetDefault(const QString& key, const tavrelin::Value& value) {
  Change(key, [&](GridColumn& column) { column.defaultValue = value; });
}

tavrelin::Value GridEX::Default(const QString& key) const {
  const int number = ColumnNumber(key);
  return number > 0 ? Columns()[number - 1].defaultValue : tavrelin::Value();
}

void GridEX::SetIcons(const QList<GridIcon>& icons) {
  core_->model.SetIcons(icons);
}

// What the operator may do ----------------------------------------------------------------------

void GridEX::SetAllowAddNew(bool allow) {
  core_->allowAddNew = allow;
  core_->LayOut();
}

void GridEX::SetAllowEdit(bool allow) {
  core_->allowEdit = allow;
}

void GridEX::SetAllowDelete(bool allow) {
  core_->allowDelete = allow;
}

bool GridEX::AllowAddNew() const {
  return core_->allowAddNew;
}

bool GridEX::AllowEdit() const {
  return core_->allowEdit;
}

bool GridEX::AllowDelete() const {
  return core_->allowDelete;
}

void GridEX::SetRowMode(bool rowMode) {
  core_->rowMode = rowMode;
}

// Views -----------------------------------------------------------------------------------------

void GridEX::SetView(View view) {
  core_->CloseCell(true);
  QAbstractItemView* shown = widgets_->table;
  if (view == View::Card) shown = widgets_->cards;
  const bool focus = core_->HasFocus();
  UseView(shown);
  widgets_->views->setCurrentWidget(shown);
  if (focus) shown->setFocus();
  shown->scrollTo(core_->cursor.currentIndex());
}

void GridEX::UseView(QAbstractItemView* view) {
  core_->view = view;
  core_->delegate = static_cast<GridDelegate*>(view->itemDelegate());
  setFocusProxy(view);
}

GridEX::View GridEX::CurrentView() const {
  return core_->view == widgets_->table ? View::Table : View::Card;
}

void GridEX::SetGroupByBoxVisible(bool visible) {
  widgets_->groupBox->setVisible(visible);
}

bool GridEX::GroupByBoxVisible() const {
  return !widgets_->groupBox->isHidden();
}

void GridEX::AddGroup(const QString& key) {
  if (ColumnNumber(key) == 0 || Groups().contains(key, Qt::CaseInsensitive)) return;
  if (!CommitRow()) return;
  core_->SetGroups(Groups() << key);
}

void GridEX::ClearGroups() {
  if (!Groups().isEmpty() && CommitRow()) core_->SetGroups({});
}

QStringList GridEX::Groups() const {
  return core_->groups;
}

void GridEX::SetRecordCounter(bool visible) {
  widgets_->counter->setVisible(visible);
  widgets_->counter->Show(Row(), RowCount());
}

void GridEX::SetRecordCaption(const QString& caption) {
  widgets_->counter->SetCaption(caption);
}

void GridEX::SetEmptyText(const QString& text) {
  widgets_->table->SetEmptyText(text);
  widgets_->cards->SetEmptyText(text);
}

}  // namespace tavrelin
