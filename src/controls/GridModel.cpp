#include "controls/GridModel.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "basic/Picture.h"

namespace tavrelin {

namespace {

// A 32-bit number in the fewest digits that give it back: 33.335, not 33.3349990844727.
QString ShortestText(const Value& single) {
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 static_cast<float>(single.ToNumber()), std::chars_format::fixed);
  if (end.ec != std::errc()) return single.ToText();
  return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

}  // namespace

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent) {}

void GridModel::SetColumns(const QList<GridColumn>& columns) {
  beginResetModel();
  columns_ = columns;
  numbers_.clear();
  for (int number = static_cast<int>(columns.size()); number > 0; --number) {
    numbers_.insert(Column(number).Key().toLower(), number);
  }
  endResetModel();
}

int GridModel::ColumnNumber(const QString& key) const {
  return numbers_.value(key.toLower(), 0);
}

void GridModel::Change(int number, const std::function<void(GridColumn&)>& change) {
  change(columns_[number - 1]);
  Q_EMIT headerDataChanged(Qt::Horizontal, number, number);
  if (rowCount() > 0) Q_EMIT dataChanged(index(0, number), index(rowCount() - 1, number));
}

QList<int> GridModel::VisibleColumns() const {
  QList<int> shown;
  for (int number = 1; number <= columns_.size(); ++number) {
    if (Column(number).visible && Column(number).width > 0) shown.append(number);
  }
  const auto place = [this](int number) {
    return Column(number).position > 0 ? Column(number).position : number;
  };
  std::stable_sort(shown.begin(), shown.end(), [&](int a, int b) { return place(a) < place(b); });
  return shown;
}

void GridModel::SetIcons(const QList<GridIcon>& icons) {
  icons_ = icons;
  if (rowCount() > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }
}

void GridModel::Bind(Recordset* recordset) {
  beginResetModel();
  recordset_ = recordset;
  rows_.Reset(false, 0);
  pending_ = {};
  overlay_.clear();
  endResetModel();
}

void GridModel::LayOut(bool newRow, std::vector<int> order, const QList<int>& groups) {
  beginResetModel();
  const int records = recordset_ && recordset_->IsOpen() ? recordset_->RecordCount() : 0;
  rows_.Reset(newRow, records, std::move(order));
  if (!groups.isEmpty()) AddHeadings(groups);
  endResetModel();
}

// A heading stands where the text of a grouping column, or of one outside it, changes. Its count of
// members is known when the group ends, so the rows are walked from the last to the first.
void GridModel::AddHeadings(const QList<int>& groups) {
  struct Found {
    int row;
    QString text;
  };
  std::vector<Found> found;
  const int level = static_cast<int>(groups.size());
  std::vector<int> members(static_cast<size_t>(level), 0);
  QStringList here;
  for (int row = rows_.Records(); row > 0; --row) {
    const int line = rows_.LineOfRow(row);
    if (here.isEmpty()) {
      for (int group : groups) here.append(CellText(line, group));
    }
    QStringList above;
    if (row > 1) {
      for (int group : groups) above.append(CellText(rows_.LineOfRow(row - 1), group));
    }
    for (int& count : members) ++count;
    int outer = 0;
    while (row > 1 && outer < level && above[outer] == here[outer]) ++outer;
    for (int i = level - 1; i >= outer; --i) {
      found.push_back({row, HeadingText(line, groups[i], members[static_cast<size_t>(i)])});
      members[static_cast<size_t>(i)] = 0;
    }
    here = above;
  }
  for (auto heading = found.rbegin(); heading != found.rend(); ++heading) {
    rows_.AddHeading(heading->row, heading->text);
  }
}

QString GridModel::HeadingText(int line, int number, int members) const {
  const QString text = SpokenText(line, number);
  return QStringLiteral("%1: %2  (%3)")
      .arg(SpokenCaption(number), text.trimmed().isEmpty() ? tr("(blank)") : text)
      .arg(members);
}

bool GridModel::IsPending(int line) const {
  if (pending_.values.isEmpty()) return false;
  if (pending_.isNew) return rows_.IsNewRow(line);
  return BookmarkAt(line) == pending_.bookmark;
}

void GridModel::Overlay(Recordset::Bookmark row, const QString& field, const Value& value) {
  overlay_[field.toLower()].insert(row, value);
}

Recordset::Bookmark GridModel::BookmarkAt(int line) const {
  const int row = rows_.RowAt(line);
  if (row < 1 || !recordset_ || !recordset_->IsOpen()) return 0;
  const int position = rows_.PositionOfRow(row);
  return position <= recordset_->RecordCount() ? recordset_->BookmarkAt(position) : 0;
}

int GridModel::LineOf(Recordset::Bookmark bookmark) const {
  if (bookmark == 0 || !recordset_ || !recordset_->IsOpen()) return -1;
  return rows_.LineOfRow(rows_.RowOfPosition(recordset_->PositionOf(bookmark)));
}

