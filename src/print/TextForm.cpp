#include "print/TextForm.h"

#include <algorithm>

#include "basic/Picture.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

QString Blanks(qsizetype count) {
  return QString(std::max<qsizetype>(count, 0), u' ');
}

QString Apart(const QString& text) {
  return text.endsWith(u' ') ? text : text + u' ';
}

/// The line, ready for a column that begins at a tab stop. What reaches beyond the stop stays
/// apart.
QString AtTab(const QString& line, int tab) {
  if (tab == 0) return line;
  return line.size() < tab ? line.leftJustified(tab - 1) : Apart(line);
}

/// The lines of a heading, blank lines first where other columns have more, all of one width.
QStringList HeadingLines(const QString& heading, qsizetype count) {
  QStringList lines = heading.split(u'\n');
  while (lines.size() < count) lines.prepend({});
  qsizetype width = 0;
  for (const QString& line : lines) width = std::max(width, line.size());
  for (QString& line : lines) line = line.leftJustified(width);
  return lines;
}

}  // namespace

TextForm LeftText(const QString& heading, int width) {
  const QString picture = u'!' + QString(width, u'@') + u"  "_s;
  return {heading.leftJustified(width + 2), QString(heading.size(), u'-').leftJustified(width + 2),
          Through(picture)};
}

TextForm RightText(const QString& heading, int width) {
  const QString after = Blanks(2);
  return {heading.rightJustified(width) + after,
          QString(heading.size(), u'-').rightJustified(width) + after, EndingAt(width, after)};
}

std::function<QString(const Cell&)> Through(const QString& picture) {
  return [picture](const Cell& cell) { return Apart(Format(cell.text, picture)); };
}

std::function<QString(const Cell&)> EndingAt(int width, const QString& after) {
  return [width, after](const Cell& cell) { return cell.text.rightJustified(width) + after; };
}

QString TextHeadings(const QList<TextForm>& columns) {
  qsizetype count = 1;
  for (const TextForm& column : columns) {
    count = std::max(count, column.heading.count(u'\n') + 1);
  }
  QStringList lines(count + 1);
  for (const TextForm& column : columns) {
    if (column.IsLeftOut()) continue;
    const QStringList parts = HeadingLines(column.heading, count) << column.dashes;
    for (qsizetype i = 0; i <= count; ++i) lines[i] = AtTab(lines[i], column.tab) + parts[i];
  }
  return lines.join(u'\n') + u'\n';
}

QString TextRow(const QList<TextForm>& columns, const QList<Cell>& cells) {
  QString line;
  const qsizetype count = std::min(columns.size(), cells.size());
  for (qsizetype i = 0; i < count; ++i) {
    if (columns[i].IsLeftOut()) continue;
    line = AtTab(line, columns[i].tab) + columns[i].cell(cells[i]) + Blanks(columns[i].blanks);
  }
  return line + u'\n';
}

}  // namespace tavrelin
