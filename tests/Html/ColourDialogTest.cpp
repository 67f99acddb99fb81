#include "Html/HtmlTest.h"
#include "Html/Lib_RGBForm.h"
#include "Ui/Colour.h"

namespace trovex::test {
namespace {

class ColourDialogTest : public HtmlTest {
 protected:
  using User = std::function<void(Lib_RGBForm&)>;

  // What the dialog, opened with a colour, gives after this user's doings.
  Text Choose(Text colour, const User& user) {
    view.AnswerForm([=](Form& form) { user(dynamic_cast<Lib_RGBForm&>(form)); });
    const Text chosen = sGetDialogRGBbyString(colour);
    colour_after = colour;
    EXPECT_TRUE(LoadedForms().empty()) << "the dialog lives for one call";
    return chosen;
  }
  static void Accept(Lib_RGBForm& dialog) { dialog.Valider.Press(); }

  // What a user types into a field, and leaves it.
  static void Type(TextBox& field, const Text& text) {
    field.SetText(text);
    Raise(field.on_lost_focus);
  }

  static std::vector<int> Bars(const Lib_RGBForm& dialog) {
    return {dialog.HScroll_R.Value(), dialog.HScroll_G.Value(), dialog.HScroll_B.Value()};
  }
  static std::vector<Text> Fields(const Lib_RGBForm& dialog) {
    return {dialog.R_Value.GetText(), dialog.G_Value.GetText(), dialog.B_Value.GetText()};
  }

