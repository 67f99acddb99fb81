#include "Html/LIB_HTML.h"

#include "Html/Entities.h"
#include "Html/HtmlTest.h"

namespace trovex::test {
namespace {

class WriterTest : public HtmlTest {};

constexpr std::size_t kLastPosition = 32767;

// --- sTexteVersHTML: entities -------------------------------------------------------------------

TEST_F(WriterTest, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(sTexteVersHTML(u""), u"");
}

TEST_F(WriterTest, ATextWithoutAccentsLinksOrAtSignStaysAsItIs) {
  EXPECT_EQ(sTexteVersHTML(u" Jeu de dames, 2 joueurs\r\n\tfin "),
            u" Jeu de dames, 2 joueurs\r\n\tfin ");
  EXPECT_EQ(sTexteVersHTML(u"   "), u"   ");
}

TEST_F(WriterTest, AccentedLettersBecomeEntities) {
  EXPECT_EQ(sTexteVersHTML(u"Été"), u"&Eacute;t&eacute;");
}

TEST_F(WriterTest, TheTableHoldsTheLettersInThisOrder) {
  Text letters, entities;
  for (const Entity& entity : kEntities) {
    letters += entity.character;
    entities += entity.entity;
  }
  EXPECT_EQ(letters, u"ÆÁÂÀÅÃÄÇÐÉÊÈËÍÎÌÏÑÓÔÒØÕÖÞÚÛÙÜÝáâæàåãäçéêèðëíîìïñóôòøõößþúûùüýÿ");
  EXPECT_EQ(sTexteVersHTML(letters), entities);
  EXPECT_EQ(entities,
            u"&AElig;&Aacute;&Acirc;&Agrave;&Aring;&Atilde;&Auml;&Ccedil;&ETH;&Eacute;&Ecirc;"
            u"&Egrave;&Euml;&Iacute;&Icirc;&Igrave;&Iuml;&Ntilde;&Oacute;&Ocirc;&Ograve;&Oslash;"
            u"&Otilde;&Ouml;&THORN;&Uacute;&Ucirc;&Ugrave;&Uuml;&Yacute;&aacute;&acirc;&aelig;"
            u"&agrave;&aring;&atilde;&auml;&ccedil;&eacute;&ecirc;&egrave;&eth;&euml;&iacute;"
            u"&icirc;&igrave;&iuml;&ntilde;&oacute;&ocirc;&ograve;&oslash;&otilde;&ouml;&szlig;"
            u"&thorn;&uacute;&ucirc;&ugrave;&uuml;&yacute;&yuml;");
}

TEST_F(WriterTest, OtherLettersOfTheCodePageStay) {
  EXPECT_EQ(sTexteVersHTML(u"œ € « » ° Ÿ"), u"œ € « » ° Ÿ");
}

TEST_F(WriterTest, TagsAmpersandsAndQuotesPassUnchanged) {
  EXPECT_EQ(sTexteVersHTML(u"a<b>&c"), u"a<b>&c");
  EXPECT_EQ(sTexteVersHTML(u"\"<BR>\""), u"\"<BR>\"");
}

// --- sTexteVersHTML: web links ------------------------------------------------------------------

TEST_F(WriterTest, TheBlankBehindAWebAddressMovesInFrontOfTheLink) {
  EXPECT_EQ(sTexteVersHTML(u"voir http://exemple ici"),
            u"voir  <A HREF=\"http://exemple\">http://exemple</A>ici");
}

TEST_F(WriterTest, ATagBehindAWebAddressRunsIntoIt) {
  EXPECT_EQ(sTexteVersHTML(u" http://exemple<BR>fin"),
            u"  <A HREF=\"http://exemple<\">http://exemple<</A>BR>fin");
}

TEST_F(WriterTest, AWebAddressMayEndTheText) {
  EXPECT_EQ(sTexteVersHTML(u"http://exemple"), u" <A HREF=\"http://exemple\">http://exemple</A>");
}

TEST_F(WriterTest, CommaAndBracketStayInTheAddress) {
  EXPECT_EQ(sTexteVersHTML(u"(http://exemple), fin"),
            u"( <A HREF=\"http://exemple),\">http://exemple),</A>fin");
}

TEST_F(WriterTest, TheSearchForAddressesIsExactInCase) {
  EXPECT_EQ(sTexteVersHTML(u"HTTP://EXEMPLE"), u"HTTP://EXEMPLE");
  EXPECT_EQ(sTexteVersHTML(u"Ftp://exemple"), u"Ftp://exemple");
}

TEST_F(WriterTest, OfTwoWebAddressesTheFirstBecomesALink) {
  EXPECT_EQ(sTexteVersHTML(u"http://a http://b"), u" <A HREF=\"http://a\">http://a</A>http://b");
}

TEST_F(WriterTest, AWebAndAnFtpAddressEachBecomeALink) {
  EXPECT_EQ(sTexteVersHTML(u"http://a ftp://b"),
            u" <A HREF=\"http://a\">http://a</A> <A HREF=\"ftp://b\">ftp://b</A>");
}

TEST_F(WriterTest, AnAccentInAnAddressIsAnEntityInTheLink) {
  EXPECT_EQ(sTexteVersHTML(u"http://é x"), u" <A HREF=\"http://&eacute;\">http://&eacute;</A>x");
}

// --- sTexteVersHTML: mail links -----------------------------------------------------------------

TEST_F(WriterTest, AnAtSignAloneGivesNoLink) {
  EXPECT_EQ(sTexteVersHTML(u"@"), u"@");
}

TEST_F(WriterTest, AMailAddressAtTheStartOfTheTextGivesNoLink) {
  EXPECT_EQ(sTexteVersHTML(u"a@b"), u"a@b");
  EXPECT_EQ(sTexteVersHTML(u"nom@exemple fin"), u"nom@exemple fin");
}

TEST_F(WriterTest, AMailAddressBehindABlankLosesItsLastLetterAtTheTextsEnd) {
  EXPECT_EQ(sTexteVersHTML(u" a@b"), u" <A HREF=\"mailto:a@\">a@</A>b");
  EXPECT_EQ(sTexteVersHTML(u"mail nom@exemple"),
            u"mail <A HREF=\"mailto:nom@exempl\">nom@exempl</A>e");
}

TEST_F(WriterTest, WhatEndsAMailAddressStaysBehindTheLink) {
  EXPECT_EQ(sTexteVersHTML(u"mail nom@exemple ok"),
            u"mail <A HREF=\"mailto:nom@exemple\">nom@exemple</A> ok");
  EXPECT_EQ(sTexteVersHTML(u"mail nom@exemple<BR>ok"),
            u"mail <A HREF=\"mailto:nom@exemple\">nom@exemple</A><BR>ok");
}

TEST_F(WriterTest, ATagInFrontOfAMailAddressRunsIntoIt) {
  EXPECT_EQ(sTexteVersHTML(u"<BR>nom@exemple ok"),
            u"<BR <A HREF=\"mailto:>nom@exemple\">>nom@exemple</A> ok");
}

TEST_F(WriterTest, OfTwoMailAddressesTheFirstBecomesALink) {
  EXPECT_EQ(sTexteVersHTML(u" a@b c@d e"), u" <A HREF=\"mailto:a@b\">a@b</A> c@d e");
}

TEST_F(WriterTest, AnAtSignInAWebAddressIsLookedForInTheLink) {
  // The walk back from the first "@" ends at the blank within the tag.
  EXPECT_EQ(sTexteVersHTML(u"x http://a@b c"),
            u"x  <A <A HREF=\"mailto:HREF=\"http://a@b\">http://a@b\">HREF=\"http://a@b\">"
            u"http://a@b</A></A>c");
}

// --- sTexteVersHTML: positions beyond 16 bits ---------------------------------------------------

TEST_F(WriterTest, AnAddressBeyondThePositionsIsAnOverflow) {
  const Text far(kLastPosition, u'x');
  for (const char16_t* address : {u"http://a b", u"ftp://a b", u" a@b c"}) {
    EXPECT_EQ(ErrorOf([&] { sTexteVersHTML(far + address); }), kOverflow) << ToUtf8(address);
  }
}

TEST_F(WriterTest, AnAddressThatReachesBeyondThePositionsIsAnOverflow) {
  EXPECT_EQ(ErrorOf([] { sTexteVersHTML(u"http://" + Text(kLastPosition, u'x')); }), kOverflow);
  EXPECT_EQ(ErrorOf([] { sTexteVersHTML(u" a@" + Text(kLastPosition, u'x')); }), kOverflow);
}

TEST_F(WriterTest, AnAddressUpToTheLastPositionIsALink) {
  const Text address = u"http://" + Text(kLastPosition - 8, u'x');  // a blank at the last position
  const Text rest(1000, u'y');
  EXPECT_EQ(sTexteVersHTML(address + u" " + rest),
            u" <A HREF=\"" + address + u"\">" + address + u"</A>" + rest);
}

TEST_F(WriterTest, ALongTextWithoutAddressesPasses) {
  const Text text(3 * kLastPosition, u'x');
  EXPECT_EQ(sTexteVersHTML(text), text);
}

// The replacing of the letter reports that itself, and what is left is an empty text.
TEST_F(WriterTest, AnAccentBeyondThePositionsIsReportedAndEmptiesTheText) {
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(sTexteVersHTML(Text(kLastPosition, u'x') + u"é"), u"");
  EXPECT_THAT(ToUtf8(LastBox()), testing::HasSubstr("sChangeCaractere(é, &eacute;)"));
}

// --- Tags ---------------------------------------------------------------------------------------

TEST_F(WriterTest, TheBodyTagHasBothAttributesAlways) {
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\"\" BGCOLOR=\"\">");
}

TEST_F(WriterTest, TheBodyTagTakesColourAndImageAsTheyStand) {
  Options().CheckFond.SetValue(true);
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\"\" BGCOLOR=\"#FFFFFF\">");
  Options().CheckBack.SetValue(true);
  Options().ImageBack.SetText(u" C:\\no such.gif");
  Options().CouleurRGB.SetText(u"vert");
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\" C:\\no such.gif\" BGCOLOR=\"vert\">");
  Options().CheckFond.SetValue(false);
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\" C:\\no such.gif\" BGCOLOR=\"\">");
}

