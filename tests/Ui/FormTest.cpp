#include "Ui/Form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Ui/Button.h"
#include "Ui/FormsScope.h"
#include "Ui/Headless/HeadlessView.h"
#include "Ui/Label.h"
#include "Ui/Line.h"
#include "Ui/OptionButton.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using K = ControlKind;

constexpr ControlSpec kControls[] = {
    {K::kButton, u"Oui", -1, {10, 20, 30, 40}, u"Valider"},
    {K::kOptionButton, u"Choix", 0, {0, 0, 100, 20}, u"Un"},
    {K::kOptionButton, u"Choix", 1, {0, 30, 100, 20}, u"Deux", {.visible = false}},
    {K::kTabControl, u"Onglets", -1, {0, 100, 500, 500}},
    {K::kLabel, u"Page", -1, {5, 5, 50, 20}, u"Page", {.container = u"Onglets", .page = 2}},
    {K::kStatusBar, u"Aide", -1, {0, 900, 1000, 100}},
    {K::kLine, u"Trait", -1, {10, 20, 300, 0}},
};
constexpr FormSpec kSpec = {u"Essai", u"Une fenêtre", 1000, 1000, true, 0x00FF00, kControls};

// Writes down what the view is told.
class JournalView : public HeadlessView {
 public:
  std::vector<Text> journal;
  void Attach(Form& form) override {
    EXPECT_FALSE(form.Visible());
    journal.push_back(u"attach " + form.Name());
  }
  void Detach(Form& form) override {
    EXPECT_FALSE(form.Visible());
    journal.push_back(u"detach " + form.Name());
    HeadlessView::Detach(form);
  }
  void Changed(Control& control, Property) override { journal.push_back(control.Name()); }
};

class FormTest : public testing::Test {
 protected:
  ~FormTest() override { form.Unload(); }

  JournalView view;
  ViewScope scope{view};
  Form form{kSpec};
};

TEST_F(FormTest, IsBuiltFromItsTable) {
  EXPECT_EQ(form.Name(), u"Essai");
  EXPECT_EQ(form.Caption(), u"Une fenêtre");
  EXPECT_EQ(form.BackColor(), 0x00FF00u);
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.Controls().size(), std::size(kControls));
  EXPECT_EQ(form.Get<Button>(u"Oui").Caption(), u"Valider");
  EXPECT_EQ(form.Get<Button>(u"Oui").GetPlace(), (Place{10, 20, 30, 40}));
  EXPECT_FALSE(form.Get<OptionButton>(u"Choix", 1).Visible());
  const Label& page = form.Get<Label>(u"Page");
  EXPECT_EQ(page.Container(), form.Find(u"Onglets"));
  EXPECT_EQ(page.Page(), 2);
  EXPECT_EQ(form.Get<Line>(u"Trait").X2(), 310);
}

TEST_F(FormTest, AControlThatIsNotThereIsNullOrAnError) {
  EXPECT_EQ(form.Find(u"Non"), nullptr);
  EXPECT_EQ(form.Find(u"Choix"), nullptr);
  EXPECT_THROW(form.Get<Button>(u"Non"), RuntimeError);
  EXPECT_THROW(form.Get<Label>(u"Oui"), RuntimeError);
}

TEST_F(FormTest, TheOuterSizeAddsTheFrame) {
  EXPECT_EQ(form.Width(), 1120);
  EXPECT_EQ(form.Height(), 1420);
  EXPECT_EQ(form.ScaleWidth(), 1000);
  EXPECT_EQ(form.ScaleHeight(), 1000);
}

TEST_F(FormTest, ResizingRaisesTheEventOnceAndOnlyForAChange) {
  int events = 0;
  form.on_resize = [&] { ++events; };
  form.Resize(2000, 2000);
  form.Resize(2000, 2000);
  EXPECT_EQ(events, 1);
}

