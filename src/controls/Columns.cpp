#include "controls/Columns.h"

#include "data/Recordset.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

GridColumn HiddenColumn(const QString& field) {
  return {.caption = field, .field = field, .visible = false};
}

GridColumn TextColumn(const QString& caption, const QString& field, int width, int maxLength) {
  return {.caption = caption, .field = field, .width = width, .maxLength = maxLength};
}

GridColumn NumberColumn(const QString& caption, const QString& field, int width) {
  return {.caption = caption,
          .field = field,
          .width = width,
          .editor = CellEditor::Number,
          .alignment = Qt::AlignRight,
          .sort = SortKind::Numeric};
}

GridColumn PercentColumn(const QString& caption, const QString& field, int width) {
  return NumberColumn(caption, field, width).Pictured(u"#0.00"_s);
}

GridColumn DateColumn(const QString& caption, const QString& field, int width) {
  return {.caption = caption,
          .field = field,
          .width = width,
          .editor = CellEditor::Date,
          .picture = u"mm/dd/yyyy"_s,
          .sort = SortKind::Date};
}

GridColumn DateTimeColumn(const QString& caption, const QString& field, int width) {
  GridColumn column = DateColumn(caption, field, width);
  column.editor = CellEditor::DateTime;
  return column.Pictured(u"mm/dd/yyyy h:mm AMPM"_s);
}

GridColumn CheckColumn(const QString& caption, const QString& field, int width) {
  return {.caption = caption, .field = field, .width = width, .editor = CellEditor::CheckBox};
}

GridColumn ListColumn(const QString& caption, const QString& field, int width,
                      const ValueList& values) {
  return {.caption = caption,
          .field = field,
          .width = width,
          .editor = CellEditor::List,
          .values = values};
}

GridColumn SanctionColumn(int width) {
  return {.caption = u"Sanction"_s,
          .field = u"SanctionID"_s,
          .width = width,
          .maxLength = 9,
          .picture = u"@@-@@-@@@"_s,
          .upperCase = true,
          .spokenCaption = u"Sanction number"_s};
}

GridColumn StateColumn(int width) {
  return ListColumn(u"St"_s, u"State"_s, width).Spoken(u"State"_s);
}

GridColumn NamesColumn(const QString& caption, const QString& field, int width) {
  return TextColumn(caption, field, width).Skipped().SortedBy(SortKind::Shown);
}

ValueList NamesIn(const Recordset& rows, const QString& codeField, const QString& textField) {
  const int code = rows.FieldIndex(codeField), text = rows.FieldIndex(textField);
  ValueList names;
  for (int position = 1; position <= rows.RecordCount(); ++position)
    names.Add(rows.CellAt(position, code), rows.CellAt(position, text).ToText());
  return names;
}

}  // namespace tavrelin