TEST_F(WriterTest, AnEmptyColourIsAnEmptyAttribute) {
  Options().CheckFond.SetValue(true);
  Options().CouleurRGB.SetText(u"");
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\"\" BGCOLOR=\"\">");
}

TEST_F(WriterTest, TheImageTagIsACommentOnDemand) {
  EXPECT_EQ(sBaliseImage(u"a b.gif", true), u"<!--IMG SRC=\"a b.gif\" ALIGN=\"MIDDLE\"-->");
  EXPECT_EQ(sBaliseImage(u"a b.gif", false), u"<IMG SRC=\"a b.gif\" ALIGN=\"MIDDLE\">");
}

TEST_F(WriterTest, TheEndOfAPageHasNoLastLineEnd) {
  EXPECT_EQ(sFinHTML(), u"</BODY>\r\n</HTML>");
}

// --- sEnteteHTML --------------------------------------------------------------------------------

// The head with this title; the rest as without any other option.
Text HeadWith(const Text& title) {
  return u"<!-- DOCUMENT HTML GENERE PAR L'APPLICATION (c) Trovex 1.0.0 - 1999 -->\r\n"
         u"<!-- DOCTYPE HTML SYSTEM \"html.dtd\" -->\r\n"
         u"<HTML><HEAD><TITLE>" +
         title +
         u"</TITLE></HEAD>\r\n"
         u"<BODY BACKGROUND=\"\" BGCOLOR=\"\"><!--IMG SRC=\"\" ALIGN=\"MIDDLE\"-->\r\n";
}

