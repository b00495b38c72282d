#pragma once

#include <functional>
#include <optional>
#include <QList>
#include <QString>

#include "print/Cell.h"
#include "print/ReportPages.h"
#include "print/RuledTable.h"
#include "print/TextForm.h"

namespace tavrelin {

// A report is a list of columns and the rows that a rule returned. The columns say what each row
// shows and where, on paper and in a text file; ReportPages says where the pages break.

/// Where a column's X is.
enum class Align {
  Count,      ///< its left edge; figures move right by the character (see Cell)
  RightEdge,  ///< its right edge, at which its texts end
};

/// Where a column stands on paper. X are twips from the left edge of the table.
struct ColumnPlace {
  QString heading;  ///< one to three lines, "\n" between them, the last one lowest
  int headingX = 0;
  int cellX = 0;
  Align align = Align::Count;
};

/// What a row shows in a column.
template <class Row>
using CellOf = std::function<Cell(const Row&)>;

/// A column of a report. Without `cell` it has a heading alone, to be filled in by hand.
template <class Row>
struct ReportColumn {
  ColumnPlace place;
  CellOf<Row> cell = {};
  TextForm text = {};
};

/// The usual cells, of a field of the row: a short text; a text that is made smaller where the
/// column is too narrow; a number through a picture; wins or losses.
template <class Row>
CellOf<Row> TextOf(QString Row::*field) {
  return [field](const Row& row) { return TextCell(row.*field); };
}
template <class Row>
CellOf<Row> NameOf(QString Row::*field) {
  return [field](const Row& row) { return NameCell(row.*field); };
}
template <class Row, class Number>
CellOf<Row> FigureOf(Number Row::*field, const QString& picture) {
  return [field, picture](const Row& row) { return NumberCell(row.*field, picture); };
}
template <class Row>
CellOf<Row> HalfWinsOf(double Row::*field) {
  return [field](const Row& row) { return HalfWinCell(row.*field); };
}

/// The measures of a table. Twips; Y from the table's top.
struct TableForm {
  int headHeight = 300;    ///< from the top to the first row
  int headingsDrop = 0;    ///< from the top to the last line of the headings
  int headingStep = 200;   ///< from one line of a heading to the next
  int rowHeight = 250;     ///< from row to row
  int textDrop = 0;        ///< from the top of a row to its text
  int figureStep = 125;    ///< what a figure moves right for each character that it lacks
  double size = 10;        ///< points
  bool underlined = true;  ///< the headings
  bool bold = false;       ///< the headings
  std::optional<Ruling> ruling = {};
};

/// The headings, the last line of them at `y`, all of them moved right by `left`.
void PrintHeadings(OutputTarget& target, const QList<ColumnPlace>& places, const TableForm& form,
                   int left, int y);
/// One row of cells, a cell a column. A text that shrinks has the room up to the next vertical, or
/// up to the next column that is not empty.
void PrintCells(OutputTarget& target, const QList<ColumnPlace>& places, const TableForm& form,
                const QList<Cell>& cells, int left, int y);

/// What stands over a group of rows, once; Y of its lines from where the group begins.
struct GroupHead {
  QList<HeadLine> lines = {};
  int height = 0;  ///< from there to the headings of the columns
  int needed = 0;  ///< the room that the group wants on its page, where its head and one row is not
                   ///< enough
};

/// The half of a table that does not know what its rows are.
class TablePrinter {
 public:
  TablePrinter(const QList<ColumnPlace>& places, const TableForm& form)
      : places_(places), form_(form) {}

  /// Makes room for the group, prints its head and the headings.
  void Open(ReportPages& pages, const GroupHead& head) const;
  /// A row; where it begins a page or a column, the headings come first.
  void Add(ReportPages& pages, const QList<Cell>& cells) const;

  const TableForm& Form() const { return form_; }

 private:
  void PrintHead(ReportPages& pages) const;

  QList<ColumnPlace> places_;
  TableForm form_;
};

/// A table of a report: prints itself on pages, and writes itself as text.
template <class Row>
class ReportTable {
 public:
  ReportTable(const QList<ReportColumn<Row>>& columns, const TableForm& form)
      : columns_(columns), printer_(PlacesOf(columns), form) {}

  /// Prints the rows from where the pages have come to. Without rows it prints the headings.
  void Print(ReportPages& pages, const QList<Row>& rows, const GroupHead& head = {}) const {
    printer_.Open(pages, head);
    for (const Row& row : rows) printer_.Add(pages, CellsOf(row));
  }

  /// Headings, dashes and rows, each a line that ends in "\n".
  QString Text(const QList<Row>& rows) const {
    QList<TextForm> forms;
    for (const ReportColumn<Row>& column : columns_) forms << column.text;
    QString text = TextHeadings(forms);
    for (const Row& row : rows) text += TextRow(forms, CellsOf(row));
    return text;
  }

  QList<Cell> CellsOf(const Row& row) const {
    QList<Cell> cells;
    for (const ReportColumn<Row>& column : columns_) {
      cells << (column.cell ? column.cell(row) : Cell());
    }
    return cells;
  }

 private:
  static QList<ColumnPlace> PlacesOf(const QList<ReportColumn<Row>>& columns) {
    QList<ColumnPlace> places;
    for (const ReportColumn<Row>& column : columns) places << column.place;
    return places;
  }

  QList<ReportColumn<Row>> columns_;
  TablePrinter printer_;
};

}  // namespace tavrelin
