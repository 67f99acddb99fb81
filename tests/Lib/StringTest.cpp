#include "Lib/LIB_STRING.h"

#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

constexpr std::size_t kLargest = 32767;  // the last position that a search can tell

class StringTest : public LibTest {};

// --- sTronqueAuNul ------------------------------------------------------------------------------

TEST_F(StringTest, TheFirstNulCutsABuffer) {
  EXPECT_EQ(sTronqueAuNul(Text(u"abc\0def\0", 8)), u"abc");
  EXPECT_EQ(sTronqueAuNul(Text(5, u'\0')), u"");
}

TEST_F(StringTest, ABufferWithoutNulStaysWhole) {
  EXPECT_EQ(sTronqueAuNul(u"abc"), u"abc");
  EXPECT_EQ(sTronqueAuNul(u""), u"");
}

// --- sChangeCaractere ---------------------------------------------------------------------------

TEST_F(StringTest, EveryOccurrenceIsReplaced) {
  EXPECT_EQ(sChangeCaractere(u"a.b.c", u".", u"->"), u"a->b->c");
  EXPECT_EQ(sChangeCaractere(u".a.", u".", u""), u"a");
  EXPECT_EQ(sChangeCaractere(u"abc", u"x", u"y"), u"abc");
}

TEST_F(StringTest, ReplacingInAnEmptyTextLeavesItUnchanged) {
  EXPECT_EQ(sChangeCaractere(u"", u"a", u"b"), u"");
}

TEST_F(StringTest, ReplacingInATextOfBlanksOnlyLeavesItUnchanged) {
  EXPECT_EQ(sChangeCaractere(u"   ", u" ", u"_"), u"   ");
}

TEST_F(StringTest, BlanksOfAnyOtherTextAreReplaced) {
  EXPECT_EQ(sChangeCaractere(u" a ", u" ", u"_"), u"_a_");
  EXPECT_EQ(sChangeCaractere(u" \t", u" ", u"_"), u"_\t");
}

TEST_F(StringTest, AnEmptySearchLeavesTheTextUnchanged) {
  EXPECT_EQ(sChangeCaractere(u"abc", u"", u"x"), u"abc");
}

TEST_F(StringTest, TheReplacementIsNotScannedAgain) {
  EXPECT_EQ(sChangeCaractere(u"aab", u"ab", u"b"), u"ab");
  EXPECT_EQ(sChangeCaractere(u"a", u"a", u"aa"), u"aa");
}

TEST_F(StringTest, OverlappingOccurrencesCountOnce) {
  EXPECT_EQ(sChangeCaractere(u"aaa", u"aa", u"x"), u"xa");
}

TEST_F(StringTest, TheSearchMindsCase) {
  EXPECT_EQ(sChangeCaractere(u"aAa", u"A", u"x"), u"axa");
}

TEST_F(StringTest, AnOccurrenceAtTheLastPositionIsReplaced) {
  const Text before(kLargest - 1, u'a');
  EXPECT_EQ(sChangeCaractere(before + u"xb", u"x", u"-"), before + u"-b");
}

TEST_F(StringTest, AnOccurrenceBeyondTheLastPositionIsReportedWithTheResultSoFar) {
  ExpectBox();
  EXPECT_EQ(sChangeCaractere(u"a;" + Text(kLargest, u'b') + u";", u";", u"|"), u"");
  EXPECT_EQ(LastBox(),
            u"Erreur de traitement sur :a|\r\nsChangeCaractere(;, |)\r\n\r\nError #6 by LIB_STRING"
            u"\r\n" +
                ErrorDescription(ErrorNumber::kOverflow));
}

// Positions are those in what is still to be scanned.
TEST_F(StringTest, OccurrencesFarInTheTextAreReplacedWhereOthersLeadThere) {
  const Text piece = Text(20000, u'a') + u";";
  const Text changed = Text(20000, u'a') + u"|";
  EXPECT_EQ(sChangeCaractere(piece + piece + piece, u";", u"|"), changed + changed + changed);
}

TEST_F(StringTest, ASearchTextOfTooManyCharactersIsReported) {
  const Text search(kLargest + 1, u'x');
  for (const Text& text : {Text(u"abc"), Text(u" ")}) {
    ExpectBox();
    EXPECT_EQ(sChangeCaractere(text, search, u"y"), u"");
    EXPECT_TRUE(LastBox().starts_with(u"Erreur de traitement sur :\r\nsChangeCaractere(xxx"));
  }
  EXPECT_EQ(sChangeCaractere(u"abc", Text(kLargest, u'x'), u"y"), u"abc");
}

