// Directory searches.
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SearchContract : public Contract {
 protected:
  // The one entry that a name without wildcards finds.
  FindData Find(const Text& name) {
    FindData data;
    const FindHandle handle = platform_.FindFirstFile(name, data);
    EXPECT_NE(handle, FindHandle::kInvalid);
    FindData further;
    EXPECT_FALSE(platform_.FindNextFile(handle, further));
    platform_.FindClose(handle);
    return data;
  }
};

TEST_F(SearchContract, FindsFilesAndDirectoriesOfARoot) {
  disc_.File("SETUP.EXE");
  disc_.File("Lisez moi.txt");
  disc_.Directory("JEUX");
  EXPECT_THAT(FindAll(u"D:\\*.*"), UnorderedElementsAre(u"SETUP.EXE", u"Lisez moi.txt", u"JEUX"));
}

TEST_F(SearchContract, AnEmptyRootHoldsNothing) {
  EXPECT_THAT(FindAll(u"D:\\*.*"), IsEmpty());
}

TEST_F(SearchContract, ADirectoryBelowARootBeginsWithItselfAndItsParent) {
  disc_.File("JEUX/!PREMIER.EXE");
  disc_.File("JEUX/DAMES.EXE");
  const std::vector<Text> names = FindAll(u"D:\\JEUX\\*.*");
  ASSERT_EQ(names.size(), 4U);
  EXPECT_EQ(names[0], u".");
  EXPECT_EQ(names[1], u"..");
}

TEST_F(SearchContract, AnEmptyDirectoryHoldsItselfAndItsParent) {
  disc_.Directory("VIDE");
  EXPECT_THAT(FindAll(u"D:\\VIDE\\*.*"), ElementsAre(u".", u".."));
  EXPECT_THAT(FindAll(u"D:\\VIDE\\*"), ElementsAre(u".", u".."));
}

TEST_F(SearchContract, SelfAndParentAreDirectories) {
  disc_.Directory("VIDE");
  FindData data;
  const FindHandle handle = platform_.FindFirstFile(u"D:\\VIDE\\*.*", data);
  EXPECT_TRUE(data.attributes & kAttributeDirectory);
  EXPECT_TRUE(platform_.FindNextFile(handle, data));
  EXPECT_TRUE(data.attributes & kAttributeDirectory);
  platform_.FindClose(handle);
}

TEST_F(SearchContract, OrderIsThatOfUpperCasedNamesWhereTheSystemHasNone) {
  for (const char* name : {"b.exe", "A.EXE", "_.EXE", "a.zip", "C.EXE", "\xC3\xA9.exe"}) {
    disc_.File(name);
  }
  const std::vector<Text> names = FindAll(u"D:\\*");
  if (CurrentHostSystem() == HostSystem::kPosix) {
    EXPECT_THAT(names,
                ElementsAre(u"A.EXE", u"a.zip", u"b.exe", u"C.EXE", u"_.EXE", u"\u00E9.exe"));
  } else {
    EXPECT_THAT(names, UnorderedElementsAre(u"A.EXE", u"a.zip", u"b.exe", u"C.EXE", u"_.EXE",
                                            u"\u00E9.exe"));
  }
}

TEST_F(SearchContract, PatternsTakeNoNoticeOfCase) {
  disc_.File("SETUP.EXE");
  disc_.File("install.exe");
  disc_.File("lisezmoi.txt");
  disc_.File("\xC3\x89t\xC3\xA9.exe");
  EXPECT_THAT(FindSorted(u"D:\\*.exe"),
              ElementsAre(u"SETUP.EXE", u"install.exe", u"\u00C9t\u00E9.exe"));
  EXPECT_THAT(FindSorted(u"D:\\*.EXE"),
              ElementsAre(u"SETUP.EXE", u"install.exe", u"\u00C9t\u00E9.exe"));
  EXPECT_THAT(FindAll(u"D:\\\u00E9*.EXE"), ElementsAre(u"\u00C9t\u00E9.exe"));
}

TEST_F(SearchContract, AQuestionMarkStandsForOneCharacter) {
  disc_.File("D1");
  disc_.File("D12");
  disc_.File("D");
  EXPECT_THAT(FindAll(u"D:\\D?"), ElementsAre(u"D1"));
  EXPECT_THAT(FindAll(u"D:\\D??"), ElementsAre(u"D12"));
}

