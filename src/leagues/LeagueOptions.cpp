#include "leagues/LeagueOptions.h"

#include <array>

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Bases{0, 50, 60, 70, 80, 90, 100, 110, 120, 150};

constexpr std::array MemberFields{"Win", "AveragePoints", "RingerPercent", "WinPercent"};

}  // namespace

const QStringList& HandicapBasisTexts() {
  static const QStringList texts = [] {
    QStringList all;
    for (const int basis : Bases)
      all << (basis == 0 ? u"Best Player"_s : u"%1 Points"_s.arg(basis));
    return all;
  }();
  return texts;
}

int HandicapBasis(const QString& text) {
  const qsizetype place = HandicapBasisTexts().indexOf(text);
  return place < 0 ? Bases.back() : Bases[static_cast<size_t>(place)];
}

const QStringList& StandingsSortTexts() {
  static const QStringList texts{u"Wins"_s, u"Average Points"_s, u"Ringer Percent"_s,
                                 u"Winning Percent"_s};
  return texts;
}

StandingsSort StandingsSortOf(const QString& text) {
  const qsizetype place = StandingsSortTexts().indexOf(text);
  return place < 0 ? StandingsSort::Wins : static_cast<StandingsSort>(place);
}

QString MemberOrder(StandingsSort sort) {
  return QLatin1String(MemberFields[static_cast<size_t>(sort)]) + u" DESC, PlayerName ASC"_s;
}

QString TeamOrder(StandingsSort sort) {
  const bool percent = sort == StandingsSort::WinningPercent;
  return (percent ? u"WinPercent"_s : u"Win"_s) + u" DESC, Team ASC"_s;
}

QString MemberNameOrder() {
  return u"PlayerName ASC"_s;
}

}  // namespace tavrelin
