#include "play/ResultsText.h"

#include <algorithm>
#include <array>

#include "basic/Error.h"
#include "basic/Picture.h"
#include "basic/ScoreTexts.h"
#include "basic/TextFile.h"
#include "play/BoxColumns.h"
#include "play/ClassResults.h"
#include "play/StandingColumns.h"

namespace tavrelin {
namespace {

using Figure = StandingFigure;

QString Blanks(int count) {
  return QString(count, u' ');
}

/// A column of the standings in a text file: what leads it and what follows it.
struct TextColumn {
  QString heading;
  QString dashes;
  Figure figure;
  QString picture;  ///< of a text or the place; empty: the figure's own
  int blanks = 0;   ///< behind the cell
};

const QList<TextColumn>& BriefText() {
  static const QList<TextColumn> columns = {
      {"Pos    ", "---  ", Figure::Place, "###", 0},
      {" Name                       ", "----------------------      ", Figure::Name,
       "!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@  ", 0},
      {"Entry %    ", "--------     ", Figure::EntryAverage, {}, 5},
      {"St     ", "--     ", Figure::State, "!@@@@  ", 0},
      {"Won     ", "----    ", Figure::Won, {}, 4},
      {"Lost    ", "----    ", Figure::Lost, {}, 3},
      {"Pts     ", "---     ", Figure::Points, {}, 4},
      {"Rgrs      ", "----     ", Figure::Ringers, {}, 3},
      {"Sh      ", "---    ", Figure::Shoes, {}, 4},
      {"R%", "-----", Figure::Percent, {}, 0},
  };
  return columns;
}

const QList<TextColumn>& SinglesText() {
  static const QList<TextColumn> columns = {
      {"Pos   ", "---   ", Figure::Place, "##", 0},
      {" Name                    ", " ------------------      ", Figure::Name,
       "!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@", 0},
      {"Entry %   ", "-------   ", Figure::EntryAverage, {}, 3},
      {"Hcp  ", "---  ", Figure::Handicap, {}, 2},
      {"Card#  ", "-----  ", Figure::Card, "!@@@@@@   ", 0},
      {" St  ", " --  ", Figure::State, "!@@  ", 0},
      {"Won  ", "---  ", Figure::Won, {}, 1},
      {"Lost   ", "----   ", Figure::Lost, {}, 1},
      {"Pts  ", "---  ", Figure::Points, {}, 1},
      {"Rgrs ", "---- ", Figure::Ringers, {}, 1},
      {"HToH  ", "----  ", Figure::HeadToHead, {}, 1},
      {"OvrAvg   ", "-------  ", Figure::OverAverage, {}, 1},
      {"Sh   ", "--   ", Figure::Shoes, "##0", 2},
      {"R%", "--", Figure::Percent, {}, 0},
  };
  return columns;
}

const QList<TextColumn>& DoublesText() {
  static const QList<TextColumn> columns = {
      {"Pos   ", "---   ", Figure::Place, "##", 0},
      {"Team                             ", "------------------------         ", Figure::Name,
       "!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@", 0},
      {"Entry %  ", "------   ", Figure::EntryAverage, {}, 3},
      {"Hcp   ", "---   ", Figure::Handicap, {}, 2},
      {"Won  ", "---  ", Figure::Won, {}, 1},
      {"Lost   ", "----   ", Figure::Lost, {}, 1},
      {"Pts  ", "---  ", Figure::Points, {}, 1},
      {"Rgrs ", "---- ", Figure::Ringers, {}, 1},
      {"HToH  ", "----  ", Figure::HeadToHead, {}, 1},
      {"OvrAvg   ", "------   ", Figure::OverAverage, {}, 1},
      {"Sh   ", "--   ", Figure::Shoes, "##0", 2},
      {"R%", "--", Figure::Percent, {}, 0},
  };
  return columns;
}

/// "3  " or "3.5" in four characters: the point of a half win stands in one column.
QString HalfWinField(double games) {
  const QString text = HalfWinText(games);
  return (text.contains(u'.') ? text : text + QStringLiteral("  ")).rightJustified(4);
}

/// "1.25 " or "1.25-": decimal points in one column.
QString OverAverageField(double figure) {
  const QString text = OverAverageText(figure);
  return (figure < 0 ? text : text + u' ').rightJustified(6);
}

/// A text longer than its picture pushes the line along; it stays apart from the next figure.
QString Apart(const QString& text) {
  return text.endsWith(u' ') ? text : text + u' ';
}

QString TextField(const StandingLine& line, const TextColumn& column) {
  const Cell cell = StandingCell(line, column.figure);
  switch (column.figure) {
    case Figure::Place:
      return Padded(NumberCell(line.place, column.picture)) + QStringLiteral(". ");
    case Figure::Name:
    case Figure::Card:
    case Figure::State:
      return Apart(Format(cell.text, column.picture));
    case Figure::Won:
      return HalfWinField(line.won);
    case Figure::Lost:
      return HalfWinField(line.loss);
    case Figure::OverAverage:
      return OverAverageField(line.overAverage);
    case Figure::HeadToHead:
      return u' ' + cell.text;
    default:
      return Padded(column.picture.isEmpty() ? cell : NumberCell(cell.text, column.picture));
  }
}

QString StandingsText(const QList<TextColumn>& columns, const QList<StandingLine>& lines) {
  QString heading, dashes, rows;
  for (const TextColumn& column : columns) {
    heading += column.heading;
    dashes += column.dashes;
  }
  for (const StandingLine& line : lines) {
    for (const TextColumn& column : columns) {
      rows += TextField(line, column) + Blanks(column.blanks);
    }
    rows += u'\n';
  }
  return heading + u'\n' + dashes + u'\n' + rows;
}

// ---- box scores of a singles class: a table of twelve rows with two blocks each

constexpr int TableRows = 12;
constexpr int TableColumns = 2;
constexpr int TableGames = 24;
constexpr int BlockWidth = 58;  // of the left block: the sum of its headings
constexpr int HeadWidth = BlockWidth - 20;
constexpr int LongestHead = BlockWidth - 2;

/// The two blocks of a row; the right one is null when the class has no more entrants.
struct BlockPair {
  const BoxScore* left = nullptr;
  const BoxScore* right = nullptr;

