#include "players/AllocatePlayerID.h"

#include "basic/Conversions.h"
#include "data/Recordset.h"

namespace tavrelin {

namespace {

constexpr int IDLength = 6;
constexpr int NameLength = 3;
constexpr int LettersBeforeCounter = 4;

/// Cuts a text without leaving half of a character that takes two places.
QString First(const QString& text, int length) {
  QString cut = text.left(length);
  if (!cut.isEmpty() && cut.back().isHighSurrogate()) cut.chop(1);
  return cut;
}

QString NameLetters(QString name) {
  name.remove(u'\'').remove(u'"');
  return First(name.trimmed(), NameLength);
}

bool IsTaken(Recordset& players, const QString& playerID) {
  players.MoveFirst();
  players.Find(QStringLiteral("PlayerID = '%1'").arg(EscapeQuotes(playerID)));
  return !players.AtEnd();
}

}  // namespace

QString PlayerIDLetters(const QString& lastName, const QString& firstName) {
  const QString letters = (NameLetters(lastName) + NameLetters(firstName)).toUpper().trimmed();
  return First(letters + QString(IDLength, u'0'), IDLength);
}

QString AllocatePlayerID(Recordset& players, const QString& lastName, const QString& firstName) {
  QString candidate = PlayerIDLetters(lastName, firstName);
  if (players.RecordCount() == 0) return candidate;
  const QString letters = First(candidate, LettersBeforeCounter);
  for (int counter = 1; IsTaken(players, candidate); ++counter) {
    candidate = letters + QStringLiteral("%1").arg(counter, 2, 10, QLatin1Char('0'));
  }
  return candidate;
}

}  // namespace tavrelin