TEST_F(WriterTest, WithoutAnyTitleTheTitleIsEmpty) {
  EXPECT_TRUE(Options().CheckTitre.Value());
  EXPECT_EQ(sEnteteHTML(), HeadWith(u""));
}

TEST_F(WriterTest, TheCallersTitleStandsInForTheUsers) {
  EXPECT_EQ(sEnteteHTML(u"Liste des données"), HeadWith(u"Liste des donn&eacute;es"));
  Options().TextTitre.SetText(u"   ");
  EXPECT_EQ(sEnteteHTML(u"Liste"), HeadWith(u"Liste"));
}

TEST_F(WriterTest, TheUsersTitleWins) {
  Options().TextTitre.SetText(u"  Mes été  ");
  EXPECT_EQ(sEnteteHTML(u"Liste"), HeadWith(u"Mes &eacute;t&eacute;"));
  EXPECT_EQ(sEnteteHTML(u""), HeadWith(u"Mes &eacute;t&eacute;"));
  EXPECT_EQ(sEnteteHTML(), HeadWith(u"Mes &eacute;t&eacute;"));
}

TEST_F(WriterTest, WithoutTheOptionTheTitleIsEmptyWhoeverGaveOne) {
  Options().TextTitre.SetText(u"Mon titre");
  Options().CheckTitre.SetValue(false);
  EXPECT_EQ(sEnteteHTML(u"Liste"), HeadWith(u""));
  EXPECT_EQ(sEnteteHTML(), HeadWith(u""));
}