TEST_F(SearchContract, APatternWithAnyExtensionAlsoFindsANameWithout) {
  disc_.File("LICENCE");
  disc_.File("LICENCE.TXT");
  disc_.File("LICENCES.TXT");
  EXPECT_THAT(FindSorted(u"D:\\LICENCE.*"), ElementsAre(u"LICENCE", u"LICENCE.TXT"));
}

TEST_F(SearchContract, NoShortAliasIsFound) {
  disc_.File("Page d'accueil.html");
  EXPECT_THAT(FindAll(u"D:\\*.htm"), IsEmpty());
  EXPECT_THAT(FindAll(u"D:\\*~*"), IsEmpty());
  EXPECT_THAT(FindAll(u"D:\\PAGED'~1.HTM"), IsEmpty());
}

TEST_F(SearchContract, APatternOfExtensionFindsNothingLonger) {
  disc_.File("A.EXE2");
  disc_.File("B.EXE.BAK");
  EXPECT_THAT(FindAll(u"D:\\*.exe"), IsEmpty());
}

TEST_F(SearchContract, AFailedSearchIsInvalidAndLeavesNoData) {
  disc_.File("SETUP.EXE");
  for (const Text& pattern :
       {Text(u"D:\\NULLEPART\\*.*"), Text(u"D:\\*.zip"), Text(u"D:\\AUTRE.EXE"),
        Text(u"D:\\SETUP.EXE\\*.*"), Text(u"Q:\\*.*"), Text()}) {
    FindData data{kAttributeDirectory, u"reste"};
    EXPECT_EQ(platform_.FindFirstFile(pattern, data), FindHandle::kInvalid);
    EXPECT_EQ(data.attributes, 0U);
    EXPECT_EQ(data.name, u"");
  }
}

TEST_F(SearchContract, AnExactNameFindsThatEntryInAnyCase) {
  disc_.File("Jeux/Setup.exe");
  disc_.File("Jeux/Setup.ex");
  EXPECT_EQ(Find(u"D:\\JEUX\\SETUP.EXE").name, u"Setup.exe");
  EXPECT_EQ(Find(u"d:\\jeux\\setup.exe").name, u"Setup.exe");
  EXPECT_FALSE(Find(u"D:\\JEUX\\SETUP.EXE").attributes & kAttributeDirectory);
}

TEST_F(SearchContract, AnExactNameFindsADirectory) {
  disc_.Directory("Jeux/Cartes");
  EXPECT_EQ(Find(u"D:\\jeux").name, u"Jeux");
  EXPECT_EQ(Find(u"D:\\Jeux\\CARTES").name, u"Cartes");
  EXPECT_TRUE(Find(u"D:\\Jeux\\CARTES").attributes & kAttributeDirectory);
}

TEST_F(SearchContract, ARootIsNoEntry) {
  FindData data;
  EXPECT_EQ(platform_.FindFirstFile(u"D:\\", data), FindHandle::kInvalid);
}

TEST_F(SearchContract, HiddenEntriesAreFoundAndSaySo) {
  disc_.File(".cache.exe");
  disc_.Hide(".cache.exe");
  disc_.File("clair.exe");
  EXPECT_THAT(FindSorted(u"D:\\*.exe"), ElementsAre(u".cache.exe", u"clair.exe"));
  EXPECT_TRUE(Find(u"D:\\.cache.exe").attributes & kAttributeHidden);
  EXPECT_FALSE(Find(u"D:\\clair.exe").attributes & kAttributeHidden);
}

TEST_F(SearchContract, TheEndLeavesTheDataAlone) {
  disc_.File("SEUL.EXE");
  FindData data;
  const FindHandle handle = platform_.FindFirstFile(u"D:\\*", data);
  ASSERT_NE(handle, FindHandle::kInvalid);
  data = {7, u"avant"};
  EXPECT_FALSE(platform_.FindNextFile(handle, data));
  EXPECT_FALSE(platform_.FindNextFile(handle, data));
  EXPECT_EQ(data.attributes, 7U);
  EXPECT_EQ(data.name, u"avant");
  platform_.FindClose(handle);
}

