#pragma once

#include <QList>

namespace tavrelin {

class OutputTarget;
struct BoxLayout;
struct BoxScore;

/// Where box scores begin: below what the present page has already.
struct BoxStart {
  bool underStandings = false;  ///< else under the page's head alone, where the first block stays
  int offset = 0;               ///< how far down the following pages begin; twips, may be negative
};

/// Writes box scores below the present position, a block an entrant.
void PrintBoxScores(OutputTarget& target, const BoxLayout& layout, const QList<BoxScore>& blocks,
                    const BoxStart& start);

}  // namespace tavrelin
