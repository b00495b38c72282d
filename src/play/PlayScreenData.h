#pragma once

#include "data/Connection.h"
#include "play/ClassLoad.h"
#include "play/PlayScreen.h"
#include "play/Ranking.h"

namespace tavrelin {

/// What a play screen holds from show to hide. Rows go before their connection.
struct PlayScreen::Data {
  Connection connection;
  LoadedClass loaded;
  Standings standings;
};

}  // namespace tavrelin