TEST_F(SearchContract, AnInvalidHandleGivesNothingAndClosesHarmlessly) {
  FindData data{7, u"avant"};
  EXPECT_FALSE(platform_.FindNextFile(FindHandle::kInvalid, data));
  EXPECT_EQ(data.name, u"avant");
  platform_.FindClose(FindHandle::kInvalid);
  disc_.File("SEUL.EXE");
  EXPECT_THAT(FindAll(u"D:\\*"), ElementsAre(u"SEUL.EXE"));
}

TEST_F(SearchContract, AClosedSearchIsOverAndClosesAgainHarmlessly) {
  disc_.File("A.EXE");
  disc_.File("B.EXE");
  FindData data;
  const FindHandle first = platform_.FindFirstFile(u"D:\\*", data);
  platform_.FindClose(first);
  const FindHandle second = platform_.FindFirstFile(u"D:\\*", data);
  platform_.FindClose(first);
  EXPECT_FALSE(platform_.FindNextFile(first, data));
  EXPECT_TRUE(platform_.FindNextFile(second, data));
  platform_.FindClose(second);
}

TEST_F(SearchContract, SearchesDoNotDisturbEachOther) {
  disc_.File("A/A1");
  disc_.File("A/A2");
  disc_.File("B/B1");
  disc_.File("B/B2");
  FindData a, b;
  const FindHandle in_a = platform_.FindFirstFile(u"D:\\A\\A*", a);
  const FindHandle in_b = platform_.FindFirstFile(u"D:\\B\\B*", b);
  std::vector<Text> names = {a.name, b.name};
  EXPECT_TRUE(platform_.FindNextFile(in_a, a));
  EXPECT_TRUE(platform_.FindNextFile(in_b, b));
  names.insert(names.end(), {a.name, b.name});
  EXPECT_THAT(names, UnorderedElementsAre(u"A1", u"A2", u"B1", u"B2"));
  platform_.FindClose(in_a);
  platform_.FindClose(in_b);
}

TEST_F(SearchContract, NamesBeyondTheCodePageAreFound) {
  disc_.File(
      "\xCE\x95\xCE\xBB\xCE\xBB\xCE\xB7/\xD1\x84\xD0\xB0\xD0\xB9\xD0\xBB \xF0\x9F\x92\xBF.exe");
  EXPECT_THAT(FindAll(u"D:\\*"), ElementsAre(u"\u0395\u03BB\u03BB\u03B7"));
  EXPECT_THAT(FindAll(u"D:\\\u0395\u03BB\u03BB\u03B7\\*.exe"),
              ElementsAre(u"\u0444\u0430\u0439\u043B \U0001F4BF.exe"));
  EXPECT_EQ(Find(u"D:\\\u0395\u039B\u039B\u0397\\\u0424\u0410\u0419\u041B \U0001F4BF.EXE").name,
            u"\u0444\u0430\u0439\u043B \U0001F4BF.exe");
}

TEST_F(SearchContract, AManyFilesDirectoryComesWhole) {
  for (int number = 0; number < 1000; ++number) {
    disc_.File("F" + std::to_string(number) + ".EXE");
  }
  std::vector<Text> names = FindSorted(u"D:\\*.EXE");
  EXPECT_EQ(names.size(), 1000U);
  EXPECT_EQ(std::unique(names.begin(), names.end()), names.end());
}

TEST_F(SearchContract, WhatOthersChangeIsSeen) {
  disc_.File("A.EXE");
  EXPECT_THAT(FindAll(u"D:\\*"), ElementsAre(u"A.EXE"));
  disc_.Remove("A.EXE");
  disc_.File("B.EXE");
  EXPECT_THAT(FindAll(u"D:\\*"), ElementsAre(u"B.EXE"));
  EXPECT_THAT(FindAll(u"D:\\A.EXE"), IsEmpty());
  disc_.Remove("B.EXE");
  EXPECT_THAT(FindAll(u"D:\\*"), IsEmpty());
}

TEST_F(SearchContract, ADirectoryCanBeListedThoughEmptyButNotAFileOrNothing) {
  EXPECT_TRUE(platform_.CanBeListed(u"D:\\"));
  disc_.Directory("JEUX");
  disc_.File("A.TXT");
  EXPECT_TRUE(platform_.CanBeListed(u"D:\\JEUX\\"));
  EXPECT_FALSE(platform_.CanBeListed(u"D:\\A.TXT\\"));
  EXPECT_FALSE(platform_.CanBeListed(u"D:\\RIEN\\"));
}

}  // namespace
}  // namespace trovex::test
