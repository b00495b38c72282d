#include "app/Screens.h"

#include "play/uctPlayTime.h"
#include "play/uctPlayTimeTeams.h"
#include "players/uctProfile.h"
#include "players/uctScores.h"
#include "players/uctTeam.h"
#include "shell/EmptyScreen.h"
#include "shell/uctDatabase.h"
#include "shell/uctSettings.h"
#include "tournament/uctEntrants.h"
#include "tournament/uctTournaments.h"

namespace tavrelin {

namespace {

template <class ScreenClass>
MakeScreen Make() {
  return [](const Surroundings& surroundings, QWidget* parent) -> Screen* {
    return new ScreenClass(surroundings, parent);
  };
}

/// A screen that this program does not have: a panel that says so.
MakeScreen Without(const char* name, const char* title) {
  return [name, title](const Surroundings& surroundings, QWidget* parent) -> Screen* {
    return new EmptyScreen(QLatin1String(name), QLatin1String(title), surroundings, parent);
  };
}

}  // namespace

const QList<MakeScreen>& AllScreens() {
  static const QList<MakeScreen> screens = {
      Make<uctProfile>(),
      Make<uctScores>(),
      Make<uctTournaments>(),
      Without("uctETally", "eTally"),
      Without("uctImport", "Import"),
      Without("uctExport", "Export"),
      Make<uctEntrants>(),
      Make<uctPlayTime>(),
      Make<uctPlayTimeTeams>(),
      Without("uctPlayerReports", "Player Reports"),
      Without("uctAfterPlay", "Tournament Reports"),
      Without("uctLabelList", "Label Lists"),
      Without("uctLabels", "Labels"),
      Without("uctInvitation", "Invitation"),
      Without("uctTournamentCleanup", "Tournament Clean Up"),
      Without("uctLeagues", "League Setup"),
      Without("uctLeagueScores", "League Scores"),
      Without("uctLeagueReports", "League Reports"),
      Without("uctTransmittal", "Membership Transmittal"),
      Make<uctTeam>(),
      Make<uctDatabase>(),
      Make<uctSettings>(),
  };
  return screens;
}

}  // namespace tavrelin
