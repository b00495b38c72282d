#pragma once

#include "play/CardJob.h"
#include "play/CardSheets.h"
#include "print/OutputTarget.h"

namespace tavrelin {

/// A singles job as the rules make it: one player with games 1 to 4, then byes up to game 11.
/// Courts have three characters, so that nothing but their place moves them.
inline CardJob SinglesJob(CardProcedure procedure, int entrants = 1) {
  CardJob job;
  const bool sheet = procedure == CardProcedure::NewMethod || procedure == CardProcedure::World;
  job.procedure = procedure;
  job.down = sheet ? 3200 : 0;
  job.right = sheet ? 100 : 0;
  job.tournament = QStringLiteral("Spring Open");
  job.date = QDate(2026, 5, 9).startOfDay();
  job.className = QStringLiteral("Open A");
  job.shoes = 40;
  job.range = {1, 11, {}};
  for (int n = 1; n <= entrants; ++n) {
    Card card;
    card.number = n;
    card.pitchers = {{QStringLiteral("Ann"), QStringLiteral("Stone%1").arg(n)}};
    card.front = {QStringLiteral("Ann"), QStringLiteral("Stone%1").arg(n)};
    card.state = QStringLiteral("IA");
    card.wins = QStringLiteral("3");
    card.losses = QStringLiteral("1.5");
    card.average = 45.5;
    card.handicap = 12;
    for (int game = 1; game <= 4; ++game) {
      card.lines << CardLine{game, false, 20 + game, QStringLiteral("Bob Hill%1").arg(game),
                             QString::number(100 + game)};
    }
    for (int game = 5; game <= 11; ++game) card.lines << CardLine{game, true, 0, {}, {}};
    job.cards << card;
  }
  return job;
}

/// The same for teams.
inline CardJob DoublesJob(CardProcedure procedure, int entrants = 1) {
  CardJob job = SinglesJob(procedure, entrants);
  job.doubles = true;
  for (Card& card : job.cards) {
    card.pitchers = {{QStringLiteral("Ann"), QStringLiteral("Stone")},
                     {QStringLiteral("Eve"), QStringLiteral("Field")}};
    card.front = {QStringLiteral("Stone"), QStringLiteral("Field")};
    for (CardLine& line : card.lines) {
      if (!line.bye) line.opponent = QStringLiteral("Ringers%1").arg(line.game);
    }
  }
  return job;
}

inline Document Printed(const CardJob& job, OutputTarget::Kind kind = OutputTarget::Kind::Printer) {
  return Record(kind, QStringLiteral("Round Robin Cards"),
                [&job](OutputTarget& target) { PrintCards(target, job); });
}

}  // namespace tavrelin
