#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "controls/GridEX.h"
#include "support/FakeSurroundings.h"

namespace tavrelin {

/// Five players of a club, in memory.
inline Recordset Players() {
  Recordset rows;
  rows.Append("PlayerID", FieldType::Text, 6);
  rows.Append("FirstName", FieldType::Text, 20);
  rows.Append("LastName", FieldType::Text, 25);
  rows.Append("MembershipType", FieldType::Text, 1);
  rows.Append("CardNumber", FieldType::Text, 6);
  rows.Append("BirthDate", FieldType::Date);
  rows.Append("Average", FieldType::Single);
  rows.Append("Active", FieldType::YesNo);
  rows.OpenInMemory();
  const auto add = [&rows](const char* id, const char* first, const char* last, const char* type,
                           const char* card, double average) {
    rows.AddNew();
    rows.Set("PlayerID", id);
    rows.Set("FirstName", first);
    rows.Set("LastName", last);
    rows.Set("MembershipType", type);
    rows.Set("CardNumber", card);
    rows.Set("Average", average);
    rows.Update();
  };
  add("ADAANN", "Ann", "Adams", "S", "900", 45.5);
  add("BAKBOB", "Bob", "Baker", "P", "1000", 33.335);
  add("CLACAL", "Cal", "Clark", "S", "80", 20);
  add("SMIJIM", "Jim", "Smith", "S", "", 60.25);
  add("SNOLEE", "Lee", "Snow", "L", "12", 0);
  rows.MoveFirst();
  return rows;
}

inline QList<GridColumn> PlayerColumns() {
  return {
      {.caption = "ID", .field = "PlayerID", .visible = false},
      {.caption = "First", .field = "FirstName", .maxLength = 20},
      {.caption = "Last", .field = "LastName", .width = 1200, .maxLength = 25},
      {.caption = "Type",
       .field = "MembershipType",
       .editor = CellEditor::List,
       .values = {{"S", "Standard"}, {"P", "Provisional"}, {"L", "Lifetime"}},
       .defaultValue = "S"},
      {.caption = "Card",
       .field = "CardNumber",
       .maxLength = 6,
       .sort = SortKind::Numeric,
       .upperCase = true},
      {.caption = "Birth Date",
       .field = "BirthDate",
       .width = 1140,
       .editor = CellEditor::Date,
       .picture = "mm/dd/yyyy",
       .sort = SortKind::Date},
      {.caption = "Rgr %",
       .field = "Average",
       .editor = CellEditor::Number,
       .picture = "#0.00",
       .alignment = Qt::AlignRight,
       .sort = SortKind::Numeric},
      {.caption = "Active", .field = "Active", .editor = CellEditor::CheckBox},
  };
}

/// A grid between two other fields of a window, driven by keys and clicks.
struct GridBench {
  explicit GridBench(Recordset recordset = Players(),
                     const QList<GridColumn>& columns = PlayerColumns())
      : rows(std::move(recordset)) {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(before = new QLineEdit);
    grid = new GridEX("GridEX1", "Players", Guard());
    layout->addWidget(grid, 1);
    layout->addWidget(after = new QLineEdit);
    grid->SetColumns(columns);
    grid->SetAllowAddNew(true);
    grid->SetAllowDelete(true);
    grid->SetRecordCounter(true);
    grid->SetEmptyText("Press Insert to enter the first player.");
    grid->SetRecordset(&rows);
    window.resize(1100, 500);
    window.show();
    QApplication::setActiveWindow(&window);
    grid->setFocus();
  }
  // Unbound while the recordset is still there.
  ~GridBench() { grid->SetRecordset(nullptr); }

  GridGuard Guard() {
    return [this](const char* procedure, const std::function<void()>& body) {
      return csError.Run(procedure, body);
    };
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void Type(const QString& text) {
    for (QChar character : text) {
      QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
  }
  QString Editor() const {
    for (auto* editor : window.findChildren<QLineEdit*>("CellEditor")) {
      if (editor->isVisible()) return editor->text();
    }
    return "(closed)";
  }
  /// A field of the recordset, by the row on show.
  QString Stored(int position, const QString& field) const {
    return rows.CellAt(position, rows.FieldIndex(field)).ToText();
  }
  /// All rows on show, by the text of one column.
  QString Column(const QString& key) const {
    QStringList texts;
    for (int row = 1; row <= grid->RowCount(); ++row) texts.append(grid->TextAt(row, key));
    return texts.join(' ');
  }
  QString Place() const { return QString("%1,%2").arg(grid->Row()).arg(grid->Col()); }
  void Shot(const QString& name) {
    const QString folder = qEnvironmentVariable("TAVRELIN_SHOTS");
    if (folder.isEmpty()) return;
    QApplication::processEvents();
    window.grab().save(QDir(folder).filePath(name + ".png"));
  }

  ErrorRecorder errors;
  CSError csError{errors.Display()};
  Recordset rows;
  QWidget window;
  QLineEdit *before, *after;
  GridEX* grid;
};

}  // namespace tavrelin