TEST_F(WriterTest, ALinkInTheCallersTitleIsMadeTwice) {
  EXPECT_EQ(sEnteteHTML(u"http://a"),
            HeadWith(u" <A HREF=\" <A HREF=\"http://a\">http://a<\">http://a\">http://a<</A>/A>"));
}

TEST_F(WriterTest, TheImageOfTheHeadStandsInAComment) {
  Options().ImageDebut.SetText(u"D:\\logo.gif");
  EXPECT_EQ(sEnteteHTML(u"T"), HeadWith(u"T"));
  Options().CheckImage.SetValue(true);
  const Text head = sEnteteHTML(u"T");
  EXPECT_TRUE(head.ends_with(u"BGCOLOR=\"\"><!--IMG SRC=\"D:\\logo.gif\" ALIGN=\"MIDDLE\"-->\r\n"));
}

// --- Anchors ------------------------------------------------------------------------------------

TEST_F(WriterTest, WithoutATextThereIsNoAnchorAndNoLink) {
  EXPECT_EQ(sAncreNom(u"", true, true, u"ancre"), u"");
  EXPECT_EQ(sLienAncre(u"", u"f.htm", u"X", u"ancre"), u"");
}

TEST_F(WriterTest, AnAnchorIsNeverClosed) {
  EXPECT_EQ(sAncreNom(u"Vue d'été", false, true), u"<A NAME=\"VUE_D__T_\">Vue d'&eacute;t&eacute;");
  EXPECT_EQ(sAncreNom(u"Vue", true, true), u"<A NAME=\"VUE\"><B>Vue</B>");
}

TEST_F(WriterTest, AnAnchorWithoutItsTextIsNeverBold) {
  EXPECT_EQ(sAncreNom(u"Vue", false, false), u"<A NAME=\"VUE\">");
  EXPECT_EQ(sAncreNom(u"Vue", true, false), u"<A NAME=\"VUE\">");
}

TEST_F(WriterTest, AnAnchorOfItsOwnGoesBeforeTheText) {
  EXPECT_EQ(sAncreNom(u"Mon jeu", true, true, u"D:\\Jeux\\ Setup.exe"),
            u"<A NAME=\"D__JEUX__SETUP_EXE\"><B>Mon jeu</B>");
  EXPECT_EQ(sAncreNom(u"Mon jeu", false, true, u""), u"<A NAME=\"\">Mon jeu");
}

TEST_F(WriterTest, ALinkHasItsAnchorFromTheText) {
  EXPECT_EQ(sLienAncre(u"Vue d'été", u"f.htm", u"X"),
            u"<A HREF=\"f.htm#VUE_D__T_\" X\">Vue d'&eacute;t&eacute;</A>");
}

TEST_F(WriterTest, TheQuoteBehindTheAttributesOfALinkComesAlways) {
  EXPECT_EQ(sLienAncre(u"Vue", u"f.htm", u"TARGET=\"data\"", u"zip"),
            u"<A HREF=\"f.htm#ZIP\" TARGET=\"data\"\">Vue</A>");
  EXPECT_EQ(sLienAncre(u"Vue", u"f.htm", u""), u"<A HREF=\"f.htm#VUE\" \">Vue</A>");
}

}  // namespace
}  // namespace trovex::test
