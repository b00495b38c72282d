#include "play/CardLayout.h"

#include "basic/Value.h"
#include "play/CardJob.h"

namespace tavrelin {
namespace {

QString TournamentText(const CardJob& job) {
  return job.tournament + QStringLiteral("    ") + Value(job.date).ToText();
}

void AddIf(QList<CardText>& line, bool wanted, int x, const QString& caption, int number) {
  if (wanted) line << CardText{x, caption + QString::number(number)};
}

}  // namespace

const CardGrid& SinglesGrid() {
  static const CardGrid grid = {10700,
                                {4400, 5200, 6600, 8000, 8900, 9800},
                                {{300, "Game"},
                                 {1500, "Opponent"},
                                 {4500, "Court"},
                                 {5500, "Score"},
                                 {6900, "Ringers"},
                                 {8200, "Dbls"},
                                 {9000, "Shoes"},
                                 {10000, "Rgr%"}},
                                4600,
                                {5850, 7250},
                                {4600, 5850, 7250, 8450, 9450, 10450}};
  return grid;
}

const CardGrid& DoublesGrid() {
  static const CardGrid grid = {11200,
                                {5400, 6200, 7500, 8800, 9600, 10400},
                                {{300, "Game"},
                                 {1500, "Opponent"},
                                 {5500, "Court"},
                                 {6500, "Score"},
                                 {7700, "Ringers"},
                                 {8950, "Dbls"},
                                 {9650, "Shoes"},
                                 {10550, "Rgr%"}},
                                5600,
                                {6850, 8150},
                                {5700, 6800, 8050, 9100, 9950, 10700}};
  return grid;
}

QString CardHeading(const Card& card) {
  if (card.throwers.size() == 1) {
    return QStringLiteral("%1.%2").arg(card.number).arg(card.throwers[0].Full());
  }
  QStringList partners;
  char16_t letter = u'A';
  for (const PersonName& name : card.throwers)
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
