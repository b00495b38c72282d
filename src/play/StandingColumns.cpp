#include "play/StandingColumns.h"

#include "print/Fonts.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

using Column = ReportColumn<StandingLine>;
using Table = ReportTable<StandingLine>;

const QString Whole = u"#0"_s;
const QString Four = u"###0"_s;
const QString Hundredths = u"#0.00"_s;

TableForm Lines() {
  TableForm form;
  form.size = 11;
  form.rowHeight = LineHeight({.size = form.size});
  return form;
}

Cell Place(const StandingLine& line) {
  return TextCell(u"%1."_s.arg(line.place));
}

Cell HeadToHead(const StandingLine& line) {
  return TextCell(QString::number(line.headToHead));
}

Cell OverAverage(const StandingLine& line) {
  return OverAverageCell(line.overAverage);
}

// The standings' own ways of writing a cell in a text file.

/// "3  " or "3.5": the point of a half win stands in one column.
QString HalfWinField(const Cell& cell) {
  return (cell.text.contains(u'.') ? cell.text : cell.text + u"  "_s).rightJustified(4);
}

/// "1.25 " or "1.25-": decimal points in one column.
QString OverAverageField(const Cell& cell) {
  return (cell.text.endsWith(u'-') ? cell.text : cell.text + u' ').rightJustified(6);
}

QString AfterBlank(const Cell& cell) {
  return u' ' + cell.text;
}

Column PlaceColumn(int x, const TextForm& text) {
  return {{u"Pos"_s, x, x}, Place, text};
}

Column WonColumn(int headingX, int cellX, const TextForm& text) {
  return {{u"Won"_s, headingX, cellX}, HalfWinsOf(&StandingLine::won), text};
}

Column LostColumn(int headingX, int cellX, const TextForm& text) {
  return {{u"Lost"_s, headingX, cellX}, HalfWinsOf(&StandingLine::loss), text};
}

Table MakeBrief() {
  return Table({PlaceColumn(200, {u"Pos    "_s, u"---  "_s, EndingAt(4, u" "_s)}),
                {{u"Name"_s, 800, 500},
                 NameOf(&StandingLine::name),
                 {u" Name                       "_s, u"----------------------      "_s,
                  Through(u"!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@  "_s)}},
                {{u"Entry Avg"_s, 3100, 3400},
                 FigureOf(&StandingLine::entryAverage, Hundredths),
                 {u"Entry %    "_s, u"--------     "_s, Padded, 5}},
                {{u"Div"_s, 4300, 4400}, TextOf(&StandingLine::category)},
                {{u"St"_s, 4900, 4900},
                 TextOf(&StandingLine::state),
                 {u"St     "_s, u"--     "_s, Through(u"!@@@@  "_s)}},
                WonColumn(5700, 5700, {u"Won     "_s, u"----    "_s, HalfWinField, 4}),
                LostColumn(6600, 6600, {u"Lost    "_s, u"----    "_s, HalfWinField, 3}),
                {{u"Pts"_s, 7600, 7500},
                 FigureOf(&StandingLine::points, Four),
                 {u"Pts     "_s, u"---     "_s, Padded, 4}},
                {{u"Rgrs"_s, 8500, 8400},
                 FigureOf(&StandingLine::ringers, Four),
                 {u"Rgrs      "_s, u"----     "_s, Padded, 3}},
                {{u"Sh"_s, 9400, 9300},
                 FigureOf(&StandingLine::shoes, Four),
                 {u"Sh      "_s, u"---    "_s, Padded, 4}},
                {{u"R%"_s, 10300, 10200},
                 FigureOf(&StandingLine::percent, Hundredths),
                 {u"R%"_s, u"-----"_s}}},
               Lines());
}

