#include "print/Cell.h"

#include <cmath>

#include "basic/Picture.h"
#include "basic/ScoreTexts.h"
#include "print/OutputTarget.h"

namespace tavrelin {

Cell TextCell(const QString& text) {
  return {text};
}

Cell NameCell(const QString& name) {
  return {name, 0, true};
}

Cell NumberCell(const Value& number, const QString& picture) {
  return {Format(number, picture), static_cast<int>(picture.size())};
}

Cell HalfWinCell(double games, const QString& wholePicture) {
  const QString text = HalfWinText(games);
  const auto width = static_cast<int>(wholePicture.size());
  return {text, text.contains(u'.') ? width + 2 : width};
}

Cell OverAverageCell(double figure) {
  return {OverAverageText(figure), static_cast<int>(OverAverageText(std::abs(figure)).size())};
}

int CellX(int base, const Cell& cell, int step) {
  if (cell.width == 0) return base;
  return base + (cell.width - static_cast<int>(cell.text.size())) * step;
}

QString Padded(const Cell& cell) {
  return cell.text.rightJustified(cell.width);
}

void PrintCell(OutputTarget& target, int base, const Cell& cell, int step) {
  target.PrintAt(CellX(base, cell, step), cell.text);
}

}  // namespace tavrelin
