#include "play/RankOrder.h"

#include <span>

#include "play/ClassLoad.h"
#include "play/PlayFormat.h"
#include "play/StandingRows.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

/// By what a rank method parts entrants with equal wins and losses, and how paper names it. The
/// last of a table stands for every other method.
struct MethodOrder {
  const char* method;
  const char* keys;
  const char* basis;
};

constexpr MethodOrder Scratch[] = {
    {"R", "RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Rgr% - H2H - OvrAvg)"},
    {"H", "HeadToHead DESC, RingerPercent DESC, Points DESC", "(Rank: W/L - H2H - Rgr% - Pts)"},
    {"O", "OverAverage DESC, RingerPercent DESC, Points DESC", "(Rank: W/L - OvrAvg - Rgr% - Pts)"},
    {"", "Points DESC, HeadToHead DESC, RingerPercent DESC", "(Rank: W/L - Pts - H2H - OvrAvg)"},
};

constexpr MethodOrder Handicap[] = {
    {"R", "RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
     "(Rank: W/L - Rgr% - H2H - OvrAvg)"},
    {"H", "HeadToHead DESC, OverAverage DESC, Points DESC", "(Rank: W/L - H2H - OvrAvg - Pts)"},
    {"O", "OverAverage DESC, HeadToHead DESC, Points DESC", "(Rank: W/L - OvrAvg - H2H - Pts)"},
    {"", "Points DESC, HeadToHead DESC, OverAverage DESC", "(Rank: W/L - Pts - H2H - OvrAvg)"},
};

/// Teams level on the percentage are parted by points, but not in a handicap class or a report.
constexpr MethodOrder TeamsByRingers = {"R", "RingerPercent DESC, HeadToHead DESC, Points DESC",
                                        "(Rank: W/L - Rgr% - H2H - Pts)"};

constexpr MethodOrder SinglesPosting[] = {
    {"R", "RingerPercent DESC, HeadToHead DESC, Points DESC", ""},
    {"H", "HeadToHead DESC, RingerPercent DESC, Points DESC", ""},
    {"O", "OverAverage DESC, RingerPercent DESC, Points DESC", ""},
    {"", "Points DESC, HeadToHead DESC, RingerPercent DESC", ""},
};

constexpr MethodOrder DoublesPosting[] = {
    {"R", "RingerPercent DESC, Points DESC", ""},
    {"", "Points DESC, RingerPercent DESC", ""},
};

const MethodOrder& Find(std::span<const MethodOrder> table, const QString& method) {
  for (const MethodOrder& order : table) {
    if (method == QLatin1String(order.method)) return order;
  }
  return table.back();
}

const MethodOrder& Played(const ClassRules& rules, StandingOrder order) {
  if (rules.handicapPct != 0) return Find(Handicap, rules.rankMethod);
  const bool teams = FormatOf(rules).IsDoubles() && order != StandingOrder::AfterPlay;
  if (teams && rules.rankMethod == u"R") return TeamsByRingers;
  return Find(Scratch, rules.rankMethod);
}

const MethodOrder& Posted(const ClassRules& rules) {
  return FormatOf(rules).IsDoubles() ? Find(DoublesPosting, rules.rankMethod)
                                     : Find(SinglesPosting, rules.rankMethod);
}

QString SortOf(const MethodOrder& order) {
  return u"Won DESC, Loss ASC, "_s + QLatin1String(order.keys);
}

constexpr QLatin1String BySeed("Seed ASC, EntryAvg DESC");

}  // namespace

RankOrder OrderOf(const ClassRules& rules, StandingOrder order) {
  if (order == StandingOrder::Entries) return {BySeed, {}};
  if (order == StandingOrder::Posting) return {SortOf(Posted(rules)) + u", "_s + BySeed, {}};
  const bool computed = order == StandingOrder::Computed;
  if (!computed && rules.rankOverride && FormatOf(rules).hasOverride) {
    return {u"Override ASC"_s, u"(Rank - Override)"_s};
  }
  const MethodOrder& method = Played(rules, order);
  const RankOrder played = {SortOf(method), QLatin1String(method.basis)};
  if (order != StandingOrder::AfterPlay) return played;
  // The order by points has no name there.
  const bool named = rules.handicapPct != 0 || *method.method != '\0';
  return {played.sort + u", "_s + BySeed, named ? played.basis : QString()};
}

void NumberPlaces(Recordset& rows, bool rankOverride) {
  if (rows.RecordCount() == 0) return;
  const bool overridden = rankOverride || rows.FieldIndex(u"Override"_s) < 0;
  int place = 0;
  EachRow(rows, [&] {
    rows.Set(u"Rank"_s, ++place);
    if (!overridden) rows.Set(u"Override"_s, place);
  });
  rows.MoveFirst();
}

}  // namespace tavrelin
