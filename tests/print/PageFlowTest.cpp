#include "print/PageFlow.h"

#include <gtest/gtest.h>

namespace tavrelin {
namespace {

/// Where each of these rows comes: "page: left y".
std::string Places(const PageRoom& room, const QList<int>& heights) {
  PageFlow flow(room);
  std::string places;
  for (const int height : heights) {
    if (!flow.HasRoom(flow.RoomForRow(height))) flow.Next();
    const int y = flow.Take(height);
    places += std::to_string(flow.Page()) + ": " + std::to_string(flow.Left()) + ' ' +
              std::to_string(y) + '\n';
  }
  return places;
}

TEST(PageFlow, ARowThatWouldEndBeyondTheLimitGoesToTheNextPage) {
  // 500, 800 and 1100 to 1400, which is the limit; the fourth would end at 1700.
  EXPECT_EQ(Places({.top = 500, .limit = 1400}, {300, 300, 300, 300}),
            "1: 0 500\n1: 0 800\n1: 0 1100\n2: 0 500\n");
  EXPECT_EQ(Places({.top = 500, .limit = 1399}, {300, 300, 300}), "1: 0 500\n1: 0 800\n2: 0 500\n");
}

TEST(PageFlow, WhereTheLimitIsPassedTheRowThatPassesItIsThePagesLast) {
  const PageRoom room = {.top = 500, .limit = 1100, .full = PageFull::PastLimit};
  EXPECT_EQ(Places(room, {300, 300, 300, 300}), "1: 0 500\n1: 0 800\n1: 0 1100\n2: 0 500\n");
  const PageRoom shorter = {.top = 500, .limit = 1099, .full = PageFull::PastLimit};
  EXPECT_EQ(Places(shorter, {300, 300, 300}), "1: 0 500\n1: 0 800\n2: 0 500\n");
}

TEST(PageFlow, RowsGoDownTheColumnsOfAPageBeforeTheNextPage) {
  EXPECT_EQ(Places({.top = 100, .limit = 300, .columns = {0, 5000}}, {100, 100, 100, 100, 100}),
            "1: 0 100\n1: 0 200\n1: 5000 100\n1: 5000 200\n2: 0 100\n");
}

TEST(PageFlow, LaterPagesMayBeginElsewhere) {
  EXPECT_EQ(Places({.top = 1000, .laterTop = 200, .limit = 1300}, {300, 300, 300}),
            "1: 0 1000\n2: 0 200\n2: 0 500\n");
}

TEST(PageFlow, ARowTooHighForAnyPageHasOneOfItsOwnAndNoPageIsLeftEmpty) {
  EXPECT_EQ(Places({.top = 500, .limit = 1000}, {2000, 100, 2000}),
            "1: 0 500\n2: 0 500\n3: 0 500\n");
}

TEST(PageFlow, HeadingsFillNoPage) {
  PageFlow flow({.top = 500, .limit = 1000});
  EXPECT_EQ(flow.Skip(450), 500);
  EXPECT_TRUE(flow.HasRoom(2000));
  EXPECT_EQ(flow.Take(2000), 950);
  EXPECT_FALSE(flow.HasRoom(1));
}

TEST(PageFlow, WhatStandsOverARowAsksForRoomWithIt) {
  const PageFlow ends({.limit = 1000, .full = PageFull::AtLimit});
  EXPECT_EQ(ends.RoomForRow(300), 300);
  EXPECT_EQ(ends.RoomForRow(300, 650), 950);
  const PageFlow begins({.limit = 1000, .full = PageFull::PastLimit});
  EXPECT_EQ(begins.RoomForRow(300), 0);
  EXPECT_EQ(begins.RoomForRow(300, 650), 650);
}

TEST(PageFlow, NextTellsAColumnFromAPage) {
  PageFlow flow({.columns = {0, 5000}});
  EXPECT_FALSE(flow.Next());
  EXPECT_TRUE(flow.Next());
  EXPECT_EQ(flow.Page(), 2);
}

}  // namespace
}  // namespace tavrelin