// --- sRemplaceCaracteresSpeciaux ----------------------------------------------------------------

constexpr TextView kAccents =
    u"Æ Á Â À Å Ã Ä Ç Ð É Ê È Ë Í Î Ì Ï Ñ Ó Ô Ò Ø Õ Ö Þ Ú Û Ù Ü Ý "
    u"á â æ à å ã ä ç é ê è ð ë í î ì ï ñ ó ô ò ø õ ö ß þ ú û ù ü ý ÿ";
constexpr TextView kSigns =
    u"' ` ( ) [ ] { } # ~ & | - ² \\ / @ = ° + $ £ ¤ % ! ? § ^ : ; , . < > µ * \"";

TEST_F(StringTest, SpecialCharactersBecomeUnderscores) {
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(u"Été 99 (copie)"), u"_t__99__copie_");
}

TEST_F(StringTest, EachCharacterOfTheTableIsReplacedAndNoOther) {
  const Text table = u"\t" + Text(kAccents) + Text(kSigns);
  int replaced = 0;
  for (char16_t unit = 0; unit < 0x500; ++unit) {
    const bool special = table.find(unit) != Text::npos;
    const Text expected{u'a', special ? u'_' : unit, u'z'};
    EXPECT_EQ(sRemplaceCaracteresSpeciaux(Text{u'a', unit, u'z'}), expected) << int{unit};
    replaced += special ? 1 : 0;
  }
  EXPECT_EQ(replaced, 101);
}

TEST_F(StringTest, LettersDigitsUnderscoreAndControlsPass) {
  const Text passing(u"abcXYZ019_\0\r\n", 13);
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(passing), passing);
}

TEST_F(StringTest, ATextOfBlanksOnlyHasNoSpecialCharacters) {
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(u""), u"");
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(u"   "), u"   ");
}

TEST_F(StringTest, ATabAloneBecomesAnUnderscore) {
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(u"\t"), u"_");
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(u" \t "), u"___");
}

TEST_F(StringTest, ASpecialCharacterTooFarAwayIsReportedOnce) {
  ExpectBox();
  EXPECT_EQ(sRemplaceCaracteresSpeciaux(Text(kLargest, u'a') + u"é-"), u"");
  EXPECT_EQ(BoxCount(), 1u);
}

// --- sGaucheDe and sDroiteDe --------------------------------------------------------------------

TEST_F(StringTest, LeftOfTheFirstSeparator) {
  EXPECT_EQ(sGaucheDe(u"a=b=c", u"="), u"a");
  EXPECT_EQ(sGaucheDe(u"=a", u"="), u"");
  EXPECT_EQ(sGaucheDe(u"a::b", u"::"), u"a");
}

TEST_F(StringTest, LeftOfAnAbsentSeparatorIsTheWholeText) {
  EXPECT_EQ(sGaucheDe(u"abc", u"="), u"abc");
  EXPECT_EQ(sGaucheDe(u"aXb", u"x"), u"aXb");
}

TEST_F(StringTest, LeftOfNothingIsTheText) {
  EXPECT_EQ(sGaucheDe(u"", u"="), u"");
  EXPECT_EQ(sGaucheDe(u"abc", u""), u"abc");
}

TEST_F(StringTest, RightOfTheFirstSeparator) {
  EXPECT_EQ(sDroiteDe(u"a=b=c", u"="), u"b=c");
  EXPECT_EQ(sDroiteDe(u"a::b::c", u"::"), u"b::c");
  EXPECT_EQ(sDroiteDe(u"a=", u"="), u"");
  EXPECT_EQ(sDroiteDe(u"a=", u"=", true), u"");
}

TEST_F(StringTest, RightOfAnAbsentSeparatorIsTheWholeTextOrEmptyWithTheFlag) {
  EXPECT_EQ(sDroiteDe(u"abc", u"="), u"abc");
  EXPECT_EQ(sDroiteDe(u"abc", u"=", false), u"abc");
  EXPECT_EQ(sDroiteDe(u"abc", u"=", true), u"");
}

TEST_F(StringTest, RightOfNothingIsTheTextWhateverTheFlag) {
  EXPECT_EQ(sDroiteDe(u"", u"=", true), u"");
  EXPECT_EQ(sDroiteDe(u"abc", u""), u"abc");
  EXPECT_EQ(sDroiteDe(u"abc", u"", true), u"abc");
}

// --- sGaucheDernier -----------------------------------------------------------------------------