Value GridModel::FieldValue(int line, const QString& field) const {
  if (IsPending(line)) {
    const auto typed = pending_.values.constFind(field.toLower());
    if (typed != pending_.values.constEnd()) return *typed;
  }
  const int row = rows_.RowAt(line);
  if (row < 1 || !recordset_ || !recordset_->IsOpen()) return {};
  const int position = rows_.PositionOfRow(row);
  if (position > recordset_->RecordCount()) return {};
  if (!overlay_.isEmpty()) {
    const auto shown = overlay_.constFind(field.toLower());
    const auto bookmark = recordset_->BookmarkAt(position);
    if (shown != overlay_.constEnd() && shown->contains(bookmark)) return shown->value(bookmark);
  }
  const int index = recordset_->FieldIndex(field);
  if (index < 0) return {};
  return recordset_->CellAt(position, index);
}

Value GridModel::CellValue(int line, int number) const {
  const GridColumn& column = Column(number);
  if (rows_.IsNewRow(line) &&
      !(IsPending(line) && pending_.values.contains(column.field.toLower()))) {
    return column.defaultValue;
  }
  return FieldValue(line, column.field);
}

QString GridModel::CellText(int line, int number) const {
  const GridColumn& column = Column(number);
  if (column.editor == CellEditor::Delete || rows_.RowAt(line) == 0) return {};
  const Value value = CellValue(line, number);
  const int item = column.values.IndexOf(value);
  const QString text = item >= 0 ? column.values.Items()[item].text : Format(value, column.picture);
  return column.fetchData && fetch.text ? fetch.text(rows_.RowAt(line), column.Key(), value, text)
                                        : text;
}

QString GridModel::EditText(int line, int number) const {
  const GridColumn& column = Column(number);
  const Value value = CellValue(line, number);
  if (column.editor == CellEditor::Combo && column.values.IndexOf(value) >= 0) {
    return CellText(line, number);
  }
  if (value.kind() == Value::Kind::Date) return Format(value, column.picture);
  const int field = recordset_ && recordset_->IsOpen() ? recordset_->FieldIndex(column.field) : -1;
  const bool single = field >= 0 && recordset_->Fields()[field].type == FieldType::Single;
  if (single && value.kind() == Value::Kind::Floating) return ShortestText(value);
  return value.ToText();
}

int GridModel::CellIcon(int line, int number) const {
  if (!Column(number).icon || rows_.RowAt(line) < 1) return 0;
  const int icon = fetch.icon ? fetch.icon(rows_.RowAt(line), Column(number).Key()) : 1;
  return icon >= 1 && icon <= icons_.size() ? icon : 0;
}

void GridModel::Touch(int line) {
  if (line < 0 || line >= rowCount()) return;
  Q_EMIT dataChanged(index(line, 0), index(line, columnCount() - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_.Lines();
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size()) + 1;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int line = index.row(), number = index.column();
  switch (role) {
    case Qt::DisplayRole:
      if (number == 0) return rows_.HeadingAt(line);
      if (Column(number).icon || Column(number).editor == CellEditor::CheckBox) return QString();
      return CellText(line, number);
    case Qt::EditRole:
      return number == 0 ? QVariant() : EditText(line, number);
    case Qt::AccessibleTextRole:
      return number == 0 ? LineText(line) : SpokenText(line, number);
    case Qt::TextAlignmentRole:
      return number == 0 ? QVariant() : QVariant(Column(number).alignment | Qt::AlignVCenter);
    default:
      return {};
  }
}

QString GridModel::SpokenText(int line, int number) const {
  const GridColumn& column = Column(number);
  if (rows_.RowAt(line) == 0) return rows_.HeadingAt(line);
  if (column.editor == CellEditor::Delete) return tr("Delete this row");
  if (column.editor == CellEditor::CheckBox) {
    return IsChecked(line, number) ? tr("checked") : tr("not checked");
  }
  if (!column.icon) return CellText(line, number);
  const int icon = CellIcon(line, number);
  return icon > 0 ? icons_[icon - 1].text : QString();
}

QString GridModel::LineText(int line) const {
  const int row = rows_.RowAt(line);
  if (row == 0) return rows_.HeadingAt(line);
  QStringList texts;
  if (row == -1) texts.append(tr("New record"));
  for (int number : VisibleColumns()) {
    const QString text = SpokenText(line, number);
    if (Column(number).editor == CellEditor::Delete || text.isEmpty()) continue;
    texts.append(SpokenCaption(number) + QLatin1Char(' ') + text);
  }
  return texts.join(QStringLiteral(", "));
}

QString GridModel::SpokenCaption(int number) const {
  const GridColumn& column = Column(number);
  if (!column.spokenCaption.isEmpty()) return column.spokenCaption;
  return column.caption.trimmed().isEmpty() ? column.Key() : column.caption.trimmed();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    const int row = rows_.RowAt(section);
    return row > 0 ? QString::number(row) : row < 0 ? tr("New record") : rows_.HeadingAt(section);
  }
  if (section == 0) return role == Qt::AccessibleTextRole ? QVariant(tr("Row")) : QVariant();
  if (section < 0 || section > columns_.size()) return {};
  if (role == Qt::DisplayRole) return Column(section).caption;
  if (role == Qt::AccessibleTextRole) return SpokenCaption(section);
  if (role == Qt::TextAlignmentRole) return QVariant(Column(section).alignment | Qt::AlignVCenter);
  return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  if (rows_.RowAt(index.row()) == 0) return Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (index.column() > 0 && mayEdit && mayEdit(index.row(), index.column())) {
    flags |= Qt::ItemIsEditable;
  }
  return flags;
}

}  // namespace tavrelin
