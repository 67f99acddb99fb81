#include "Ui/ListBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace trovex::test {
namespace {

using testing::ElementsAre;

std::vector<Text> Entries(const ListBox& list) {
  std::vector<Text> entries;
  for (int i = 0; i < list.ListCount(); ++i) entries.push_back(list.List(i));
  return entries;
}

TEST(ListBoxTest, KeepsTheOrderOfComing) {
  ListBox list;
  for (TextView text : {u"zoé", u"abc", u"M"}) list.AddItem(text);
  EXPECT_THAT(Entries(list), ElementsAre(u"zoé", u"abc", u"M"));
  EXPECT_EQ(list.NewIndex(), 2);
}

TEST(ListBoxTest, ASortedListOrdersUpperCasedTextsByCodeUnit) {
  ListBox list;
  list.SetSorted(true);
  for (TextView text : {u"_isdel", u"été", u"zoo", u"b", u"A", u"Zebra", u"10", u"9"}) {
    list.AddItem(text);
  }
  EXPECT_THAT(Entries(list),
              ElementsAre(u"10", u"9", u"A", u"b", u"Zebra", u"zoo", u"_isdel", u"été"));
}

TEST(ListBoxTest, EqualTextsOfASortedListStandInTheOrderOfTheirComing) {
  ListBox list;
  list.SetSorted(true);
  for (TextView text : {u"jeu", u"Jeu", u"JEU", u"a"}) list.AddItem(text);
  EXPECT_THAT(Entries(list), ElementsAre(u"a", u"jeu", u"Jeu", u"JEU"));
  EXPECT_EQ(list.NewIndex(), 0);
}

TEST(ListBoxTest, AnIndexOutsideTheListGivesAnEmptyText) {
  ListBox list;
  list.AddItem(u"seul");
  EXPECT_EQ(list.List(-1), u"");
  EXPECT_EQ(list.List(1), u"");
  EXPECT_EQ(list.GetText(), u"");
}

TEST(ListBoxTest, ANewIndexRaisesTheClickAtOnce) {
  ListBox list;
  list.AddItem(u"un");
  list.AddItem(u"deux");
  std::vector<Text> seen;
  list.on_click = [&] { seen.push_back(list.GetText()); };
  list.SetListIndex(1);
  list.SetListIndex(1);
  list.SetListIndex(0);
  list.SetListIndex(-1);
  EXPECT_THAT(seen, ElementsAre(u"deux", u"un"));
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(ListBoxTest, AnIndexThatDoesNotExistIsAnError) {
  ListBox list;
  list.AddItem(u"un");
  EXPECT_THROW(list.SetListIndex(1), RuntimeError);
  EXPECT_THROW(list.SetListIndex(-2), RuntimeError);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(ListBoxTest, TheSelectionStaysWithItsEntry) {
  ListBox list;
  list.SetSorted(true);
  list.AddItem(u"m");
  list.SetListIndex(0);
  list.AddItem(u"a");
  EXPECT_EQ(list.GetText(), u"m");
  list.AddItem(u"z");
  EXPECT_EQ(list.ListIndex(), 1);
}

TEST(ListBoxTest, ClearEmptiesTheListWithoutAClick) {
  ListBox list;
  list.AddItem(u"un");
  list.SetListIndex(0);
  bool clicked = false;
  list.on_click = [&] { clicked = true; };
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.NewIndex(), -1);
  EXPECT_FALSE(clicked);
}

}  // namespace
}  // namespace trovex::test
