#include "play/CardCommands.h"

#include <QTextStream>

#include "command/OptionReader.h"
#include "command/PdfOption.h"
#include "data/Connection.h"
#include "data/SystemSettings.h"
#include "play/CardJob.h"
#include "play/CardSheets.h"
#include "play/ClassLoad.h"
#include "play/Commands.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

struct CardOptions {
  std::optional<CardStyle> style;  ///< in place of the club's own
  CardChoice choice;
  QString entrantID;  ///< empty for all
  QString pdf;
};

CardStyle StyleFrom(const QString& text) {
  if (text == u"1") return CardStyle::Card;
  if (text == u"2") return CardStyle::Folded;
  if (text == u"3") return CardStyle::TwoUp;
  throw WrongUsage();
}

QString GameFrom(const QString& text) {
  bool whole = false;
  if (text.toInt(&whole) < 1 || !whole) throw WrongUsage();
  return text;
}

CardOptions ReadOptions(const QStringList& arguments) {
  CardOptions options;
  for (OptionReader reader(arguments); !reader.AtEnd();) {
    const QString option = reader.Next();
    if (option == u"--style") {
      options.style = StyleFrom(reader.Next());
    } else if (option == u"--front") {
      options.choice.face = CardFace::Front;
    } else if (option == u"--from") {
      options.choice.from = GameFrom(reader.Next());
    } else if (option == u"--to") {
      options.choice.to = GameFrom(reader.Next());
    } else if (option == u"--player") {
      options.entrantID = reader.Next();
    } else if (option == u"--pdf") {
      options.pdf = reader.Next();
    } else {
      throw WrongUsage();
    }
  }
  if (options.pdf.isEmpty()) throw WrongUsage();
  return options;
}

LoadedClass LoadPairedClass(Connection& connection, const QStringList& arguments) {
  LoadedClass loaded = LoadClass(connection, NamedClass(connection, arguments));
  if (loaded.refusal) Refuse(loaded.refusal);
  if (!loaded.isPaired) Refuse({QStringLiteral("The class has no games yet; pair it first")});
  return loaded;
}

int NumberOf(const LoadedClass& loaded, const QString& entrantID) {
  const int field = loaded.list.FieldIndex(loaded.Format().entrantID);
  for (int number = 1; number <= loaded.list.RecordCount(); ++number) {
    if (IDKey(loaded.list.CellAt(number, field).Trimmed()) == IDKey(entrantID)) return number;
  }
  Refuse({QStringLiteral("\"%1\" is not entered in the class").arg(entrantID)});
}

CardSettings SettingsFor(Connection& connection, const LoadedClass& loaded,
                         const CardOptions& options) {
  if (options.style == CardStyle::TwoUp && !loaded.Format().hasTwoUpCards) {
    Refuse({QStringLiteral("A doubles class has no cards of style 3")});
  }
  CardSettings settings = ReadCardSettings(connection, loaded.Format());
  settings.style = options.style.value_or(settings.style);
  return settings;
}

void SaveJob(const CardJob& job, const QString& pdf, QTextStream& out) {
  if (job.refusal) Refuse(job.refusal);
  const Report report = [&job](OutputTarget& target) { PrintCards(target, job); };
  SavePdf(Record(OutputTarget::Kind::Printer, job.name, report), pdf, out);
}

int PrintTheCards(const QStringList& arguments, QTextStream& out, QTextStream&) {
  CardOptions options = ReadOptions(arguments.sliced(3));
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  const LoadedClass loaded = LoadPairedClass(connection, arguments);
  if (!options.entrantID.isEmpty()) options.choice.entrant = NumberOf(loaded, options.entrantID);
  const CardSettings settings = SettingsFor(connection, loaded, options);
  SaveJob(MakeCardJob(connection, loaded, settings, options.choice), options.pdf, out);
  return exits::Done;
}

int PrintTheWorksheet(const QStringList& arguments, QTextStream& out, QTextStream&) {
  if (arguments[3] != u"--pdf") throw WrongUsage();
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  const LoadedClass loaded = LoadClass(connection, NamedClass(connection, arguments));
  if (!loaded.Format().hasTwoUpCards) Refuse({QStringLiteral("A doubles class has no worksheet")});
  CardChoice choice;
  choice.worksheet = true;
  SaveJob(MakeCardJob(connection, loaded, {}, choice), arguments[4], out);
  return exits::Done;
}

}  // namespace

QList<Command> CardCommands() {
  return {
      {QStringLiteral("cards"),
       QStringLiteral("cards FILE SANCTION CLASS [--style 1|2|3] [--front] [--from N] [--to N] "
                      "[--player ID] --pdf FILE"),
       QStringLiteral("Writes the round-robin cards of a class, in the style that is set or in "
                      "another; --player: of one player or team; --pdf -: to the output."),
       5, 14, PrintTheCards},
      {QStringLiteral("worksheet"), QStringLiteral("worksheet FILE SANCTION CLASS --pdf FILE"),
       QStringLiteral("Writes the scorekeeper's list of a singles class, a line a game."), 5, 5,
       PrintTheWorksheet},
  };
}

}  // namespace tavrelin
