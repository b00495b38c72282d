#include "play/PdfRules.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include <QPolygonF>
#include <QRegularExpression>
#include <QTransform>
#include <QXmlStreamReader>

#include "print/PdfFile.h"
#include "support/PdfPages.h"

namespace tavrelin {
namespace {

constexpr double TwipsPerPoint = 20;
constexpr double Near = 2;

QList<double> NumbersIn(QStringView text) {
  static const QRegularExpression number(QStringLiteral("-?[0-9.]+"));
  QList<double> numbers;
  auto match = number.globalMatch(text.toString());
  while (match.hasNext()) numbers << match.next().captured().toDouble();
  return numbers;
}

/// The path's points; a closed path ends where it began.
QPolygonF Points(const QString& path, const QTransform& place) {
  const QString first = path.section(u'M', 1, 1);
  const QList<double> numbers = NumbersIn(first);
  QPolygonF points;
  for (qsizetype i = 0; i + 1 < numbers.size(); i += 2) {
    points << place.map(QPointF(numbers[i], numbers[i + 1]));
  }
  if (first.contains(u'Z')) points << points.first();
  return points;
}

QTransform Placement(QStringView matrix) {
  const QList<double> m = NumbersIn(matrix);
  const QTransform toTwips = QTransform::fromScale(TwipsPerPoint, TwipsPerPoint);
  return m.size() == 6 ? QTransform(m[0], m[1], m[2], m[3], m[4], m[5]) * toTwips : toTwips;
}

double StrokeWidth(QStringView style) {
  static const QRegularExpression width(QStringLiteral("stroke-width:([0-9.]+)"));
  return width.match(style.toString()).captured(1).toDouble();
}

bool Close(const QPointF& a, double x, double y) {
  return std::abs(a.x() - x) <= Near && std::abs(a.y() - y) <= Near;
}

bool IsUpright(const PdfRule& rule) {
  return std::abs(rule.line.dx()) <= Near;
}

/// Where a rule lies across its own direction, and where it begins and ends along it.
double AcrossOf(const PdfRule& rule) {
  return IsUpright(rule) ? rule.line.x1() : rule.line.y1();
}

std::pair<double, double> SpanOf(const PdfRule& rule) {
  const bool upright = IsUpright(rule);
  const double a = upright ? rule.line.y1() : rule.line.x1();
  const double b = upright ? rule.line.y2() : rule.line.x2();
  return std::minmax(a, b);
}

bool GoesOn(const PdfRule& rule, const PdfRule& next) {
  return IsUpright(rule) == IsUpright(next) && std::abs(rule.width - next.width) < 1 &&
         std::abs(AcrossOf(rule) - AcrossOf(next)) <= Near &&
         SpanOf(next).first <= SpanOf(rule).second + Near;
}

QList<PdfRule> Joined(QList<PdfRule> strokes) {
  std::sort(strokes.begin(), strokes.end(), [](const PdfRule& a, const PdfRule& b) {
    const auto key = [](const PdfRule& rule) {
      return std::tuple(IsUpright(rule), std::lround(AcrossOf(rule)), SpanOf(rule).first);
    };
    return key(a) < key(b);
  });
  QList<PdfRule> rules;
  for (const PdfRule& stroke : strokes) {
    if (rules.isEmpty() || !GoesOn(rules.last(), stroke)) {
      rules << stroke;
      continue;
    }
    const bool upright = IsUpright(stroke);
    const double across = AcrossOf(rules.last());
    const double from = SpanOf(rules.last()).first;
    const double to = std::max(SpanOf(rules.last()).second, SpanOf(stroke).second);
    rules.last().line =
        upright ? QLineF(across, from, across, to) : QLineF(from, across, to, across);
  }
  return rules;
}

}  // namespace

QList<PdfRule> PdfRules(const Document& document, int page) {
  const QString number = QString::number(page);
  QXmlStreamReader svg(
      RunProgram("pdftocairo", {"-svg", "-f", number, "-l", number, "-", "-"}, PdfBytes(document)));
  QList<PdfRule> rules;
  while (!svg.atEnd()) {
    if (svg.readNext() != QXmlStreamReader::StartElement || svg.name() != u"path") continue;
    const auto style = svg.attributes().value(QLatin1String("style"));
    if (!style.contains(u"fill:none")) continue;
    const QTransform place = Placement(svg.attributes().value(QLatin1String("transform")));
    const QPolygonF points = Points(svg.attributes().value(QLatin1String("d")).toString(), place);
    for (qsizetype i = 0; i + 1 < points.size(); ++i) {
      rules << PdfRule{QLineF(points[i], points[i + 1]), StrokeWidth(style) * place.m11()};
    }
  }
  return Joined(rules);
}

bool HasRule(const QList<PdfRule>& rules, double x1, double y1, double x2, double y2) {
  for (const PdfRule& rule : rules) {
    const QPointF a = rule.line.p1();
    const QPointF b = rule.line.p2();
    if (Close(a, x1, y1) && Close(b, x2, y2)) return true;
    if (Close(b, x1, y1) && Close(a, x2, y2)) return true;
  }
  return false;
}

}  // namespace tavrelin
