#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <vector>

namespace tavrelin {

class Connection;

/// One tournament of a player's history.
struct HistoryRow {
  QDateTime date;
  double shoes = 0;
  double ringers = 0;
};

/// The best three of the latest ten tournaments by ringer percent, pooled by shoes: their ringers
/// over their shoes, in percent. 0 without any row; not rounded. Rows without shoes count as 0 %.
double AverageOfHistory(std::vector<HistoryRow> history);

/// The ringer percent at which a player enters a tournament: what seeds the classes. The roster's
/// own Average where it is not 0, else AverageOfHistory over the tournaments of the 365 days before
/// `today` (the 365th excluded) that the player pitched in this division. 0 when nothing is known.
/// Throws Error when the file cannot be read.
double EntryAverage(Connection& connection, const QString& playerID, const QString& category,
                    QDate today);

/// The same for every player of the roster, in the division in which each now stands, by PlayerID:
/// for listings of many players, with one look at the history.
QHash<QString, double> EntryAverages(Connection& connection, QDate today);

}  // namespace tavrelin
