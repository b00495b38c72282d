#pragma once

#include <QLineF>
#include <QList>

namespace tavrelin {

struct Document;

/// A rule of a page as pdftocairo finds it in the PDF, ends in twips. A box counts as four; strokes
/// that go on where another one ends are one rule.
struct PdfRule {
  QLineF line;
  double width = 0;  ///< twips
};

QList<PdfRule> PdfRules(const Document& document, int page = 1);

/// True when there is a rule between these two points, either way round, to within 2 twips.
bool HasRule(const QList<PdfRule>& rules, double x1, double y1, double x2, double y2);

}  // namespace tavrelin