TEST_F(StringTest, LeftOfTheLastSeparator) {
  EXPECT_EQ(sGaucheDernier(u"C:\\A\\B.TXT", u"\\"), u"C:\\A");
  EXPECT_EQ(sGaucheDernier(u"C:\\", u"\\"), u"C:");
  EXPECT_EQ(sGaucheDernier(u"C:\\A\\", u"\\"), u"C:\\A");
  EXPECT_EQ(sGaucheDernier(u"a::b::c", u"::"), u"a::b");
}

TEST_F(StringTest, LeftOfTheLastOfNoSeparatorsIsTheWholeText) {
  EXPECT_EQ(sGaucheDernier(u"README.TXT", u"\\"), u"README.TXT");
  EXPECT_EQ(sGaucheDernier(u"", u"\\"), u"");
  EXPECT_EQ(sGaucheDernier(u"a\\b", u""), u"a\\b");
}

TEST_F(StringTest, ALeadingSeparatorIsLost) {
  EXPECT_EQ(sGaucheDernier(u"\\A", u"\\"), u"A");
  EXPECT_EQ(sGaucheDernier(u"\\A\\B", u"\\"), u"A");
  EXPECT_EQ(sGaucheDernier(u"\\", u"\\"), u"");
}

TEST_F(StringTest, ADoubledSeparatorCollapses) {
  EXPECT_EQ(sGaucheDernier(u"A\\\\B\\C", u"\\"), u"A\\B");
}

// The piece before the last separator is empty, so the one that was joined to it ends the result.
TEST_F(StringTest, ADoubledLastSeparatorLeavesOneBehind) {
  EXPECT_EQ(sGaucheDernier(u"A\\B\\\\C", u"\\"), u"A\\B\\");
}

// --- sDroiteDernier -----------------------------------------------------------------------------

TEST_F(StringTest, RightOfTheLastSeparatorAndHowManyWerePassed) {
  int count = -1;
  EXPECT_EQ(sDroiteDernier(u"a=b=c", u"=", &count), u"c");
  EXPECT_EQ(count, 2);
  EXPECT_EQ(sDroiteDernier(u"D:\\JEUX\\SETUP.EXE", u"\\"), u"SETUP.EXE");
}

TEST_F(StringTest, RightOfAFinalSeparatorIsEmptyWithCountOne) {
  int count = -1;
  EXPECT_EQ(sDroiteDernier(u"C:\\", u"\\", &count), u"");
  EXPECT_EQ(count, 1);
}

TEST_F(StringTest, RightOfTheLastOfNoSeparatorsIsTheWholeTextWithCountZero) {
  int count = 7;
  EXPECT_EQ(sDroiteDernier(u"abc", u"=", &count), u"abc");
  EXPECT_EQ(count, 0);
  count = 7;
  EXPECT_EQ(sDroiteDernier(u"", u"=", &count), u"");
  EXPECT_EQ(count, 0);
  count = 7;
  EXPECT_EQ(sDroiteDernier(u"a=b", u"", &count), u"a=b");
  EXPECT_EQ(count, 0);
}

TEST_F(StringTest, AFinalSeparatorOfSeveralCharactersKeepsTheLastPiece) {
  int count = -1;
  EXPECT_EQ(sDroiteDernier(u"xab", u"ab", &count), u"xab");
  EXPECT_EQ(count, 1);
  EXPECT_EQ(sDroiteDernier(u"abxab", u"ab", &count), u"xab");
  EXPECT_EQ(count, 2);
  EXPECT_EQ(sDroiteDernier(u"xaby", u"ab"), u"y");
}

// --- Positions ----------------------------------------------------------------------------------

TEST_F(StringTest, ASeparatorAtTheLastPositionIsFound) {
  const Text before(kLargest - 1, u'a');
  EXPECT_EQ(sGaucheDe(before + u"=b", u"="), before);
  EXPECT_EQ(sDroiteDe(before + u"=b", u"="), u"b");
  EXPECT_EQ(sGaucheDernier(before + u"=b", u"="), before);
  EXPECT_EQ(sDroiteDernier(before + u"=b", u"="), u"b");
  EXPECT_EQ(sTronqueAuNul(before + Text(1, u'\0')), before);
}

TEST_F(StringTest, ASeparatorBeyondTheLastPositionOverflows) {
  const Text text = Text(kLargest, u'a') + u"=" + Text(1, u'\0');
  EXPECT_EQ(ErrorOf([&] { sGaucheDe(text, u"="); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sDroiteDe(text, u"="); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sGaucheDernier(text, u"="); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sDroiteDernier(text, u"="); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sTronqueAuNul(text); }), ErrorNumber::kOverflow);
}

