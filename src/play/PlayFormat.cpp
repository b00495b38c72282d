#include "play/PlayFormat.h"

#include <algorithm>

#include "data/Connection.h"
#include "tournament/Classes.h"

namespace tavrelin {
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
  return {side + "ID",      side + "Number", side + "Points",   side + "SinglePoints",
          side + "Forfeit", {side + "ID"},   {side + "Ringers"}};
}

SideColumns TeamSide(const QString& side) {
  return {side + "ID",
          {},
          side + "Points",
          {},
          {},
          {side + "PlayerOneID", side + "PlayerTwoID"},
          {side + "PlayerOneRingers", side + "PlayerTwoRingers"}};
}

PitcherColumns Partner(const QString& player) {
  return {player + "ID",        player + "HiGame",   player + "Ringers", player + "Shoes",
          player + "FirstName", player + "LastName", player + "Name"};
}

/// The literal 0.0111 only makes the engine give the two computed columns a floating type. The
/// roster's columns are reserved and filled by one walk over it: a join would walk it once for each
/// entrant.
QString SinglesStandings(const QString& tail) {
  return QStringLiteral(
             "SELECT %1 AS PlayerName, e.PlayerID, %2 AS State, %2 AS Category, "
             "e.RingerPercent AS EntryAvg, e.TotalWins AS Won, "
             "e.TotalLosses AS Loss, e.TotalRingers AS Ringers, e.TotalShoes AS Shoes, "
             "0.0111 AS RingerPercent, 0.0111 AS OverAverage, 0 AS HeadToHead, "
             "e.TotalPoints AS Points, %3 AS Card, Seed")
             .arg(Placeholder(46), Placeholder(2), Placeholder(6)) +
         tail +
         QStringLiteral(" FROM TournamentEntrants e WHERE e.SanctionID = ? AND e.ClassID = ?");
}

QString DoublesStandings(const QString& floating) {
  return QStringLiteral(
             "SELECT e.PlayerOneID, e.PlayerOneRingers, %1 AS PlayerOneName, e.PlayerTwoID, "
             "e.PlayerTwoRingers, %1 AS PlayerTwoName, e.TeamID, t.Team, "
             "e.RingerPercent AS EntryAvg, e.TotalWins AS Won, e.TotalLosses AS Loss, "
             "e.TotalRingers AS Ringers, e.TotalShoes AS Shoes, e.TotalPoints AS Points, Seed, "
             "%2 AS RingerPercent, %2 AS OverAverage, 0 AS HeadToHead "
             "FROM TournamentTeamEntrants e, Teams t WHERE e.SanctionID = ? AND e.ClassID = ? AND "
             "t.TeamID = e.TeamID")
      .arg(Placeholder(45), floating);
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
  f.standingsStatement = SinglesStandings(QStringLiteral(", 0 AS Rank, RankOverride AS Override"));
  f.reportStatement = SinglesStandings({});
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
  f.standingsStatement = DoublesStandings(QStringLiteral("0.01"));
  f.reportStatement = DoublesStandings(QStringLiteral("0.0111"));
}

PlayFormat MakeSingles() {
  PlayFormat f;
  f.code = QStringLiteral("S");
  f.gameTable = QStringLiteral("TournamentSinglesRR");
  f.entrantTable = QStringLiteral("TournamentEntrants");
  f.entrantID = QStringLiteral("PlayerID");
  f.sides = {PlayerSide(QStringLiteral("PlayerOne")), PlayerSide(QStringLiteral("PlayerTwo"))};
  f.pitchers = {{"PlayerID", "HiGame", {}, {}, "FirstName", "LastName", "PlayerName"}};
  f.pacerID = "PPPPPP";
  f.pacerPitchers = {QStringLiteral("PPPPPP")};
  f.forgivesTypingSlips = true;
  NameSinglesStatements(f);
  f.listFields = {{"PlayerID", FieldType::Text, 6},    {"FirstName", FieldType::Text, 20},
                  {"LastName", FieldType::Text, 25},   {"RingerPercent", FieldType::Single},
                  {"State", FieldType::Text, 6},       {"TotalWins", FieldType::Text, 4},
                  {"TotalLosses", FieldType::Text, 4}, {"PlayerNumber", FieldType::Long}};
  f.pacerRow = {{"PlayerID", f.pacerID}, {"FirstName", "PACER"}, {"LastName", " "}};
  f.rosterFields = {{"State", "State"}, {"Category", "Category"}, {"Card", "CardNumber"}};
  f.hasOverride = true;
  f.hasTwoUpCards = true;
  f.standingsName = QStringLiteral("PlayerName");
  f.standingsRingers = {QStringLiteral("Ringers")};
  f.ringerOrder = {"Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, OverAverage DESC",
                   "(Rank: W/L - Rgr% - H2H - OvrAvg)"};
  f.entrantNames = FullNames;
  return f;
}

PlayFormat MakeDoubles() {
  PlayFormat f;
  f.code = QStringLiteral("D");
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
  f.ringerOrder = {"Won DESC, Loss ASC, RingerPercent DESC, HeadToHead DESC, Points DESC",
                   "(Rank: W/L - Rgr% - H2H - Pts)"};
  f.entrantNames = TeamNames;
  return f;
}

}  // namespace

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