TEST_F(FormTest, AStatusBarKeepsToTheLowerEdge) {
  form.on_resize = [&] { EXPECT_EQ(form.Find(u"Aide")->Top(), 1480); };
  form.Resize(2000, 2000);
  EXPECT_EQ(form.Find(u"Aide")->GetPlace(), (Place{0, 1480, 1880, 100}));
}

TEST_F(FormTest, ShowingLoadsOnceAndActivates) {
  std::vector<Text> events;
  form.on_load = [&] { events.push_back(u"load"); };
  form.on_activate = [&] { events.push_back(u"activate"); };
  form.Load();
  form.Show();
  form.Show();
  EXPECT_THAT(events, ElementsAre(u"load", u"activate"));
  EXPECT_THAT(LoadedForms(), ElementsAre(&form));
  EXPECT_EQ(view.journal.front(), u"attach Essai");
}

TEST_F(FormTest, UnloadingRaisesItsEventAndLeavesTheList) {
  int events = 0;
  form.on_unload = [&] {
    ++events;
    EXPECT_TRUE(form.Loaded());
  };
  form.Show();
  form.Unload();
  form.Unload();
  EXPECT_EQ(events, 1);
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_THAT(LoadedForms(), IsEmpty());
  EXPECT_EQ(view.journal.back(), u"detach Essai");
}

TEST_F(FormTest, UnloadingWithinTheUnloadEventGoesAtOnce) {
  int events = 0;
  form.on_unload = [&] {
    ++events;
    form.Unload();
    EXPECT_FALSE(form.Loaded());
  };
  form.Load();
  form.Unload();
  EXPECT_EQ(events, 1);
  EXPECT_FALSE(form.Loaded());
}

TEST_F(FormTest, AFormCanBeLoadedAgain) {
  int loads = 0;
  form.on_load = [&] { ++loads; };
  form.Load();
  form.Unload();
  form.Load();
  EXPECT_EQ(loads, 2);
}

TEST_F(FormTest, AModalFormRunsUntilItIsHidden) {
  view.AnswerForm([](Form& shown) {
    EXPECT_TRUE(shown.Visible());
    shown.Hide();
  });
  form.ShowModal();
  EXPECT_TRUE(form.Loaded());
  EXPECT_FALSE(form.Visible());
}

TEST_F(FormTest, AFormHiddenByItsActivationNeverRuns) {
  form.on_activate = [&] { form.Hide(); };
  form.ShowModal();
  EXPECT_FALSE(form.Visible());
}

TEST_F(FormTest, AnUnloadedFormTellsNoView) {
  form.Get<Button>(u"Oui").SetCaption(u"Autre");
  form.SetCaption(u"Autre");
  EXPECT_THAT(view.journal, IsEmpty());
  EXPECT_EQ(form.Caption(), u"Autre");
}

TEST_F(FormTest, ALoadedFormTellsTheViewOfChangesAlone) {
  form.Load();
  view.journal.clear();
  Button& button = form.Get<Button>(u"Oui");
  button.SetCaption(u"Autre");
  button.SetCaption(u"Autre");
  button.SetEnabled(false);
  button.SetEnabled(false);
  button.SetVisible(false);
  button.SetLeft(99);
  button.SetLeft(99);
  EXPECT_THAT(view.journal, ElementsAre(u"Oui", u"Oui", u"Oui", u"Oui"));
}

TEST_F(FormTest, EntriesOfTheWindowMenuAreChosenAndTurnedByTheirEvents) {
  int opened = 0;
  form.AddMenuEntry(u"&Ouvrir...").on_click = [&] { ++opened; };
  MenuEntry& mark = form.AddMenuEntry(u"&Marque");
  mark.on_click = [&] { mark.SetChecked(!mark.Checked()); };
  ASSERT_EQ(form.MenuEntries().size(), 2u);
  EXPECT_EQ(form.MenuEntries()[0]->Caption(), u"&Ouvrir...");
  EXPECT_FALSE(mark.Checked());
  form.MenuEntries()[1]->Choose();
  EXPECT_TRUE(mark.Checked());
  form.MenuEntries()[1]->Choose();
  EXPECT_FALSE(mark.Checked());
  EXPECT_EQ(opened, 0);
  form.MenuEntries()[0]->Choose();
  EXPECT_EQ(opened, 1);
}

