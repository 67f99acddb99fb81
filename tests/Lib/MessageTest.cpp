#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

class MessageTest : public LibTest {
 protected:
  static void Pending(int number, Text source, Text description, int line = 0) {
    Err().number = number;
    Err().source = std::move(source);
    Err().description = std::move(description);
    Err().line = line;
  }
  // The pending error is the system's.
  void PendingOfSystem(std::uint32_t code, Text text) {
    Err().system_code = platform.error_code = code;
    platform.error_text = std::move(text);
  }
  // The error box that comes up now.
  Text ErrorBox(TextView text) {
    ExpectBox();
    MessageErreur(text);
    return LastBox();
  }
};

using testing::ElementsAre;

// --- MessageErreur ------------------------------------------------------------------------------

TEST_F(MessageTest, WithoutPendingErrorTheTextStandsAlone) {
  EXPECT_EQ(ErrorBox(u"Erreur"), u"Erreur");
}

TEST_F(MessageTest, WithoutPendingErrorTheSystemsIsNotShown) {
  PendingOfSystem(5, u"Access denied.");
  EXPECT_EQ(ErrorBox(u"Erreur"), u"Erreur");
}

TEST_F(MessageTest, APendingErrorFollowsWithItsSourceAndDescription) {
  Pending(53, u"Trovex", u"Fichier introuvable");
  EXPECT_EQ(ErrorBox(u"Erreur"), u"Erreur\r\n\r\nError #53 by Trovex\r\nFichier introuvable");
}

TEST_F(MessageTest, AnErrorThatAHandlerCaughtIsPending) {
  Err().Set(RuntimeError(ErrorNumber::kFileNotFound));
  EXPECT_EQ(ErrorBox(u"Erreur"), u"Erreur" + Details(ErrorNumber::kFileNotFound));
}

TEST_F(MessageTest, AKnownLineNumberIsShown) {
  Pending(6, u"Trovex", u"Dépassement", 120);
  EXPECT_EQ(ErrorBox(u"E"), u"E\r\n\r\nError #6 - Line n° 120 by Trovex\r\nDépassement");
}

TEST_F(MessageTest, AnEmptyDescriptionTakesNoLine) {
  Pending(6, u"Trovex", u"");
  EXPECT_EQ(ErrorBox(u"E"), u"E\r\n\r\nError #6 by Trovex");
}

TEST_F(MessageTest, TheSystemsErrorComesLast) {
  Pending(70, u"Trovex", u"Permission");
  PendingOfSystem(5, u" Access denied. ");
  EXPECT_EQ(ErrorBox(u"E"), u"E\r\n\r\nError #70 by Trovex\r\nPermission\r\n\r\nAccess denied.");
}

TEST_F(MessageTest, TheErrorBoxHasItsStyleTitleAndSound) {
  ErrorBox(u"E");
  EXPECT_THAT(view.Boxes(), ElementsAre(Box{BoxStyle::kErreur, u"Error message", u"E"}));
  EXPECT_EQ(static_cast<int>(BoxStyle::kErreur), 16);
  EXPECT_THAT(platform.beeps, ElementsAre(16u));
}

TEST_F(MessageTest, TheErrorBoxClearsThePendingError) {
  Pending(53, u"Trovex", u"Fichier introuvable", 10);
  ErrorBox(u"E");
  EXPECT_EQ(Err().number, 0);
  EXPECT_EQ(Err().line, 0);
  EXPECT_EQ(Err().source, u"");
  EXPECT_EQ(Err().description, u"");
  EXPECT_EQ(ErrorBox(u"E"), u"E");
}

TEST_F(MessageTest, AnErrorThatIsNotTheSystemsShowsNoTextOfAnEarlierOne) {
  PendingOfSystem(5, u"Access denied.");
  Err().Set(RuntimeError::OfSystem(ErrorNumber::kPermissionDenied, 5));
  EXPECT_EQ(sMessageSysteme(), u"Access denied.");
  Err().Set(RuntimeError(ErrorNumber::kOverflow));
  EXPECT_EQ(ErrorBox(u"E"), u"E" + Details(ErrorNumber::kOverflow));
  Err().Set(RuntimeError::OfSystem(ErrorNumber::kPermissionDenied, 5));
  ErrorBox(u"E");
  EXPECT_EQ(Err().system_code, 0u);
}

