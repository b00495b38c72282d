#pragma once

#include "data/Connection.h"
#include "play/CardSettings.h"
#include "play/ClassLoad.h"
#include "play/PlayScreen.h"
#include "play/Ranking.h"

namespace tavrelin {

/// What a play screen holds from show to hide. Rows go before their connection.
struct PlayScreen::Data {
  Connection connection;
  QString tournamentName;  ///< of the chosen tournament; may be empty
  CardSettings cardSettings;
  int verticalOffset = 0;  ///< twips by which the sheet of results is moved down
  LoadedClass loaded;
  std::optional<GameReader> reader;  ///< of its games, while they are on show
  Standings standings;
};

}  // namespace tavrelin