TEST_F(FormTest, TheViewIsToldOfTheWindowMenuOfALoadedForm) {
  MenuEntry& entry = form.AddMenuEntry(u"Marque");
  EXPECT_THAT(view.journal, IsEmpty());
  form.Load();
  view.journal.clear();
  entry.SetChecked(true);
  entry.SetChecked(true);
  form.AddMenuEntry(u"Autre");
  EXPECT_THAT(view.journal, ElementsAre(u"Essai", u"Essai"));
}

TEST_F(FormTest, AnEntryThatNobodyListensToDoesNothing) {
  form.AddMenuEntry(u"Muet").Choose();
  EXPECT_FALSE(form.MenuEntries()[0]->Checked());
}

TEST_F(FormTest, FocusAndRepaintReachTheViewOfALoadedForm) {
  Button& button = form.Get<Button>(u"Oui");
  button.SetFocus();
  button.Refresh();
  EXPECT_EQ(view.Focus(), nullptr);
  form.Load();
  button.SetFocus();
  button.Refresh();
  EXPECT_EQ(view.Focus(), &button);
  EXPECT_EQ(view.Repaints(button), 1);
}

TEST_F(FormTest, AFormThatGoesTakesTheFocusWithIt) {
  form.Load();
  form.Get<Button>(u"Oui").SetFocus();
  form.Unload();
  EXPECT_EQ(view.Focus(), nullptr);
}

TEST_F(FormTest, AFormThatGoesIsInFrontNoMore) {
  form.Load();
  view.BringToFront(form);
  EXPECT_EQ(view.Front(), &form);
  form.Unload();
  EXPECT_EQ(view.Front(), nullptr);
}

TEST_F(FormTest, TheCloseBoxTakesTheFormsOwnWayOut) {
  int keys = 0;
  form.on_key_press = [&](int key) { keys += key; };
  form.Load();
  form.Close();
  EXPECT_EQ(keys, kKeyEscape);
  EXPECT_TRUE(form.Loaded());
  int closes = 0;
  form.on_close = [&] { ++closes; };
  form.Close();
  EXPECT_EQ(closes, 1);
  EXPECT_EQ(keys, kKeyEscape);
}

TEST_F(FormTest, WithoutAWayOutTheCloseBoxUnloads) {
  form.Load();
  form.Close();
  EXPECT_FALSE(form.Loaded());
}

TEST_F(FormTest, NoFormOutlivesTheScopeOfTheFormsNotEvenOneThatWillNotGo) {
  Form other{kSpec};
  int failures = 0;
  {
    FormsScope forms;
    form.Show();
    other.Load();
    form.on_unload = [&] {
      ++failures;
      throw RuntimeError(ErrorNumber::kInvalidCall);
    };
  }
  EXPECT_THAT(LoadedForms(), IsEmpty());
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(failures, 1);
}

TEST_F(FormTest, AnOptionReleasesTheOthersOfItsArray) {
  auto& first = form.Get<OptionButton>(u"Choix", 0);
  auto& second = form.Get<OptionButton>(u"Choix", 1);
  std::vector<Text> clicks;
  first.on_click = [&] { clicks.push_back(u"premier"); };
  second.on_click = [&] { clicks.push_back(u"second"); };
  first.Preset(true);
  EXPECT_THAT(clicks, IsEmpty());
  second.SetValue(true);
  EXPECT_FALSE(first.Value());
  first.SetValue(true);
  first.SetValue(true);
  EXPECT_FALSE(second.Value());
  EXPECT_THAT(clicks, ElementsAre(u"second", u"premier"));
}

}  // namespace
}  // namespace trovex::test