// --- sMessageSysteme ----------------------------------------------------------------------------

TEST_F(MessageTest, TheSystemsTextIsTrimmed) {
  PendingOfSystem(2, u"  File not found. ");
  EXPECT_EQ(sMessageSysteme(), u"File not found.");
}

TEST_F(MessageTest, WithoutSystemErrorThereIsNoText) {
  platform.error_text = u"The operation completed successfully.";
  EXPECT_EQ(sMessageSysteme(), u"");
}

TEST_F(MessageTest, ACodeWithoutTextHasNone) {
  PendingOfSystem(99999, u"");
  EXPECT_EQ(sMessageSysteme(), u"");
  PendingOfSystem(99999, u"   ");
  EXPECT_EQ(sMessageSysteme(), u"");
}

TEST_F(MessageTest, ASystemTextThatDoesNotFitTheBufferIsNone) {
  PendingOfSystem(2, Text(499, u'x'));
  EXPECT_EQ(sMessageSysteme(), Text(499, u'x'));
  platform.error_text = Text(500, u'x');
  EXPECT_EQ(sMessageSysteme(), u"");
}

// --- iQuestion ----------------------------------------------------------------------------------

TEST_F(MessageTest, TheQuestionHasItsStyleTitleAndSound) {
  view.Answer(BoxAnswer::kYes);
  iQuestion(u"Oui ?");
  EXPECT_THAT(view.Boxes(),
              ElementsAre(Box{BoxStyle::kQuestion, u"Répondez à la question", u"Oui ?"}));
  EXPECT_EQ(static_cast<int>(BoxStyle::kQuestion), 35);
  EXPECT_THAT(platform.beeps, ElementsAre(32u));
}

TEST_F(MessageTest, TheQuestionTakesATitle) {
  view.Answer(BoxAnswer::kYes);
  iQuestion(u"Oui ?", u"Trovex");
  EXPECT_EQ(view.Boxes().back().title, u"Trovex");
}

TEST_F(MessageTest, TheQuestionGivesTheCodeOfTheAnswer) {
  for (BoxAnswer answer : {BoxAnswer::kYes, BoxAnswer::kNo, BoxAnswer::kCancel}) {
    view.Answer(answer);
    EXPECT_EQ(iQuestion(u"?"), answer);
  }
  EXPECT_EQ(static_cast<int>(BoxAnswer::kYes), 6);
}

TEST_F(MessageTest, AQuestionShowsAndKeepsThePendingError) {
  Pending(53, u"Trovex", u"Fichier introuvable");
  view.Answer(BoxAnswer::kNo);
  iQuestion(u"?");
  EXPECT_EQ(LastBox(), u"?");
  EXPECT_EQ(Err().number, 53);
}

// --- MessageInfo --------------------------------------------------------------------------------

TEST_F(MessageTest, TheInformationHasItsStyleTitleAndSound) {
  ExpectBox();
  MessageInfo(u"Fait");
  EXPECT_THAT(view.Boxes(),
              ElementsAre(Box{BoxStyle::kInfo, u"Un message d'information", u"Fait"}));
  EXPECT_EQ(static_cast<int>(BoxStyle::kInfo), 64);
  EXPECT_THAT(platform.beeps, ElementsAre(64u));
}

TEST_F(MessageTest, TheInformationTakesATitle) {
  ExpectBox();
  MessageInfo(u"Fait", u"Trovex");
  EXPECT_EQ(view.Boxes().back().title, u"Trovex");
}

// --- The hourglass ------------------------------------------------------------------------------

TEST_F(MessageTest, EveryBoxTakesTheHourglassAwayAndDoesNotPutItBack) {
  view.on_box = [this](const Box&) { EXPECT_EQ(view.GetPointer(), Pointer::kDefault); };
  const std::function<void()> boxes[] = {[] { MessageErreur(u"E"); }, [] { iQuestion(u"?"); },
                                         [] { MessageInfo(u"I"); }};
  for (const auto& box : boxes) {
    view.SetPointer(Pointer::kHourglass);
    view.Answer(BoxAnswer::kCancel);
    box();
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  }
}

}  // namespace
}  // namespace trovex::test
