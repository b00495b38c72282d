#include "play/ResultsCommand.h"

#include <optional>
#include <QTextStream>

#include "command/OptionReader.h"
#include "command/PdfOption.h"
#include "data/Connection.h"
#include "data/SystemSettings.h"
#include "play/ClassResults.h"
#include "play/Commands.h"
#include "play/Ranking.h"
#include "play/ResultsSheet.h"
#include "play/ResultsText.h"
#include "print/OutputTarget.h"

namespace tavrelin {
namespace {

struct ResultsOptions {
  ResultsChoice choice;
  std::optional<QString> textFile;
  std::optional<QString> pdfFile;
};

ResultsOptions ReadOptions(const QStringList& arguments) {
  ResultsOptions options;
  for (OptionReader reader(arguments); !reader.AtEnd();) {
    const QString option = reader.Next();
    if (option == u"--brief") {
      options.choice.brief = true;
    } else if (option == u"--no-standings") {
      options.choice.standings = false;
    } else if (option == u"--no-box-scores") {
      options.choice.boxScores = false;
    } else if (option == u"--text") {
      options.textFile = reader.Next();
    } else if (option == u"--pdf") {
      options.pdfFile = reader.Next();
    } else {
      throw WrongUsage();
    }
  }
  if (options.textFile && options.pdfFile) throw WrongUsage();
  return options;
}

int WriteText(const QString& file, const QString& text, QTextStream& out) {
  if (file == u"-") {
    out << text;
    return exits::Done;
  }
  const qsizetype name = file.lastIndexOf(u'/') + 1;
  if (const Refusal refusal = WriteResults(file.left(name), file.mid(name), text)) Refuse(refusal);
  return exits::Done;
}

int WriteResultsOf(const QStringList& arguments, QTextStream& out, QTextStream&) {
  const ResultsOptions options = ReadOptions(arguments.sliced(3));
  if (!options.choice.standings && !options.choice.boxScores) {
    Refuse({"Check either Standings or Box Scores or both"});
  }
  Connection connection;
  connection.OpenSnapshot(FileConnectString(arguments[0]));
  Standings standings =
      RankTheClass(connection, NamedClass(connection, arguments), StandingOrder::Directed);
  if (standings.refusal) Refuse(standings.refusal);
  const ClassResults results = ReadResults(connection, standings);
  if (!options.pdfFile) {
    const QString text = ExportTheClass(results, options.choice);
    return WriteText(options.textFile.value_or(QStringLiteral("-")), text, out);
  }
  const int offset = SystemSettings(connection).Twips(Setting::ResultsVertical);
  const QString title = results.tournament + QStringLiteral(" - ") + results.className;
  const Document document = Record(OutputTarget::Kind::Printer, title, [&](OutputTarget& target) {
    PrintTheClass(target, results, options.choice, offset);
  });
  SavePdf(document, *options.pdfFile, out);
  return exits::Done;
}

}  // namespace

Command ResultsCommand() {
  return {QStringLiteral("results"),
          QStringLiteral("results FILE SANCTION CLASS [--brief] [--no-standings] "
                         "[--no-box-scores] [--text FILE|--pdf FILE]"),
          QStringLiteral("Standings and box scores of a class as text or PDF; - is the standard "
                         "output."),
          3,
          9,
          WriteResultsOf};
}

}  // namespace tavrelin
