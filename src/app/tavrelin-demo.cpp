// Plays the sample tournament on the real window where there is no display: types its scores,
// prints its papers, and leaves pictures of it all.
//
//     tavrelin-demo DATABASE FOLDER

#include <cstdio>
#include <QTabWidget>

#include "app/DemoDesk.h"
#include "app/DemoHands.h"
#include "app/Screens.h"
#include "basic/Progress.h"
#include "controls/GridEX.h"
#include "sample/Dice.h"
#include "sample/PitchedGame.h"
#include "shell/Application.h"
#include "shell/Desktop.h"
#include "shell/frmAbout.h"
#include "shell/frmError.h"
#include "shell/frmStartUp.h"
#include "shell/Routes.h"
#include "shell/StartUp.h"
#include "shell/Store.h"

namespace tavrelin {
namespace {

constexpr QSize LaptopWindow(1366, 700);

void ShowTheGroups(frmStartUp& window, DemoFolder& folder) {
  folder.KeepPicture(window, "window");
  for (const QString& group : Groups()) {
    DemoHands(window).Press(group);
    folder.KeepPicture(window, "window-" + group.toLower());
  }
}

void ShowTheDialogs(const Surroundings& surroundings, DemoFolder& folder) {
  frmAbout about(surroundings);
  about.show();
  folder.KeepPicture(about, "about");
  frmError error({{},
                  "The disk is full. Free some space and try again.",
                  "The disk is full. Free some space and try again.",
                  "cmdSample_Click",
                  75},
                 surroundings.clipboard);
  error.show();
  folder.KeepPicture(error, "error");
  DemoHands(error).Press("cmdDetails");
  folder.KeepPicture(error, "error-details");
}

/// The director's afternoon: a class that is half played is brought to its end.
class Director {
 public:
  Director(frmStartUp& window, DemoFolder& folder, DemoPrinter& printer)
      : hands_(window), window_(window), folder_(folder), printer_(printer) {}

  void Play() {
    OpenTheClass();
    TypeTheScores();
    hands_.Find<QTabWidget>("SSTab1").setCurrentIndex(1);
    folder_.KeepPicture(window_, "play-results");
    TellTheStandings();
    PrintTheResults();
    PrintTheCards();
  }

 private:
  void OpenTheClass() {
    hands_.Press("Tournaments");
    hands_.Press("Tournaments/Play Singles");
    hands_.Fill("cboTournaments", "OH-26-067");
    hands_.Press("cmdLoad");
    folder_.KeepPicture(window_, "play-half-scored");
  }

  void TypeTheScores() {
    auto& games = hands_.Find<GridEX>("GridEX1");
    games.setFocus();
    int typed = 0;
    for (int row = 1; row <= games.RowCount(); ++row) {
      if (games.ValueAt(row, "Approved").ToNumber() != 0) continue;
      games.SetRow(row);
      TypeGame(games);
      ++typed;
    }
    std::printf("%d games typed\n", typed);
    folder_.KeepPicture(window_, "play-scored");
  }

  void TypeGame(GridEX& games) {
    const auto pitched = PitchGame(dice_, {RingerRate, RingerRate}, ShoesAGame);
    const QStringList sides = {"PlayerOne", "PlayerTwo"};
    for (int side = 0; side < 2; ++side) {
      TypeCell(games, sides[side] + "Points", pitched[side].points);
      TypeCell(games, sides[side] + "Ringers", pitched[side].ringers);
    }
    games.SetCol("Approved");
    hands_.Key(Qt::Key_Space, " ");
    hands_.Key(Qt::Key_Return);
  }

  void TypeCell(GridEX& games, const QString& column, int figure) {
    games.SetCol(column);
    hands_.Type(QString::number(figure));
    games.EndEdit();
  }

  void TellTheStandings() {
    const auto& standing = hands_.Find<GridEX>("GridEX2");
    for (int row = 1; row <= standing.RowCount(); ++row) {
      const auto cell = [&](const char* column, int width) {
        return standing.TextAt(row, column).rightJustified(width);
      };
      const QString line = cell("Rank", 3) + ". " +
                           standing.TextAt(row, "PlayerName").leftJustified(28) + cell("Won", 5) +
                           " -" + cell("Loss", 5) + cell("Points", 6) + cell("RingerPercent", 8) +
                           '%';
      std::printf("%s\n", qUtf8Printable(line));
    }
  }

  void PrintTheResults() {
    hands_.Press("chkStandings");
    hands_.Press("chkBoxScores");
    PressToPrint("cmdPrintResults", "results");
    PressToPrint("cmdPreviewResults", "results-preview");
  }

  void PrintTheCards() {
    PressToPrint("cmdPrintPair", "cards-front");
    PressToPrint("cmdPrintPair", "cards-back");
    hands_.Press("chkRRWorksheet");
    PressToPrint("cmdPrintPair", "worksheet");
  }

  void PressToPrint(const QString& button, const QString& name) {
    printer_.Expect(name);
    hands_.Press(button);
  }

  static constexpr double RingerRate = 0.7;
  static constexpr int ShoesAGame = 40;

  DemoHands hands_;
  frmStartUp& window_;
  DemoFolder& folder_;
  DemoPrinter& printer_;
  Dice dice_{12};
};

int Play(const QString& database, DemoFolder& folder) {
  DemoOperator person;
  SystemClock clock;
  DesktopClipboard clipboard;
  DesktopBrowser browser;
  Store store(folder.PathOf("demo-settings.ini"));
  DemoPrinter printer(folder, store);
  int failures = 0;
  const CSError::Display showError = [&failures](const ErrorReport& report) {
    ++failures;
    std::fprintf(stderr, "%s\n", qPrintable(report.description));
  };
  static_cast<Application*>(qApp)->SetErrorDisplay(showError);
  NoProgress progress;
  const Surroundings surroundings{person, clock,   clipboard, browser,
                                  store,  printer, progress,  showError};
  StartUp startUp(store, showError);
  frmStartUp window(surroundings, startUp, AllScreens());
  window.Form_Load(database);
  window.resize(LaptopWindow);
  window.show();
  window.activateWindow();
  CSError(showError).Run("Play", [&] {
    ShowTheGroups(window, folder);
    Director(window, folder, printer).Play();
    ShowTheDialogs(surroundings, folder);
  });
  window.close();
  return failures == 0 && folder.AllSaved() ? 0 : 1;
}

}  // namespace
}  // namespace tavrelin

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  tavrelin::Application application(argc, argv);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 3 || !QDir().mkpath(arguments[2])) {
    std::fputs("Usage: tavrelin-demo DATABASE FOLDER\n", stderr);
    return 2;
  }
  tavrelin::DemoFolder folder{QDir(arguments[2])};
  return tavrelin::Play(arguments[1], folder);
}
