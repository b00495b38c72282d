#include "sample/SampleRoster.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QDate>
#include <QSet>

#include "data/Connection.h"
#include "data/Recordset.h"
#include "players/AllocatePlayerID.h"
#include "sample/Dice.h"
#include "sample/SampleClub.h"

namespace tavrelin {
namespace {

constexpr int PlayerCount = 120;
constexpr int TeamCount = 16;

constexpr std::array MenNames{"Alden",  "Bruno",   "Cyrus",   "Désiré", "Emmett",  "François",
                              "Gideon", "Héctor",  "Ichabod", "Jörg",   "Kermit",  "Loïc",
                              "Milo",   "Norbert", "Orville", "Percy",  "Quincy",  "René",
                              "Silas",  "Tobias",  "Ulric",   "Vaughn", "Wendell", "Yves"};
constexpr std::array WomenNames{"Adèle",  "Beatrix", "Clémence", "Dorothea", "Eloïse",   "Flora",
                                "Greta",  "Hazel",   "Inés",     "Josefina", "Kirsten",  "Lavinia",
                                "Maëlle", "Nadine",  "Ottilie",  "Phoebe",   "Rosalind", "Solène"};
constexpr std::array LastNames{
    "Abernethy",    "O'Brannan",    "Caldwick",    "Düsterhöft", "Elverton",     "Fenwold",
    "Garrick",      "Håkonsby",     "Inglebright", "Jessamyn",   "Kettlewick",   "L'Orval",
    "Mossman",      "Núñez-Ibarra", "O'Tavish",    "Pemberwick", "Quillfeather", "Rådhus",
    "Stubblefield", "Thistlewood",  "Underhaven",  "Vérendelle", "Whitlatch",    "Xandergate",
    "Yarborne",     "Zwickel",      "Brackenshaw", "Côté-Lavoy", "D'Ambrelle",   "Ashdown-Pike"};
constexpr std::array Streets{"Stake Lane",     "Clay Pit Road", "Ringer Street",
                             "Old Forge Road", "Elm Court",     "County Road 9"};

struct Town {
  const char* city;
  const char* state;
  const char* zip;
};
constexpr std::array Towns{
    Town{"Maple Creek", "OH", "43999"},      Town{"Port Ansel", "ON", "K0X1Z9"},
    Town{"Dry Fork", "TX", "799991234"},     Town{"Saint-Élan", "PQ", "G0X9Z9"},
    Town{"Two Rivers Bend", "MN", "56999"},  Town{"Hollow Oak", "IN", "47999"},
    Town{"Coldwater Flats", "SK", "S0X9Z0"}, Town{"Sable Point", "MI", "49999"}};

/// A division with the years of birth and the skill that go with it.
struct DivisionPlan {
  const char* code;
  int players;
  bool women;
  int born;
  int span;
  double weakest;
  double strongest;
};
constexpr std::array DivisionPlans{
    DivisionPlan{"AM", 38, false, 1962, 35, 0.15, 0.80},
    DivisionPlan{"AW", 22, true, 1962, 35, 0.12, 0.76},
    DivisionPlan{"EM", 16, false, 1940, 18, 0.20, 0.70},
    DivisionPlan{"SM", 10, false, 1950, 10, 0.20, 0.65},
    DivisionPlan{"SW", 8, true, 1950, 10, 0.18, 0.62},
    DivisionPlan{"JB", 7, false, 2009, 5, 0.10, 0.60},
    DivisionPlan{"JG", 6, true, 2009, 5, 0.10, 0.55},
    DivisionPlan{"CA", 3, false, 2015, 3, 0.05, 0.25},
    DivisionPlan{"CB", 3, false, 2015, 3, 0.05, 0.25},
    DivisionPlan{"CG", 3, true, 2015, 3, 0.05, 0.25},
    DivisionPlan{"UK", 2, false, 1975, 20, 0.10, 0.40},
    DivisionPlan{"AX", 2, true, 1975, 20, 0.10, 0.40},
};

template <typename List>
QString OneOf(Dice& dice, const List& list) {
  return QString::fromUtf8(list[static_cast<size_t>(dice.Below(static_cast<int>(list.size())))]);
}

/// Most members are standard; the others are rare but all there.
QString MembershipOf(int number) {
  switch (number % 20) {
    case 3:
      return QStringLiteral("L");
    case 8:
      return QStringLiteral("P");
    case 12:
      return QStringLiteral("D");
    case 17:
      return QStringLiteral("T");
    default:
      return QStringLiteral("S");
  }
}

struct Name {
  QString first;
  QString last;
};

Name NewName(Dice& dice, bool women, QSet<QString>& taken) {
  for (;;) {
    Name name{women ? OneOf(dice, WomenNames) : OneOf(dice, MenNames), OneOf(dice, LastNames)};
    const QString whole = name.first + u' ' + name.last;
    if (taken.contains(whole)) continue;
    taken.insert(whole);
    return name;
  }
}

/// The roster while it is being written.
struct Roster {
  Dice& dice;
  Recordset rows;
  Recordset ids;  ///< for the search of a free number
  QSet<QString> names;
  QList<SamplePlayer> players;
};

void SetAddress(Roster& roster, int number) {
  const Town& town = Towns[static_cast<size_t>(number) % Towns.size()];
  Recordset& row = roster.rows;
  row.Set(
      "AddressOne",
      QStringLiteral("%1 %2").arg(10 + roster.dice.Below(980)).arg(OneOf(roster.dice, Streets)));
  row.Set("City", town.city);
  row.Set("State", town.state);
  row.Set("ZipCode", town.zip);
  row.Set("Telephone", QStringLiteral("55555501%1").arg(number % 100, 2, 10, QLatin1Char('0')));
  row.Set("CellPhone", number % 3 == 0 ? row["Telephone"] : Value(""));
  row.Set("Email",
          number % 2 == 0 ? QStringLiteral("player%1@example.org").arg(number) : QString());
}

void SetMembership(Roster& roster, int number, const DivisionPlan& plan, double skill) {
  Recordset& row = roster.rows;
  const bool carded = number % 15 != 14;
  row.Set("CardNumber",
          carded ? QStringLiteral("%1%2").arg(30 + number % 8).arg(1000 + number * 7) : QString());
  row.Set("CardYear",
          carded ? QString::number(SampleYear - (number % 11 == 5 ? 1 : 0)) : QString());
  row.Set("BirthDate", QDate(plan.born + roster.dice.Below(plan.span), 1 + roster.dice.Below(12),
                             1 + roster.dice.Below(28)));
  row.Set("Longevity", roster.dice.Below(std::max(1, std::min(30, SampleYear - plan.born - 8))));
  row.Set("Remarks", number % 12 == 7 ? "Left-handed" : "");
  row.Set("Average", std::round(skill * 10000) / 100);
  row.Set("EmergencyInfo", number % 10 == 1 ? "Ask at the club house" : "");
  row.Set("Awards", number % 25 == 6 ? "Sportsmanship 2024" : "");
  row.Set("MembershipType", MembershipOf(number));
}

void AddPlayer(Roster& roster, const DivisionPlan& plan) {
  const int number = static_cast<int>(roster.players.size());
  const Name name = NewName(roster.dice, plan.women, roster.names);
  const double skill = plan.weakest + roster.dice.Next() * (plan.strongest - plan.weakest);
  const QString id = AllocatePlayerID(roster.ids, name.last, name.first);
  Recordset& row = roster.rows;
  row.AddNew();
  row.Set("PlayerID", id);
  row.Set("FirstName", name.first);
  row.Set("LastName", name.last);
  row.Set("Category", plan.code);
  SetAddress(roster, number);
  SetMembership(roster, number, plan, skill);
  row.Update();
  roster.players.append({id, name.last, plan.code, skill});
}

}  // namespace

QList<SamplePlayer> AddSamplePlayers(Connection& connection, Dice& dice) {
  Roster roster{dice, {}, {}, {}, {}};
  roster.rows.Open("SELECT * FROM Players", connection, Recordset::Lock::Optimistic);
  roster.ids = roster.rows.Clone();
  for (const DivisionPlan& plan : DivisionPlans) {
    for (int i = 0; i < plan.players; ++i) AddPlayer(roster, plan);
  }
  std::stable_sort(roster.players.begin(), roster.players.end(),
                   [](const SamplePlayer& a, const SamplePlayer& b) { return a.skill > b.skill; });
  return roster.players;
}

QList<SampleTeam> AddSampleTeams(Connection& connection, const QList<SamplePlayer>& players) {
  Recordset teams;
  Recordset members;
  teams.Open("SELECT * FROM Teams", connection, Recordset::Lock::Optimistic);
  members.Open("SELECT * FROM TeamPlayers", connection, Recordset::Lock::Optimistic);
  QList<SampleTeam> made;
  for (int i = 0; i < TeamCount; ++i) {
    SampleTeam team{0, players[4 * i], players[4 * i + 2]};
    teams.AddNew();
    teams.Set("Team", QStringLiteral("%1 & %2").arg(team.one.lastName, team.two.lastName));
    teams.Update();
    team.id = static_cast<int>(teams["TeamID"].ToWhole());
    for (const SamplePlayer& player : {team.one, team.two}) {
      members.AddNew();
      members.Set("TeamID", team.id);
      members.Set("PlayerID", player.id);
      members.Update();
    }
    made.append(team);
  }
  return made;
}

}  // namespace tavrelin
