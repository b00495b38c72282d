#include "controls/GridColumn.h"

#include "basic/Picture.h"

namespace tavrelin {

namespace {

QString Lookup(const QString& text) {
  return text.trimmed().toUpper();
}

}  // namespace

ValueList::ValueList(std::initializer_list<ValueItem> items) {
  for (const ValueItem& item : items) Add(item.code, item.text);
}

ValueList::ValueList(const QList<CodeText>& choices) {
  for (const CodeText& choice : choices) Add(choice.code, choice.text);
}

void ValueList::Add(const Value& code, const QString& text) {
  const QString key = Lookup(code.ToText());
  if (!byCode_.contains(key)) byCode_.insert(key, static_cast<int>(items_.size()));
  items_.append({code, text});
}

void ValueList::Clear() {
  items_.clear();
  byCode_.clear();
}

int ValueList::IndexOf(const Value& code) const {
  return byCode_.isEmpty() ? -1 : byCode_.value(Lookup(code.ToText()), -1);
}

int ValueList::IndexOfText(const QString& text) const {
  const QString wanted = Lookup(text);
  for (int i = 0; i < items_.size(); ++i) {
    if (Lookup(items_[i].text) == wanted) return i;
  }
  return -1;
}

GridColumn& GridColumn::Keyed(const QString& name) {
  key = name;
  return *this;
}

GridColumn& GridColumn::Spoken(const QString& words) {
  spokenCaption = words;
  return *this;
}

GridColumn& GridColumn::Pictured(const QString& pattern) {
  picture = pattern;
  return *this;
}

GridColumn& GridColumn::Placed(int place) {
  position = place;
  return *this;
}

GridColumn& GridColumn::SortedBy(SortKind kind) {
  sort = kind;
  return *this;
}

GridColumn& GridColumn::Defaulted(const Value& value) {
  defaultValue = value;
  return *this;
}

GridColumn& GridColumn::Filling() {
  fill = true;
  return *this;
}

GridColumn& GridColumn::Compacted() {
  compact = true;
  return *this;
}

GridColumn& GridColumn::UpperCased() {
  upperCase = true;
  return *this;
}

GridColumn& GridColumn::Skipped() {
  selectable = false;
  return *this;
}

GridColumn& GridColumn::ReadOnly() {
  editable = false;
  return *this;
}

QString WidestText(const GridColumn& column) {
  const QString& picture = column.picture;
  if (picture.isEmpty()) return {};
  const bool date = column.editor == CellEditor::Date || column.editor == CellEditor::DateTime;
  if (date) return Format(QDateTime(QDate(2000, 12, 30), QTime(12, 58)), picture);
  QString widest = picture;
  return widest.replace(u'#', u'0').replace(u'@', u'M');
}

}  // namespace tavrelin