TEST_F(StringTest, ALongTextWithoutTheSeparatorDoesNotOverflow) {
  const Text text(2 * kLargest, u'a');
  EXPECT_EQ(sGaucheDe(text, u"="), text);
  EXPECT_EQ(sDroiteDe(text, u"="), text);
  EXPECT_EQ(sGaucheDernier(text, u"="), text);
  EXPECT_EQ(sDroiteDernier(text, u"="), text);
  EXPECT_EQ(sTronqueAuNul(text), text);
}

TEST_F(StringTest, ASeparatorOfTooManyCharactersOverflows) {
  const Text separator(kLargest + 1, u'=');
  EXPECT_EQ(ErrorOf([&] { sGaucheDe(u"a", separator); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sDroiteDe(u"a", separator); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sGaucheDernier(u"a", separator); }), ErrorNumber::kOverflow);
  EXPECT_EQ(ErrorOf([&] { sDroiteDernier(u"a", separator); }), ErrorNumber::kOverflow);
}

// --- sExtraitChamp ------------------------------------------------------------------------------

TEST_F(StringTest, FieldsAreTakenOneAfterAnotherUntilTheListIsEmpty) {
  Text list = u"\"a\",b";
  EXPECT_EQ(sExtraitChamp(list, u","), u"a");
  EXPECT_EQ(list, u"b");
  EXPECT_EQ(sExtraitChamp(list, u","), u"b");
  EXPECT_EQ(list, u"");
  EXPECT_EQ(sExtraitChamp(list, u","), u"");
  EXPECT_EQ(list, u"");
}

TEST_F(StringTest, AListOfBlanksGivesNothingAndStays) {
  Text list = u"   ";
  EXPECT_EQ(sExtraitChamp(list, u" "), u"");
  EXPECT_EQ(list, u"   ");
}

TEST_F(StringTest, ASeparatorAtTheEndLeavesAnEmptyList) {
  Text list = u"a,";
  EXPECT_EQ(sExtraitChamp(list, u","), u"a");
  EXPECT_EQ(list, u"");
}

TEST_F(StringTest, AnEmptyFieldIsTakenToo) {
  Text list = u"\r\n\r\nfin";
  EXPECT_EQ(sExtraitChamp(list, u"\r\n"), u"");
  EXPECT_EQ(list, u"\r\nfin");
}

TEST_F(StringTest, QuotesProtectNoSeparator) {
  Text list = u"\"a,b\",c";
  EXPECT_EQ(sExtraitChamp(list, u","), u"a");
  EXPECT_EQ(list, u"b\",c");
  EXPECT_EQ(sExtraitChamp(list, u","), u"b");
}

TEST_F(StringTest, OneQuoteIsTakenOffEachEnd) {
  const std::pair<Text, Text> cases[] = {
      {u"\"\"a\"\"", u"\"a\""}, {u"\"", u""}, {u"\"\"", u""}, {u"a\"b", u"a\"b"}, {u"\"a", u"a"},
  };
  for (const auto& [field, expected] : cases) {
    Text list = field;
    EXPECT_EQ(sExtraitChamp(list, u","), expected) << testing::PrintToString(field);
  }
}

TEST_F(StringTest, BlanksAroundAFieldAreKept) {
  Text list = u" a , \"b\" ";
  EXPECT_EQ(sExtraitChamp(list, u","), u" a ");
  EXPECT_EQ(sExtraitChamp(list, u","), u" \"b\" ");
}

TEST_F(StringTest, AFieldThatIsTooLongIsReportedAndTheListStays) {
  const Text whole = Text(kLargest, u'a') + u",b";
  Text list = whole;
  ExpectBox();
  EXPECT_EQ(sExtraitChamp(list, u","), u"");
  EXPECT_EQ(list, whole);
  EXPECT_TRUE(LastBox().starts_with(u"Erreur lors de récupération sur la chaîne :\r\n" + whole +
                                    u"\r\n\r\nError #6 by "));
}

// --- InitChaines --------------------------------------------------------------------------------

TEST_F(StringTest, TheConstantsAreSetAtStartUp) {
  InitChaines();
  EXPECT_EQ(sSautLigne, u"\n");
  EXPECT_EQ(sLigneTirets, Text(76, u'-'));
  EXPECT_EQ(sSautLigneTirets, u"\r\n" + Text(76, u'-'));
}

}  // namespace
}  // namespace trovex::test