  Text colour_after;
};

using Values = std::vector<int>;
using Texts = std::vector<Text>;

TEST_F(ColourDialogTest, TheDesignIsWhite) {
  const Lib_RGBForm dialog;
  EXPECT_EQ(Bars(dialog), (Values{255, 255, 255}));
  EXPECT_EQ(Fields(dialog), (Texts{u"000", u"000", u"000"}));
  EXPECT_EQ(dialog.LabelRGB.Caption(), u"FFFFFF");
  EXPECT_EQ(dialog.PictureRGB.BackColor(), 0xFFFFFFu);
  for (const ScrollBar* bar : {&dialog.HScroll_R, &dialog.HScroll_G, &dialog.HScroll_B}) {
    EXPECT_EQ(bar->Min(), 1);
    EXPECT_EQ(bar->Max(), 255);
  }
  EXPECT_FALSE(dialog.Reponse.Visible());
}

TEST_F(ColourDialogTest, LettersAndFieldsBearTheirChannelsColour) {
  const Lib_RGBForm dialog;
  EXPECT_EQ(dialog.R_Value.ForeColor(), Rgb(255, 0, 0));
  EXPECT_EQ(dialog.G_Value.ForeColor(), Rgb(0, 255, 0));
  EXPECT_EQ(dialog.B_Value.ForeColor(), Rgb(0, 0, 255));
  const std::pair<TextView, TextView> labels[] = {
      {u"LabelR", u"R"}, {u"LabelG", u"G"}, {u"LabelB", u"B"}};
  const TextBox* fields[] = {&dialog.R_Value, &dialog.G_Value, &dialog.B_Value};
  for (std::size_t i = 0; i < 3; ++i) {
    const Label& label = dialog.Get<Label>(labels[i].first);
    EXPECT_EQ(label.Caption(), labels[i].second);
    EXPECT_EQ(label.ForeColor(), fields[i]->ForeColor());
  }
}

TEST_F(ColourDialogTest, ItOpensInTheMiddleWithItsCaptions) {
  Choose(u"", [this](Lib_RGBForm& dialog) {
    EXPECT_EQ(dialog.Caption(), u"Sélection d'une couleur RGB (RVB)");
    EXPECT_EQ(dialog.Valider.Caption(), u"Valider");
    EXPECT_EQ(dialog.Annuler.Caption(), u"Annuler");
    EXPECT_EQ(dialog.Left(), 15360 / 2.0 - dialog.Width() / 2);
    EXPECT_EQ(dialog.Top(), 11520 / 2.0 - dialog.Height() / 2);
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, WithoutAColourItStartsWhite) {
  const Text chosen = Choose(u"", [](Lib_RGBForm& dialog) {
    EXPECT_EQ(Bars(dialog), (Values{255, 255, 255}));
    EXPECT_EQ(Fields(dialog), (Texts{u"255", u"255", u"255"}));
    Accept(dialog);
  });
  EXPECT_EQ(chosen, u"FFFFFF");
}

TEST_F(ColourDialogTest, TheColourIsShownWithoutItsSign) {
  const Text chosen = Choose(u"#10203f", [](Lib_RGBForm& dialog) {
    EXPECT_EQ(Bars(dialog), (Values{0x3F, 0x20, 0x10}));
    EXPECT_EQ(Fields(dialog), (Texts{u"63", u"32", u"16"}));
    EXPECT_EQ(dialog.PictureRGB.BackColor(), 0x10203Fu);
    EXPECT_EQ(dialog.LabelRGB.Caption(), u"10203F");
    Accept(dialog);
  });
  EXPECT_EQ(chosen, u"10203F");
  EXPECT_EQ(colour_after, u"10203F");
}

TEST_F(ColourDialogTest, AChannelOfZeroGoesToOne) {
  EXPECT_EQ(Choose(u"FF00", Accept), u"1FF01");
}

TEST_F(ColourDialogTest, WhatIsNoColourEndsUpAsBlack) {
  const Text chosen = Choose(u"#vert", [](Lib_RGBForm& dialog) {
    EXPECT_EQ(Bars(dialog), (Values{1, 1, 1}));
    EXPECT_EQ(dialog.PictureRGB.BackColor(), 0x010101u);
    Accept(dialog);
  });
  EXPECT_EQ(chosen, u"10101");
}

TEST_F(ColourDialogTest, ALoneSignIsNoColourEither) {
  EXPECT_EQ(Choose(u"#", Accept), u"10101");
}

TEST_F(ColourDialogTest, CancelGivesNothingWhateverTheBarsShow) {
  const auto move_and = [](const User& leave) {
    return [=](Lib_RGBForm& dialog) {
      dialog.HScroll_R.SetValue(7);
      leave(dialog);
    };
  };
  EXPECT_EQ(Choose(u"FF", move_and([](Lib_RGBForm& dialog) { dialog.Annuler.Press(); })), u"");
  EXPECT_EQ(Choose(u"FF", move_and([](Lib_RGBForm& d) { d.on_key_press(kKeyEscape); })), u"");
  EXPECT_EQ(Choose(u"FF", move_and([](Lib_RGBForm& dialog) { dialog.Close(); })), u"");
}

TEST_F(ColourDialogTest, OtherKeysLeaveItOpen) {
  Choose(u"", [](Lib_RGBForm& dialog) {
    dialog.on_key_press(u'a');
    EXPECT_TRUE(dialog.Visible());
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, EachBarShowsItsChannelAtOnce) {
  Choose(u"", [](Lib_RGBForm& dialog) {
    dialog.HScroll_R.SetValue(1);
    EXPECT_EQ(dialog.R_Value.GetText(), u"1");
    EXPECT_EQ(dialog.LabelRGB.Caption(), u"FFFF01");
    dialog.HScroll_G.Drag(2);
    EXPECT_EQ(dialog.G_Value.GetText(), u"2");
    EXPECT_EQ(dialog.LabelRGB.Caption(), u"FF0201");
    dialog.HScroll_B.SetValue(3);
    EXPECT_EQ(dialog.B_Value.GetText(), u"3");
    EXPECT_EQ(dialog.LabelRGB.Caption(), u"30201");
    EXPECT_EQ(dialog.PictureRGB.BackColor(), Rgb(1, 2, 3));
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, AFieldKeepsTheNumberThatItsTextBeginsWith) {
  const std::pair<Text, Text> texts[] = {
      {u"12a", u"12"}, {u"", u"0"},       {u"a", u"0"},      {u" 7 ", u"7"},
      {u"007", u"7"},  {u"-5", u"-5"},    {u"-0", u"0"},     {u"1.5", u"1.5"},
      {u"1.", u"1"},   {u"2559", u"255"}, {u"&HFF", u"255"}, {u"99999999999999999999999", u"1"}};
  Choose(u"", [&](Lib_RGBForm& dialog) {
    for (const auto& [typed, kept] : texts) {
      dialog.G_Value.SetText(typed);
      EXPECT_EQ(dialog.G_Value.GetText(), kept) << ToUtf8(typed);
    }
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, TypingAloneMovesNoBar) {
  const Text chosen = Choose(u"", [](Lib_RGBForm& dialog) {
    dialog.B_Value.SetText(u"12");
    EXPECT_EQ(dialog.HScroll_B.Value(), 255);
    Accept(dialog);
  });
  EXPECT_EQ(chosen, u"FFFFFF");
}

TEST_F(ColourDialogTest, LeavingAFieldOrEnterMovesItsBar) {
  const Text chosen = Choose(u"", [](Lib_RGBForm& dialog) {
    Type(dialog.R_Value, u"1");
    Type(dialog.G_Value, u"16");
    dialog.B_Value.SetText(u"32");
    Raise(dialog.B_Value.on_enter);
    Accept(dialog);
  });
  EXPECT_EQ(chosen, u"201001");
}

TEST_F(ColourDialogTest, ANumberWithDecimalsIsRounded) {
  Choose(u"", [](Lib_RGBForm& dialog) {
    Type(dialog.R_Value, u"7.8");
    EXPECT_EQ(dialog.HScroll_R.Value(), 8);
    EXPECT_EQ(dialog.R_Value.GetText(), u"8");
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, ZeroPassesTheTestAndIsBroughtToOne) {
  Choose(u"", [](Lib_RGBForm& dialog) {
    Type(dialog.R_Value, u"0");
    EXPECT_EQ(dialog.HScroll_R.Value(), 1);
    EXPECT_EQ(dialog.R_Value.GetText(), u"1");
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, ANumberOutOfRangeIsReportedAndStays) {
  for (const char16_t* number : {u"256", u"-1"}) {
    view.Answer(BoxAnswer::kOk);
    const Text chosen = Choose(u"#FF", [=](Lib_RGBForm& dialog) {
      Type(dialog.R_Value, number);
      EXPECT_EQ(dialog.R_Value.GetText(), number);
      EXPECT_EQ(dialog.HScroll_R.Value(), 255);
      Accept(dialog);
    });
    EXPECT_EQ(chosen, u"101FF");
    EXPECT_EQ(LastBox(),
              u"La valeur RGB doit être supérieure ou égale à 1 et inférieure ou égale à 255");
  }
}

TEST_F(ColourDialogTest, TheMouseShowsTheHelpAndButtonsTakeTheFocus) {
  Choose(u"", [this](Lib_RGBForm& dialog) {
    const auto help = [&](Control& control) {
      Raise(control.on_mouse_move);
      return dialog.PanelAide.Caption();
    };
    EXPECT_EQ(help(dialog.PictureRGB), u"Zone d'affichage de la couleur.");
    EXPECT_EQ(help(dialog.LabelRGB), u"Valeur Hexadécimal de la couleur RGB affichée.");
    EXPECT_EQ(help(dialog.Get<Label>(u"LabelR")), u"Canal Rouge");
    EXPECT_EQ(help(dialog.Get<Label>(u"LabelG")), u"Canal Vert");
    EXPECT_EQ(help(dialog.Get<Label>(u"LabelB")), u"Canal Bleu");
    EXPECT_EQ(help(dialog.PanelAide), u"Zone d'affichage de l'aide");
    EXPECT_EQ(help(dialog), u"");
    EXPECT_EQ(view.Focus(), nullptr);
    EXPECT_EQ(help(dialog.Valider), u"Valide la couleur sélectionnée.");
    EXPECT_EQ(view.Focus(), &dialog.Valider);
    EXPECT_EQ(help(dialog.Annuler), u"Annule toute sélection et ferme la fenêtre.");
    EXPECT_EQ(view.Focus(), &dialog.Annuler);
    Accept(dialog);
  });
}

TEST_F(ColourDialogTest, ATopmostDialogGivesThatUp) {
  Choose(u"", [this](Lib_RGBForm& dialog) {
    dialog.SetTag(u"-1");
    FenetrePremierPlan(dialog, true);
    EXPECT_EQ(view.TopmostForms().size(), 1u);
    Accept(dialog);
  });
  EXPECT_TRUE(view.TopmostForms().empty());
  EXPECT_EQ(sFenetreDevant, u"");
}

}  // namespace
}  // namespace trovex::test
