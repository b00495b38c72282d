#include "print/ReportTable.h"

#include <gtest/gtest.h>

#include "print/Fonts.h"
#include "print/OutputTarget.h"
#include "support/QtPrinters.h"

namespace tavrelin {
namespace {

struct Member {
  QString name;
  QString city;
  int shoes = 0;
  double won = 0;
};

QList<ReportColumn<Member>> Columns() {
  return {{{"Name", 800, 500}, NameOf(&Member::name), LeftText("Name", 12)},
          {{"City", 3000, 3000}, TextOf(&Member::city)},
          {{"Total\nShoes", 6000, 6100}, FigureOf(&Member::shoes, "###0"), RightText("Shoes", 5)},
          {{"Won", 8000, 8000}, HalfWinsOf(&Member::won), RightText("Won", 4)}};
}

const TableForm Plain = {.headHeight = 350, .rowHeight = 250, .figureStep = 100, .size = 11};

QList<Member> Members(int count) {
  QList<Member> members;
  for (int n = 1; n <= count; ++n) members << Member{QString("M%1").arg(n), "Rome", 40, 1};
  return members;
}

Document Printed(const PageForm& form, const ReportTable<Member>& table, int count,
                 const GroupHead& head = {}) {
  return Record(OutputTarget::Kind::Printer, {}, [&](OutputTarget& target) {
    ReportPages pages(target, form);
    table.Print(pages, Members(count), head);
    pages.PrintClosing(200, QString("Count: %1").arg(count), 11);
  });
}

/// The texts of a page that begin so, in the order of printing.
QList<TextMark> TextsOf(const Document& document, int page, const QString& beginning = {}) {
  QList<TextMark> texts;
  for (const Mark& mark : document.pages[page - 1].marks) {
    const auto* text = std::get_if<TextMark>(&mark);
    if (text && text->text.startsWith(beginning)) texts << *text;
  }
  return texts;
}

QList<LineMark> RulesOf(const Document& document, int page) {
  QList<LineMark> rules;
  for (const Mark& mark : document.pages[page - 1].marks) {
    if (const auto* rule = std::get_if<LineMark>(&mark)) rules << *rule;
  }
  return rules;
}

bool HasLine(const Document& document, const LineMark& rule) {
  return RulesOf(document, 1).contains(rule);
}

TEST(ReportTable, HeadingsStandUnderlinedAtTheirOwnXAndCellsAtTheirs) {
  const Document document = Printed({.room = {.top = 1600}}, {Columns(), Plain}, 1);
  const QList<TextMark> texts = TextsOf(document, 1);
  const PageFont heading = {.size = 11, .underline = true};
  const PageFont row = {.size = 11};
  ASSERT_EQ(texts.size(), 5 + 4 + 1);
  EXPECT_EQ(texts[0], (TextMark{800, 1600, "Name", heading}));
  EXPECT_EQ(texts[2], (TextMark{6000, 1400, "Total", heading}));
  EXPECT_EQ(texts[3], (TextMark{6000, 1600, "Shoes", heading}));
  EXPECT_EQ(texts[5], (TextMark{500, 1950, "M1", row}));
  EXPECT_EQ(texts[7], (TextMark{6100 + 2 * 100, 1950, "40", row}));
  EXPECT_EQ(texts[8], (TextMark{8000 + 100, 1950, "1", row}));
  EXPECT_EQ(texts[9], (TextMark{200, 2200, "Count: 1", row}));
}

TEST(ReportTable, AColumnCanEndAtItsRightEdge) {
  QList<ReportColumn<Member>> columns = Columns();
  columns[2].place = {"Shoes", 6500, 6500, Align::RightEdge};
  const Document document = Printed({}, {columns, Plain}, 1);
  const TextMark cell = TextsOf(document, 1, "40").value(0);
  EXPECT_EQ(cell.x, 6500 - TextWidth({.size = 11}, "40"));
  EXPECT_EQ(TextsOf(document, 1, "Shoes").value(0).x,
            6500 - TextWidth({.size = 11, .underline = true}, "Shoes"));
}

TEST(ReportTable, ALongNameEndsBeforeTheNextColumnThatIsNotEmpty) {
  const ReportTable<Member> table(Columns(), Plain);
  const QString name = "Bartholomew-Christopher Featherstonehaugh-Sme";
  struct Case {
    QString city;
    int end;
    bool smaller;
  };
  for (const Case& one : {Case{"Rome", 3000, true}, Case{"", 6100, false}}) {
    const Document document = Record(OutputTarget::Kind::Printer, {}, [&](OutputTarget& target) {
      ReportPages pages(target, {});
      table.Print(pages, {{name, one.city, 40, 1}});
    });
    const TextMark mark = TextsOf(document, 1, "Barth").value(0);
    EXPECT_LE(mark.x + TextWidth(mark.font, name), one.end - 40);
    EXPECT_EQ(mark.font.size < 11, one.smaller) << one.city.toStdString();
  }
}

TEST(ReportTable, EachPageRepeatsHeadAndHeadingsAndTheLastOneIsNotEmpty) {
  const PageForm form = {.head = {{4200, 350, "Entries"}}, .room = {.top = 1600, .limit = 2700}};
  // Three rows of 250 from 1950 end at 2700.
  struct Case {
    int rows;
    qsizetype pages;
    qsizetype onLast;
  };
  for (const Case& one : {Case{0, 1, 0}, Case{3, 1, 3}, Case{4, 2, 1}, Case{6, 2, 3}}) {
    const Document document = Printed(form, {Columns(), Plain}, one.rows);
    ASSERT_EQ(document.pages.size(), one.pages) << one.rows;
    for (int page = 1; page <= one.pages; ++page) {
      EXPECT_EQ(TextsOf(document, page, "Entries").value(0).y, 350);
      EXPECT_EQ(TextsOf(document, page, "Name").value(0).y, 1600);
    }
    EXPECT_EQ(TextsOf(document, int(one.pages), "M").size(), one.onLast) << one.rows;
    EXPECT_EQ(TextsOf(document, int(one.pages), "Count").value(0).y, 1950 + 250 * one.onLast);
  }
}

TEST(ReportTable, AHeadThatIsNotRepeatedLeavesItsRoomToTheRows) {
  PageForm form = {.head = {{4200, 350, "Entries"}}, .room = {.top = 1600, .limit = 2200}};
  form.repeatsHead = false;
  form.room.laterTop = 400;
  const Document document = Printed(form, {Columns(), Plain}, 2);
  EXPECT_TRUE(TextsOf(document, 2, "Entries").isEmpty());
  EXPECT_EQ(TextsOf(document, 2, "M2").value(0).y, 750);
}

TEST(ReportTable, TheSecondColumnOfAPageHasItsHeadingsAndTheRuleBetweenThem) {
  PageForm form = {.room = {.top = 1600, .limit = 2200, .columns = {0, 5000}}};
  form.rules << LineMark{6200, 1600, 6200, 14250};
  const Document document = Printed(form, {Columns(), Plain}, 3);
  ASSERT_EQ(document.pages.size(), 2);
  EXPECT_EQ(TextsOf(document, 1, "Name").value(1).x, 5800);
  EXPECT_EQ(TextsOf(document, 1, "M2").value(0).x, 5500);
  EXPECT_EQ(TextsOf(document, 1, "M2").value(0).y, 1950);
  EXPECT_EQ(TextsOf(document, 2, "M3").value(0).x, 500);
  for (const int page : {1, 2}) EXPECT_EQ(RulesOf(document, page), form.rules);
}

/// A class of so many entrants under its title, 650 twips above the headings.
void PrintClass(ReportPages& pages, const ReportTable<Member>& table, const QString& title,
                int entrants, int needed = 0) {
  table.Print(pages, Members(entrants), {{{200, 0, title, 12}}, 650, needed});
}

TEST(ReportTable, AGroupStandsOnOnePageIfItFits) {
  const ReportTable<Member> table(Columns(), Plain);
  const Document document = Record(OutputTarget::Kind::Printer, {}, [&](OutputTarget& target) {
    ReportPages pages(target, {.room = {.top = 1000, .limit = 14600}});
    PrintClass(pages, table, "A", 20, 20 * 250 + 1000);  // ends at 1000 + 1000 + 5000
    PrintClass(pages, table, "B", 20, 20 * 250 + 1000);  // needs 13000
    PrintClass(pages, table, "C", 20, 20 * 250 + 1000);  // would need 19000
  });
  ASSERT_EQ(document.pages.size(), 2);
  EXPECT_EQ(TextsOf(document, 1, "A").value(0).y, 1000);
  EXPECT_EQ(TextsOf(document, 1, "Name").value(0).y, 1650);
  EXPECT_EQ(TextsOf(document, 1, "M1").value(0).y, 2000);
  EXPECT_EQ(TextsOf(document, 1, "B").value(0).y, 7000);
  EXPECT_EQ(TextsOf(document, 2, "C").value(0).y, 1000);
}

TEST(ReportTable, TheHeadOfAGroupIsNeverTheLastOnItsPage) {
  const ReportTable<Member> table(Columns(), Plain);
  // After 6 rows the page has come to 3500; head, headings and one row of B ask for 1250 more.
  for (const int limit : {4749, 4750}) {
    const Document document = Record(OutputTarget::Kind::Printer, {}, [&](OutputTarget& target) {
      ReportPages pages(target, {.room = {.top = 1000, .limit = limit}});
      PrintClass(pages, table, "A", 6);
      PrintClass(pages, table, "B", 1);
    });
    EXPECT_EQ(document.pages.size(), limit == 4750 ? 1 : 2);
    EXPECT_EQ(TextsOf(document, int(document.pages.size()), "B").size(), 1);
  }
}

TEST(ReportTable, AGroupLongerThanAPageGoesOnUnderItsHeadings) {
  const Document document = Printed({.room = {.top = 1000, .limit = 3000}}, {Columns(), Plain}, 8,
                                    {{{200, 0, "Class A", 12}}, 650, 8 * 250 + 1000});
  ASSERT_EQ(document.pages.size(), 2);
  EXPECT_EQ(TextsOf(document, 1, "M").size(), 4);
  EXPECT_TRUE(TextsOf(document, 2, "Class").isEmpty());
  EXPECT_EQ(TextsOf(document, 2, "Name").value(0).y, 1000);
}

TEST(ReportTable, APartWithAnotherHeadBeginsAPageOfItsOwn) {
  const Document document = Record(OutputTarget::Kind::Printer, {}, [](OutputTarget& target) {
    ReportPages teams(target, {.orientation = Orientation::Landscape, .head = {{0, 0, "Teams"}}});
    ReportPages members(target, {.orientation = Orientation::Portrait, .head = {{0, 0, "All"}}});
  });
  ASSERT_EQ(document.pages.size(), 2);
  EXPECT_EQ(document.pages[0].orientation, Orientation::Landscape);
  EXPECT_EQ(document.pages[1].orientation, Orientation::Portrait);
  EXPECT_EQ(TextsOf(document, 2, "All").size(), 1);
}

TEST(ReportTable, AHeadLineWithARoomOfItsOwnStaysInIt) {
  OutputTarget target(OutputTarget::Kind::Printer);
  target.Font().size = 11;
  PrintLines(target, {{200, 400, QString(40, 'M'), 12, true, 5000}, {200, 800, "Date", 11, false}},
             10, 20);
  const auto first = std::get<TextMark>(target.Written().pages[0].marks[0]);
  EXPECT_LE(TextWidth(first.font, first.text), 5000);
  const auto second = std::get<TextMark>(target.Written().pages[0].marks[1]);
  EXPECT_EQ(second, (TextMark{210, 820, "Date", {.size = 11}}));
  EXPECT_EQ(target.Font(), (PageFont{.size = 11}));
  EXPECT_EQ(target.CurrentY(), 820 + LineHeight({.size = 11}));
}

TEST(RuledTable, BandAndRowsHaveTheirLinesAndTextsTheirRoomBetweenTheVerticals) {
  TableForm form = {.headHeight = 750, .headingsDrop = 500, .rowHeight = 400, .textDrop = 100};
  form.ruling = Ruling{{150, 2900, 5900, 11300}, 750, 2};
  const ReportTable<Member> table(Columns(), form);
  const Document document = Record(OutputTarget::Kind::Printer, {}, [&](OutputTarget& target) {
    ReportPages pages(target, {.room = {.top = 3500, .limit = 14000}});
    table.Print(pages, {{QString(25, 'M'), "Rome", 40, 1}, {"Ann", {}, 40, 1}});
  });
  for (const int y : {3500, 4250, 4650, 5050}) {
    EXPECT_TRUE(HasLine(document, {150, y, 11300, y, 30})) << y;
  }
  for (const int x : {150, 2900, 5900, 11300}) {
    EXPECT_TRUE(HasLine(document, {x, 3500, x, 4250, 30})) << x;
    EXPECT_TRUE(HasLine(document, {x, 4250, x, 4650, 30})) << x;
    EXPECT_TRUE(HasLine(document, {x, 4650, x, 5050, 30})) << x;
  }
  EXPECT_EQ(RulesOf(document, 1).size(), 2 + 4 + 2 * (4 + 1));
  EXPECT_EQ(TextsOf(document, 1, "Total").value(0).y, 3800);
  EXPECT_EQ(TextsOf(document, 1, "Shoes").value(0).y, 4000);
  EXPECT_EQ(TextsOf(document, 1, "Ann").value(0).y, 4750);
  const TextMark name = TextsOf(document, 1, "MMM").value(0);
  EXPECT_LE(name.x + TextWidth(name.font, name.text), 2900 - 40);
}

TEST(RuledTable, ABandCanHaveLinesOfItsOwn) {
  OutputTarget target(OutputTarget::Kind::Printer);
  const Ruling ruling = {{150, 800, 3500}, 750, 1, {{150, 0, 3500, 0}, {800, 375, 800, 750}}};
  DrawBand(target, ruling, 100, 600);
  const QList<Mark> lines = {LineMark{250, 600, 3600, 600}, LineMark{900, 975, 900, 1350}};
  EXPECT_EQ(target.Written().pages[0].marks, lines);
}

TEST(ReportTable, TheTextFormComesFromTheSameColumns) {
  const ReportTable<Member> table(Columns(), Plain);
  EXPECT_EQ(table.Text({{"Ann Baker", "Rome", 40, 3.5}, {"Walt Carr", "Rome", 1120, 2}}),
            "Name          Shoes   Won  \n"
            "----          -----   ---  \n"
            "Ann Baker        40   3.5  \n"
            "Walt Carr      1120     2  \n");
}

}  // namespace
}  // namespace tavrelin
