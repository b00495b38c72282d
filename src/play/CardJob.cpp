#include "play/CardJob.h"

#include "play/ClassLoad.h"
#include "tournament/Tournaments.h"

namespace tavrelin {
namespace {

void ReadTournament(Connection& connection, CardJob& job, const QString& sanctionID) {
  const std::optional<Tournament> tournament = FindTournament(connection, sanctionID);
  if (!tournament) return;
  job.tournament = tournament->name;
  job.date = tournament->date;
}

void AddLines(Connection& connection, CardJob& job, const LoadedClass& loaded) {
  job.lines = Worksheet(connection, loaded);
  if (job.lines.isEmpty()) job.refusal = {QStringLiteral("No players to report")};
}

void AddCards(Connection& connection, CardJob& job, const LoadedClass& loaded,
              const CardChoice& choice) {
  const bool world = job.procedure == CardProcedure::World;
  job.range = CardGames(choice.from, choice.to, loaded.list.RecordCount(),
                        world ? CardLimit::None : CardLimit::ElevenGames);
  job.refusal = job.range.refusal;
  if (job.refusal || job.face == CardFace::None) return;
  job.cards =
      Cards(connection, loaded, job.range, world ? CardSide::ByNumber : CardSide::ByEntrant);
  if (choice.entrant > 0) job.cards = job.cards.mid(choice.entrant - 1, 1);
}

void AskAboutGames(CardJob& job) {
  job.title = QStringLiteral("Confirm Round Robin Print");
  job.question = QStringLiteral("Printing Round Robin Cards for Games %1 to %2  Is this correct?")
                     .arg(job.range.from)
                     .arg(job.range.to);
}

}  // namespace

CardProcedure ProcedureFor(const CardSettings& settings, const CardChoice& choice,
                           const PlayFormat& format) {
  if (choice.worksheet && format.hasTwoUpCards) return CardProcedure::Worksheet;
  if (settings.style == CardStyle::TwoUp && format.hasTwoUpCards) return CardProcedure::World;
  return settings.style == CardStyle::Folded ? CardProcedure::NewMethod : CardProcedure::OldMethod;
}

CardFace FaceAfter(CardFace face, bool backOnly) {
  if (face == CardFace::Front) return CardFace::Back;
  return face == CardFace::Back && !backOnly ? CardFace::Front : face;
}

CardJob MakeCardJob(Connection& connection, const LoadedClass& loaded, const CardSettings& settings,
                    const CardChoice& choice) {
  CardJob job;
  job.procedure = ProcedureFor(settings, choice, loaded.Format());
  const bool hasFaces = job.procedure == CardProcedure::OldMethod;
  job.face = hasFaces ? choice.face : CardFace::Back;
  job.nextFace = choice.face;
  job.className = loaded.rules.name;
  job.shoes = loaded.rules.shoes;
  job.doubles = loaded.Format().IsDoubles();
  job.down = settings.DownShift();
  job.right = settings.RightShift();
  ReadTournament(connection, job, loaded.rules.sanctionID);
  if (job.procedure == CardProcedure::Worksheet) {
    job.name = QStringLiteral("Round Robin Worksheet");
    AddLines(connection, job, loaded);
  } else {
    job.name = QStringLiteral("Round Robin Cards");
    AddCards(connection, job, loaded, choice);
  }
  if (job.Prints() && hasFaces) job.nextFace = FaceAfter(choice.face, settings.backOnly);
  if (job.procedure == CardProcedure::World && settings.confirms) AskAboutGames(job);
  return job;
}

}  // namespace tavrelin