  template <typename Text>
  QString Line(Text text) const {
    const QString line = text(*left).leftJustified(BlockWidth);
    return right ? line + text(*right) + u'\n' : line + u'\n';
  }
};

/// A name too long for its block is cut, and what was won and lost behind it stays.
QString BlockHead(const BoxScore& block) {
  const QString place = QStringLiteral("%1. ").arg(block.place);
  BoxScore fitting = block;
  fitting.name.truncate(
      fitting.name.size() -
      std::max<qsizetype>(place.size() + BoxTitle(block).size() - LongestHead, 0));
  return (place + BoxTitle(fitting)).leftJustified(HeadWidth);
}

QString GameText(const BoxScore& block, qsizetype game) {
  if (game >= block.lines.size()) return {};
  const BoxLine& line = block.lines[game];
  const BoxFigures& own = line.own;
  const QString score = QStringLiteral("%1/%2").arg(own.points).arg(line.opposingPoints);
  return Padded(NumberCell(static_cast<int>(game) + 1, QStringLiteral("###"))) +
         QStringLiteral(". ") + line.opponent.leftJustified(21, u' ', true) + u' ' +
         line.forfeitMark.leftJustified(3) + score.leftJustified(7) +
         Padded(NumberCell(own.ringers.value(0), QStringLiteral("##0"))) + Blanks(3) +
         Padded(NumberCell(own.shoes, QStringLiteral("##0"))) + Blanks(3) +
         Padded(NumberCell(own.percents.value(0), QStringLiteral("##0.00")));
}

QString TotalsText(const BoxScore& block) {
  const BoxFigures& all = block.played;
  const QString four = QStringLiteral("###0");
  return Blanks(30) + Padded(NumberCell(all.points, four)) + Blanks(2) +
         Padded(NumberCell(all.ringers.value(0), four)) + Blanks(2) +
         Padded(NumberCell(all.shoes, four)) + Blanks(4) +
         Padded(NumberCell(all.percents.value(0), QStringLiteral("#0.00")));
}

QString PairText(const BlockPair& pair) {
  const auto all = [](const QString& text) { return [text](const BoxScore&) { return text; }; };
  QString text = u'\n' + pair.Line(BlockHead);
  text += pair.Line(all(QStringLiteral("     Opponent                 Score  Rgrs  Shs   %")));
  text += pair.Line(all(QStringLiteral("     --------                 -----  ----  ---  ---")));
  for (qsizetype game = 0; game < pair.left->lines.size(); ++game) {
    text += pair.Line([game](const BoxScore& block) { return GameText(block, game); });
  }
  text += pair.Line(all(Blanks(30) + QString(22, u'-')));
  return text + pair.Line(TotalsText);
}

void CheckTable(const QList<BoxScore>& blocks) {
  bool tooLarge = blocks.size() > TableRows * TableColumns;
  for (const BoxScore& block : blocks) tooLarge = tooLarge || block.lines.size() > TableGames;
  if (!tooLarge) return;
  throw Error(errors::Subscript,
              QStringLiteral("Subscript out of range: the text file has room for the box scores of "
                             "%1 entrants with %2 games each")
                  .arg(TableRows * TableColumns)
                  .arg(TableGames));
}

QString SinglesBoxText(const QList<BoxScore>& blocks) {
  CheckTable(blocks);
  QString text;
  for (qsizetype i = 0; i < blocks.size(); i += TableColumns) {
    text += PairText({&blocks[i], i + 1 < blocks.size() ? &blocks[i + 1] : nullptr});
  }
  return text;
}

// ---- box scores of a doubles class: one block below the other

/// Characters from one column of the doubles block to the next, by the columns of its sheet.
constexpr std::array<int, 7> DoublesWidths = {40, 10, 6, 8, 9, 8, 6};

/// A line of the block, a cell a column.
template <typename CellOf>
QString DoublesLine(CellOf cellOf) {
  const QList<BoxColumn>& columns = DoublesBox().columns;
  QString text = Blanks(5);
  for (qsizetype i = 0; i < columns.size(); ++i) {
    text += cellOf(columns[i]).leftJustified(DoublesWidths[static_cast<size_t>(i)]);
  }
  while (text.endsWith(u' ')) text.chop(1);
  return text + u'\n';
}

QString DoublesBlockText(const BoxScore& block) {
  QString text = QStringLiteral("\n%1. ").arg(block.place) + BoxTitle(block) + u'\n';
  text += DoublesLine([](const BoxColumn& column) { return column.place.heading; });
  text += DoublesLine(
      [](const BoxColumn& column) { return QString(column.place.heading.size(), u'-'); });
  for (const BoxLine& line : block.lines) {
    text += DoublesLine([&](const BoxColumn& column) { return Padded(BoxCell(line, column)); });
  }
  if (block.lines.isEmpty()) return text;
  text += Blanks(45) + QString(45, u'-') + u'\n';
  return text +
         DoublesLine([&](const BoxColumn& column) { return Padded(BoxTotalCell(block, column)); });
}

QString DoublesBoxText(const QList<BoxScore>& blocks) {
  QString text;
  for (const BoxScore& block : blocks) text += DoublesBlockText(block);
  return text;
}

}  // namespace

QString ExportTheClass(const ClassResults& results, const ResultsChoice& choice) {
  const QString blanks = Blanks(4);
  QString text = results.tournament + blanks + results.className + blanks + QStringLiteral("\n\n");
  if (choice.standings) {
    const auto& columns = results.doubles ? DoublesText()
                          : choice.brief  ? BriefText()
                                          : SinglesText();
    text += StandingsText(columns, results.standings);
  }
  if (choice.boxScores) {
    text += results.doubles ? DoublesBoxText(results.boxScores) : SinglesBoxText(results.boxScores);
  }
  return text;
}

namespace {

/// A name taken from a tournament or a class called "Spring/Fall" is no name of a file.
QString HintAt(const QString& file) {
  if (!file.contains(u'/')) return {};
  return QStringLiteral(" (the \"/\" in the file name stands for a folder)");
}

}  // namespace

QString WriteResults(const QString& path, const QString& file, const QString& text) {
  try {
    WriteTextFile(path.trimmed() + file.trimmed(), text);
  } catch (const Error& error) {
    return QStringLiteral("Unable to open file. ") + error.description() + HintAt(file);
  }
  return {};
}

QString ResultsFile(const QString& about) {
  return QString(about).remove(u' ') + QStringLiteral(".txt");
}

QString ResultsFolder(const QString& path, bool doubles) {
  const QString folder = path.trimmed();
  return doubles || folder.endsWith(u'\\') ? folder : folder + u'\\';
}

}  // namespace tavrelin
