#include "play/ResultsText.h"

#include <algorithm>

#include "basic/Error.h"
#include "basic/TextFile.h"
#include "play/BoxColumns.h"
#include "play/ClassResults.h"
#include "play/StandingColumns.h"

namespace tavrelin {
namespace {

QString Blanks(int count) {
  return QString(count, u' ');
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

QString DoublesBlockText(const BoxScore& block) {
  const BoxLayout& layout = DoublesBox();
  const QList<TextForm> forms = TextFormsOf(layout);
  QString text = QStringLiteral("\n%1. ").arg(block.place) + BoxTitle(block) + u'\n';
  text += TextHeadings(forms);
  for (const BoxLine& line : block.lines) text += TextRow(forms, GameCells(layout, line));
  if (block.lines.isEmpty()) return text;
  text += Blanks(45) + QString(45, u'-') + u'\n';
  return text + TextRow(forms, TotalCells(layout, block));
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
  if (choice.standings) text += StandingsTable(results, choice).Text(results.standings);
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

Refusal WriteResults(const QString& path, const QString& file, const QString& text) {
  try {
    WriteTextFile(path.trimmed() + file.trimmed(), text);
  } catch (const Error& error) {
    return {QStringLiteral("Unable to open file. ") + error.description() + HintAt(file)};
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