/// The columns at the end of the full standings, which singles and doubles have in common.
QList<Column> LastColumns(int pointsX, int ringersX, const QString& dashesOfOverAverage) {
  return {
      {{u"Pts"_s, 7350, pointsX},
       FigureOf(&StandingLine::points, Four),
       {u"Pts  "_s, u"---  "_s, Padded, 1}},
      {{u"Rgrs"_s, 8000, ringersX},
       FigureOf(&StandingLine::ringers, Four),
       {u"Rgrs "_s, u"---- "_s, Padded, 1}},
      {{u"HtH"_s, 8650, 8700}, HeadToHead, {u"HToH  "_s, u"----  "_s, AfterBlank, 1}},
      {{u"Ovr%"_s, 9200, 9150},
       OverAverage,
       {u"OvrAvg   "_s, dashesOfOverAverage, OverAverageField, 1}},
      {{u"Sh"_s, 10000, 9800},
       FigureOf(&StandingLine::shoes, Four),
       {u"Sh   "_s, u"--   "_s, EndingAt(3), 2}},
      {{u"R%"_s, 10700, 10600}, FigureOf(&StandingLine::percent, Hundredths), {u"R%"_s, u"--"_s}}};
}

Table MakeSingles() {
  const QList<Column> columns = {
      PlaceColumn(200, {u"Pos   "_s, u"---   "_s, EndingAt(3, u" "_s)}),
      {{u"Name"_s, 800, 500},
       NameOf(&StandingLine::name),
       {u" Name                    "_s, u" ------------------      "_s,
        Through(u"!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@"_s)}},
      {{u"Entry %"_s, 3250, 3450},
       FigureOf(&StandingLine::entryAverage, Hundredths),
       {u"Entry %   "_s, u"-------   "_s, Padded, 3}},
      {{u"Hcp"_s, 4150, 4150},
       FigureOf(&StandingLine::handicap, Whole),
       {u"Hcp  "_s, u"---  "_s, Padded, 2}},
      {{u"Card#"_s, 4750, 4650},
       TextOf(&StandingLine::card),
       {u"Card#  "_s, u"-----  "_s, Through(u"!@@@@@@   "_s)}},
      {{u"St"_s, 5600, 5600},
       TextOf(&StandingLine::state),
       {u" St  "_s, u" --  "_s, Through(u"!@@  "_s)}},
      WonColumn(6150, 6150, {u"Won  "_s, u"---  "_s, HalfWinField, 1}),
      LostColumn(6700, 6700, {u"Lost   "_s, u"----   "_s, HalfWinField, 1})};
  return Table(columns + LastColumns(7250, 8000, u"-------  "_s), Lines());
}

Table MakeDoubles() {
  const QList<Column> columns = {
      PlaceColumn(700, {u"Pos   "_s, u"---   "_s, EndingAt(3, u" "_s)}),
      {{u"Team"_s, 1300, 1200},
       NameOf(&StandingLine::name),
       {u"Team                             "_s, u"------------------------         "_s,
        Through(u"!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@"_s)}},
      {{u"Entry %"_s, 4600, 4800},
       FigureOf(&StandingLine::entryAverage, Hundredths),
       {u"Entry %  "_s, u"------   "_s, Padded, 3}},
      {{u"Hcp"_s, 5500, 5600},
       FigureOf(&StandingLine::handicap, Whole),
       {u"Hcp   "_s, u"---   "_s, Padded, 2}},
      WonColumn(6150, 6200, {u"Won  "_s, u"---  "_s, HalfWinField, 1}),
      LostColumn(6700, 6700, {u"Lost   "_s, u"----   "_s, HalfWinField, 1})};
  return Table(columns + LastColumns(7200, 7950, u"------   "_s), Lines());
}

}  // namespace

const ReportTable<StandingLine>& StandingsTable(const ClassResults& results,
                                                const ResultsChoice& choice) {
  static const Table singles = MakeSingles();
  static const Table brief = MakeBrief();
  static const Table doubles = MakeDoubles();
  if (results.doubles) return doubles;
  return choice.brief ? brief : singles;
}

}  // namespace tavrelin
