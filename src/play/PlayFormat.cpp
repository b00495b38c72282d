#include "play/PlayFormat.h"

#include <algorithm>

#include "tournament/Classes.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

namespace {

QString Placeholder(int width) {
  return u'\'' + QString(width, u'x') + u'\'';
}

QString GamesStatement(const QString& columns, const QString& table) {
  return QStringLiteral(
             "SELECT SanctionID, ClassID, Game, Court, Shoes, %1 FROM %2 WHERE SanctionID = ? AND "
             "ClassID = ? ORDER BY Game, Court")
      .arg(columns, table);
}

SideColumns PlayerSide(const QString& side) {
  return {.id = side + "ID",
          .number = side + "Number",
          .result = side + "WL",
          .points = side + "Points",
          .singlePoints = side + "SinglePoints",
          .forfeit = side + "Forfeit",
          .pitchers = {side + "ID"},
          .ringers = {side + "Ringers"}};
}

SideColumns TeamSide(const QString& side) {
  return {.id = side + "ID",
          .number = {},
          .result = side + "WL",
          .points = side + "Points",
          .singlePoints = {},
          .forfeit = {},
          .pitchers = {side + "PlayerOneID", side + "PlayerTwoID"},
          .ringers = {side + "PlayerOneRingers", side + "PlayerTwoRingers"}};
}

PitcherColumns Partner(const QString& player) {
  return {player + "ID",        player + "HiGame",   player + "Ringers", player + "Shoes",
          player + "FirstName", player + "LastName", player + "Name",    player};
}

/// One pitcher's columns of the standings. Those of the roster are reserved and filled by one walk
/// over it: a join would walk it once for each entrant.
QStringList StandingColumnsOf(const PitcherColumns& pitcher, int nameWidth) {
  QStringList columns = {u"e."_s + pitcher.id,
                         Placeholder(nameWidth) + u" AS "_s + pitcher.fullName,
                         u"e."_s + pitcher.hiGame};
  for (const QString& share : {pitcher.ringers, pitcher.shoes})
    if (!share.isEmpty()) columns << u"e."_s + share;
  for (const RosterField& field : RosterFields())
    columns << Placeholder(field.width) + u" AS "_s + pitcher.prefix + field.name;
  return columns;
}

/// The literal 0.0111 only makes the engine give the two computed columns a floating type.
QString StandingsStatement(const PlayFormat& format, int nameWidth, const QString& own,
                           const QString& from) {
  QStringList pitchers;
  for (const PitcherColumns& pitcher : format.pitchers)
    pitchers << StandingColumnsOf(pitcher, nameWidth);
  return u"SELECT %1, %2, e.RingerPercent AS EntryAvg, e.TotalWins AS Won, e.TotalLosses AS Loss, "
         "e.TotalRingers AS Ringers, e.TotalShoes AS Shoes, 0.0111 AS RingerPercent, "
         "0.0111 AS OverAverage, e.HeadToHead, e.TotalPoints AS Points, e.Seed, 0 AS Rank "
         "FROM %3 WHERE e.SanctionID = ? AND e.ClassID = ?"_s.arg(own, pitchers.join(u", "), from);
}

void NameSinglesStatements(PlayFormat& f) {
  f.gamesStatement = GamesStatement(
      QStringLiteral(
          "PlayerOneID, ' ' AS PlayerOneWL, "
          "PlayerOnePoints, PlayerOneRingers, PlayerTwoID, ' ' AS PlayerTwoWL, PlayerTwoPoints, "
          "PlayerTwoRingers, PlayerOneNumber, PlayerTwoNumber, PlayerOneSinglePoints, "
          "PlayerTwoSinglePoints, PlayerOneForfeit, PlayerTwoForfeit, Approved, GameID"),
      f.gameTable);
  f.entrantsStatement = QStringLiteral(
      "SELECT e.PlayerID, e.Seed, e.RingerPercent, e.TotalWins, e.TotalLosses, 0 AS PlayerNumber "
      "FROM TournamentEntrants e WHERE e.SanctionID = ? AND e.ClassID = ?");
  f.standingsStatement =
      StandingsStatement(f, 46, u"e.RankOverride AS Override"_s, u"TournamentEntrants e"_s);
}

void NameDoublesStatements(PlayFormat& f) {
  f.gamesStatement = GamesStatement(
      QStringLiteral(
          "TeamOneID, ' ' AS TeamOneWL, "
          "TeamOnePoints, TeamOnePlayerOneID, TeamOnePlayerOneRingers, TeamOnePlayerTwoID, "
          "TeamOnePlayerTwoRingers, TeamTwoID, ' ' AS TeamTwoWL, TeamTwoPoints, "
          "TeamTwoPlayerOneID, TeamTwoPlayerOneRingers, TeamTwoPlayerTwoID, "
          "TeamTwoPlayerTwoRingers, Approved"),
      f.gameTable);
  f.entrantsStatement =
      QStringLiteral(
          "SELECT e.TeamID, e.Seed, e.RingerPercent, t.Team, PlayerOneID, "
          "%1 AS PlayerOneFirstName, %2 AS PlayerOneLastName, PlayerTwoID, "
          "%1 AS PlayerTwoFirstName, %2 AS PlayerTwoLastName "
          "FROM TournamentTeamEntrants e, Teams t WHERE e.SanctionID = ? AND e.ClassID = ? AND "
          "e.TeamID = t.TeamID")
          .arg(Placeholder(20), Placeholder(25));
  f.standingsStatement =
      StandingsStatement(f, 45, u"e.TeamID, t.Team"_s,
                         u"TournamentTeamEntrants e INNER JOIN Teams t ON t.TeamID = e.TeamID"_s);
}

PlayFormat MakeSingles() {
  PlayFormat f;
  f.code = u"S"_s;
  f.entrant = u"player"_s;
  f.gameTable = QStringLiteral("TournamentSinglesRR");
  f.entrantTable = QStringLiteral("TournamentEntrants");
  f.entrantID = QStringLiteral("PlayerID");
  f.sides = {PlayerSide(QStringLiteral("PlayerOne")), PlayerSide(QStringLiteral("PlayerTwo"))};
  f.pitchers = {{"PlayerID", "HiGame", {}, {}, "FirstName", "LastName", "PlayerName", {}}};
  f.pacerID = "PPPPPP";
  f.pacerPitchers = {QStringLiteral("PPPPPP")};
  f.checksScores = true;
  f.hasForfeits = true;
  f.forgivesTypingSlips = true;
  f.listsRosterOnly = true;
  NameSinglesStatements(f);
  f.listFields = {{"PlayerID", FieldType::Text, 6},    {"FirstName", FieldType::Text, 20},
                  {"LastName", FieldType::Text, 25},   {"RingerPercent", FieldType::Single},
                  {"State", FieldType::Text, 6},       {"TotalWins", FieldType::Text, 4},
                  {"TotalLosses", FieldType::Text, 4}, {"PlayerNumber", FieldType::Long}};
  f.pacerRow = {{"PlayerID", f.pacerID}, {"FirstName", "PACER"}, {"LastName", " "}};
  f.hasOverride = true;
  f.hasTwoUpCards = true;
  f.standingsName = QStringLiteral("PlayerName");
  f.standingsRingers = {QStringLiteral("Ringers")};
  f.entrantNames = FullNames;
  return f;
}

PlayFormat MakeDoubles() {
  PlayFormat f;
  f.code = u"D"_s;
  f.entrant = u"team"_s;
  f.gameTable = QStringLiteral("TournamentDoublesRR");
  f.entrantTable = QStringLiteral("TournamentTeamEntrants");
  f.entrantID = QStringLiteral("TeamID");
  f.sides = {TeamSide(QStringLiteral("TeamOne")), TeamSide(QStringLiteral("TeamTwo"))};
  f.pitchers = {Partner(QStringLiteral("PlayerOne")), Partner(QStringLiteral("PlayerTwo"))};
  f.pacerID = 0;
  f.pacerPitchers = {QStringLiteral("PPPPP1"), QStringLiteral("PPPPP2")};
  NameDoublesStatements(f);
  f.listFields = {{"TeamID", FieldType::Long},
                  {"Team", FieldType::Text, 50},
                  {"RingerPercent", FieldType::Single},
                  {"PlayerOneID", FieldType::Text, 6},
                  {"PlayerOneFirstName", FieldType::Text, 20},
                  {"PlayerOneLastName", FieldType::Text, 25},
                  {"PlayerTwoID", FieldType::Text, 6},
                  {"PlayerTwoFirstName", FieldType::Text, 20},
                  {"PlayerTwoLastName", FieldType::Text, 25},
                  {"PlayerNumber", FieldType::Long}};
  f.pacerRow = {{"TeamID", f.pacerID},
                {"Team", "PACER"},
                {"PlayerOneID", "PPPPP1"},
                {"PlayerOneFirstName", "PACER 1"},
                {"PlayerOneLastName", " "},
                {"PlayerTwoID", "PPPPP2"},
                {"PlayerTwoFirstName", "PACER 2"},
                {"PlayerTwoLastName", " "}};
  f.pacerHasHandicap = true;
  f.pacerOnCards = QStringLiteral("PACER");
  f.standingsName = QStringLiteral("Team");
  f.standingsRingers = {QStringLiteral("PlayerOneRingers"), QStringLiteral("PlayerTwoRingers")};
  f.entrantNames = TeamNames;
  return f;
}

}  // namespace

const QList<RosterField>& RosterFields() {
  static const QList<RosterField> fields = {
      {u"City"_s, u"City"_s, 30},        {u"State"_s, u"State"_s, 2},
      {u"Category"_s, u"Category"_s, 2}, {u"Card"_s, u"CardNumber"_s, 6},
      {u"CardYear"_s, u"CardYear"_s, 4}, {u"Telephone"_s, u"Telephone"_s, 10}};
  return fields;
}

const PlayFormat& SinglesFormat() {
  static const PlayFormat format = MakeSingles();
  return format;
}

const PlayFormat& DoublesFormat() {
  static const PlayFormat format = MakeDoubles();
  return format;
}

const PlayFormat& FormatOf(const QString& code) {
  return code.trimmed().compare(u"D", Qt::CaseInsensitive) == 0 ? DoublesFormat() : SinglesFormat();
}

const PlayFormat& FormatOf(const ClassRules& rules) {
  return FormatOf(rules.playFormat);
}

}  // namespace tavrelin
