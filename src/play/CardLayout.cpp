#include "play/CardLayout.h"

#include "basic/Value.h"
#include "play/CardJob.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 400;
constexpr int FirstColumnEnd = 1000;

TableForm FormOf(const QList<int>& verticals) {
  TableForm form;
  form.headHeight = RowHeight;
  form.headingsDrop = 100;
  form.rowHeight = RowHeight;
  form.textDrop = 100;
  form.size = 12;
  form.underlined = false;
  form.ruling = Ruling{verticals, RowHeight, 2};
  return form;
}

CardGrid GridOf(const QList<int>& verticals, const QList<ColumnPlace>& games,
                const QList<int>& byeX) {
  CardGrid grid{FormOf(verticals), {verticals, RowHeight, 2}, games, games};
  grid.totals.verticals.removeOne(FirstColumnEnd);
  for (qsizetype i = 0; i < byeX.size(); ++i) grid.byes[i].cellX = byeX[i];
  return grid;
}

QString TournamentText(const CardJob& job) {
  return job.tournament + QStringLiteral("    ") + Value(job.date).ToText();
}

void AddIf(QList<CardText>& line, bool wanted, int x, const QString& caption, int number) {
  if (wanted) line << CardText{x, caption + QString::number(number)};
}

}  // namespace

const CardGrid& SinglesGrid() {
  static const CardGrid grid = GridOf({200, 1000, 4400, 5200, 6600, 8000, 8900, 9800, 10700},
                                      {{u"Game"_s, 300, 400},
                                       {u"Opponent"_s, 1500, 1200},
                                       {u"Court"_s, 4500, 4600},
                                       {u"Score"_s, 5500, 5850},
                                       {u"Ringers"_s, 6900, 7250},
                                       {u"Dbls"_s, 8200, 8450},
                                       {u"Shoes"_s, 9000, 9450},
                                       {u"Rgr%"_s, 10000, 10450}},
                                      {});
  return grid;
}

const CardGrid& DoublesGrid() {
  static const CardGrid grid = GridOf({200, 1000, 5400, 6200, 7500, 8800, 9600, 10400, 11200},
                                      {{u"Game"_s, 300, 400},
                                       {u"Opponent"_s, 1500, 1200},
                                       {u"Court"_s, 5500, 5600},
                                       {u"Score"_s, 6500, 6850},
                                       {u"Ringers"_s, 7700, 8150},
                                       {u"Dbls"_s, 8950},
                                       {u"Shoes"_s, 9650},
                                       {u"Rgr%"_s, 10550}},
                                      {400, 1200, 5700, 6800, 8050, 9100, 9950, 10700});
  return grid;
}

QList<Cell> CardCells(const CardLine& line) {
  QList<Cell> cells = {TextCell(QString::number(line.game))};
  if (line.bye) return cells << TextCell(u"X. BYE"_s) << QList<Cell>(6, TextCell(u"X"_s));
  const QString number = line.opponentNumber == 0 ? QString() : u"%1. "_s.arg(line.opponentNumber);
  const Cell slash = TextCell(u"/"_s);
  return cells << NameCell(number + line.opponent) << TextCell(line.court) << slash << slash;
}

QString CardHeading(const Card& card) {
  if (card.pitchers.size() == 1) {
    return QStringLiteral("%1.%2").arg(card.number).arg(card.pitchers[0].Full());
  }
  QStringList partners;
  char16_t letter = u'A';
  for (const PersonName& name : card.pitchers)
    partners << QChar(letter++) + QStringLiteral(".") + name.Full();
  return QString::number(card.number) + partners.join(QStringLiteral("  "));
}

QList<CardText> CardInformation(const CardJob& job, const Card& card) {
  QList<CardText> line = {{300, QStringLiteral("Class: ") + job.className}};
  AddIf(line, job.shoes != 0, 2000, QStringLiteral("Shoes: "), job.shoes);
  AddIf(line, card.handicap.has_value(), 3500, QStringLiteral("Handicap: "),
        card.handicap.value_or(0));
  return line << CardText{5500, TournamentText(job)};
}

QList<CardText> TwoUpInformation(const CardJob& job, const Card& card) {
  QList<CardText> line = {{300, QStringLiteral("Class: ") + job.className},
                          {1800, QStringLiteral("St: ") + card.state},
                          {3000, QStringLiteral("Avg: ") + Value(card.average).ToText()},
                          {4400, QStringLiteral("W/L: %1-%2").arg(card.wins, card.losses)}};
  AddIf(line, job.shoes != 0, 6000, QStringLiteral("Sh: "), job.shoes);
  AddIf(line, card.handicap.has_value(), 6800, QStringLiteral("Hcp: "), card.handicap.value_or(0));
  return line << CardText{7600, TournamentText(job)};
}

}  // namespace tavrelin
