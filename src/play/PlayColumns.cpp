#include "play/PlayColumns.h"

#include "controls/GridEX.h"
#include "controls/LineIcon.h"
#include "play/PlayFormat.h"

namespace tavrelin {

namespace {

struct TwoCaptions {
  QString key, narrow, wide;
};

QString Stem(const SideColumns& side) {
  return side.id.chopped(2);
}

GridColumn Hidden(const QString& field) {
  return {.caption = field, .field = field, .visible = false};
}

GridColumn Figure(const QString& caption, const QString& field, int width, const QString& spoken) {
  return {.caption = caption,
          .field = field,
          .width = width,
          .editor = CellEditor::Number,
          .alignment = Qt::AlignRight,
          .sort = SortKind::Numeric,
          .spokenCaption = spoken};
}

// "PlayerOneRingers" is said "Player one ringers".
QString Spoken(const QString& field) {
  QString words;
  for (const QChar letter : field) {
    if (letter.isUpper() && !words.isEmpty()) words += ' ';
    words += words.isEmpty() ? letter : letter.toLower();
  }
  return words;
}

void AddForfeit(QList<GridColumn>& columns, const SideColumns& side) {
  if (side.forfeit.isEmpty()) return;
  columns.append({.caption = "Frft",
                  .field = side.forfeit,
                  .width = 500,
                  .visible = false,
                  .editor = CellEditor::CheckBox,
                  .spokenCaption = Spoken(side.forfeit)});
}

void AddSinglePoints(QList<GridColumn>& columns, const SideColumns& side, const QString& key) {
  if (side.singlePoints.isEmpty()) return;
  GridColumn column = Figure("SglP", side.singlePoints, 600, Spoken(side.singlePoints));
  column.key = key;
  column.visible = column.selectable = false;
  column.defaultValue = 0;
  columns.append(column);
}

// The pitchers of a team stand behind it; they come with the team that is chosen.
void AddPitchers(QList<GridColumn>& columns, const SideColumns& side) {
  for (qsizetype i = 0; i < side.ringers.size(); ++i) {
    if (side.IsTeam()) {
      columns.append({.caption = i == 0 ? "A" : "B",
                      .field = side.pitchers[i],
                      .width = 760,
                      .selectable = false,
                      .editable = false,
                      .spokenCaption = Spoken(side.pitchers[i])});
    }
    columns.append(Figure("Rgrs", side.ringers[i], 600, Spoken(side.ringers[i])));
  }
}

void AddSide(QList<GridColumn>& columns, const SideColumns& side, const QString& singlePointsKey) {
  columns.append({.caption = "wl",
                  .field = side.result,
                  .width = 400,
                  .selectable = false,
                  .editable = false,
                  .icon = true,
                  .spokenCaption = Spoken(Stem(side)) + " result"});
  AddForfeit(columns, side);
  columns.append({.caption = "Name",
                  .field = side.id,
                  .width = 1600,
                  .editor = CellEditor::List,
                  .fill = true,
                  .spokenCaption = Spoken(Stem(side))});
  columns.append(Figure("Pts", side.points, 550, Spoken(side.points)));
  AddPitchers(columns, side);
  AddSinglePoints(columns, side, singlePointsKey);
}

QList<TwoCaptions> Captions(const PlayFormat& format) {
  QList<TwoCaptions> captions = {
      {"Game", "Gm", "Game"}, {"Court", "Crt", "Court"}, {"Shoes", "Shs", "Shoes"}};
  for (const SideColumns& side : format.sides) {
    captions.append({side.points, "Pts", "Points"});
    for (const QString& ringers : side.ringers) captions.append({ringers, "Rgrs", "Ringers"});
    captions.append({side.result, "wl", "W/L"});
  }
  captions.append({"Approved", "X", "Approved"});
  return captions;
}

// The narrow cards of singles leave the second player's ringers a line of their own; the wide ones
// take the flag from every column.
bool IsCompact(const QString& key, const PlayFormat& format, bool narrow) {
  if (key == "Approved" || key.endsWith("WL")) return false;
  const bool secondRingers = !format.IsDoubles() && key == format.sides[1].ringers[0];
  return !(narrow && secondRingers);
}

GridColumn Standing(const QString& caption, const QString& field, int width) {
  return {.caption = caption,
          .field = field,
          .width = width,
          .editable = false,
          .alignment = Qt::AlignRight,
          .sort = SortKind::Numeric};
}

GridColumn HalfWins(const QString& caption, const QString& field) {
  GridColumn column = Standing(caption, field, 750);
  column.fetchData = true;
  return column;
}

GridColumn Percent(const QString& caption, const QString& field, const QString& spoken = {}) {
  GridColumn column = Standing(caption, field, 1050);
  column.picture = "#0.00";
  column.spokenCaption = spoken;
  return column;
}

GridColumn OverrideColumn() {
  GridColumn column = Standing("Override", "Override", 950);
  column.editable = true;
  column.editor = CellEditor::Number;
  return column;
}

}  // namespace

QList<GridColumn> ScoreColumns(const PlayFormat& format) {
  QList<GridColumn> columns = {Hidden("SanctionID"), Hidden("ClassID")};
  columns.append(Figure("Gm", "Game", 450, "Game"));
  columns.append({.caption = "Crt",
                  .field = "Court",
                  .width = 450,
                  .maxLength = 3,
                  .alignment = Qt::AlignRight,
                  .spokenCaption = "Court"});
  columns.append(Figure("Shs", "Shoes", 500, "Shoes"));
  AddSide(columns, format.sides[0], "POneSinglePts");
  AddSide(columns, format.sides[1], "PTwoSinglePts");
  columns.append({.caption = "X",
                  .field = "Approved",
                  .width = 400,
                  .editor = CellEditor::CheckBox,
                  .spokenCaption = "Approved"});
  return columns;
}

QList<GridColumn> StandingsColumns(const PlayFormat& format) {
  QList<GridColumn> columns;
  if (format.hasOverride) columns << Standing("Rank", "Rank", 700) << OverrideColumn();
  const QString name = format.IsDoubles() ? "Team" : "Player Name";
  columns.append({.caption = name,
                  .field = format.standingsName,
                  .width = 1900,
                  .editable = false,
                  .fill = true});
  columns << HalfWins("Won", "Won") << HalfWins("Loss", "Loss") << Standing("Shoes", "Shoes", 800)
          << Standing("Ringers", "Ringers", 900) << Percent("Ringer %", "RingerPercent")
          << Standing("Points", "Points", 800)
          << Percent("Over Avg", "OverAverage", "Percent over average")
          << Standing("HtoH", "HeadToHead", 750) << Hidden(format.entrantID);
  columns[columns.size() - 2].spokenCaption = "Head to head";
  return columns;
}

QList<GridIcon> ScoreIcons() {
  return {{QIcon(), ""},
          {LineIcon("win"), "Win"},
          {LineIcon("loss"), "Loss"},
          {LineIcon("tie"), "Tie"}};
}

void FlipScoreView(GridEX& grid, const PlayFormat& format) {
  const bool narrow = grid.CurrentView() == GridEX::View::Table;
  for (const TwoCaptions& caption : Captions(format)) {
    grid.SetCaption(caption.key, narrow ? caption.narrow : caption.wide);
    if (IsCompact(caption.key, format, narrow)) grid.SetCompact(caption.key, narrow);
  }
  grid.SetView(narrow ? GridEX::View::Card : GridEX::View::Table);
}

}  // namespace tavrelin
