#include "shell/Routes.h"

#include <QStringList>

namespace tavrelin {

const QList<Route>& Routes() {
  static const QList<Route> routes = {
      {"Players", "Profile", "uctProfile", "profile"},
      {"Players", "Stats", "uctScores", "stats"},
      {"Players", "Teams", "uctTeam", "teams"},
      {"Players", "eTally", "uctETally", "etally"},
      {"Players", "Import", "uctImport", "import"},
      {"Players", "Export", "uctExport", "export"},
      {"Players", "Reports", "uctPlayerReports", "report"},
      {"Tournaments", "Setup", "uctTournaments", "tournament-setup"},
      {"Tournaments", "Entries", "uctEntrants", "entries"},
      {"Tournaments", "Play Singles", "uctPlayTime", "play-singles"},
      {"Tournaments", "Play Doubles", "uctPlayTimeTeams", "play-doubles"},
      {"Tournaments", "Reports", "uctAfterPlay", "tournament-report"},
      {"Tournaments", "Clean Up", "uctTournamentCleanup", "clean-up"},
      {"Leagues", "Setup", "uctLeagues", "league-setup"},
      {"Leagues", "Scores", "uctLeagueScores", "league-scores"},
      {"Leagues", "Reports", "uctLeagueReports", "league-report"},
      {"Mailings", "Label Lists", "uctLabelList", "label-lists"},
      {"Mailings", "Labels", "uctLabels", "labels"},
      {"Mailings", "Invitation", "uctInvitation", "invitation"},
      {"Setup", "Database", "uctDatabase", "database"},
      {"Setup", "Settings", "uctSettings", "settings"},
  };
  return routes;
}

QString ScreenOf(const QString& group, const QString& item) {
  for (const Route& route : Routes()) {
    if (group == QLatin1String(route.group) && item == QLatin1String(route.item)) {
      return QLatin1String(route.screen);
    }
  }
  return {};
}

QStringList Groups() {
  QStringList groups;
  for (const Route& route : Routes()) {
    if (!groups.contains(QLatin1String(route.group))) groups.append(QLatin1String(route.group));
  }
  return groups;
}

}  // namespace tavrelin
