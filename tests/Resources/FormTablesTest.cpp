#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "Resources/Forms.h"
#include "Resources/MainFormTable.h"
#include "Ui/Colour.h"
#include "Ui/ControlFactory.h"

namespace trovex::test {
namespace {

const ControlSpec* Find(const FormSpec& form, TextView name, int index = -1) {
  const auto found = std::find_if(
      form.controls.begin(), form.controls.end(),
      [&](const ControlSpec& control) { return control.name == name && control.index == index; });
  return found == form.controls.end() ? nullptr : &*found;
}

// A name, which is ASCII.
std::string Narrow(TextView name) {
  std::string result;
  for (const char16_t unit : name) result += static_cast<char>(unit);
  return result;
}

// How a failure names a control.
std::string Label(const ControlSpec& control) {
  const std::string index = std::to_string(control.index);
  return Narrow(control.name) + (control.index < 0 ? "" : "(" + index + ")");
}

class EveryForm : public testing::TestWithParam<const FormSpec*> {
 protected:
  const FormSpec& form() const { return *GetParam(); }
};

TEST_P(EveryForm, HasAName) {
  EXPECT_FALSE(TextView(form().name).empty());
  EXPECT_FALSE(form().controls.empty());
}

TEST_P(EveryForm, NamesEachControlOnce) {
  std::set<std::pair<Text, int>> names;
  for (const ControlSpec& control : form().controls) {
    EXPECT_TRUE(names.emplace(control.name, control.index).second) << Label(control);
    EXPECT_FALSE(TextView(control.name).empty());
  }
}

TEST_P(EveryForm, KeepsAControlArrayToOneKindAndNoControlOfTheSameNameBesideIt) {
  std::map<Text, ControlSpec> first;
  for (const ControlSpec& control : form().controls) {
    const ControlSpec& other = first.try_emplace(control.name, control).first->second;
    EXPECT_EQ(control.kind, other.kind) << Label(control);
    EXPECT_EQ(control.index < 0, other.index < 0) << Label(control);
  }
}

TEST_P(EveryForm, PutsAContainerBeforeWhatStandsInIt) {
  std::set<Text> seen;
  for (const ControlSpec& control : form().controls) {
    if (control.traits.container != nullptr) {
      EXPECT_TRUE(seen.contains(control.traits.container)) << Label(control);
    }
    seen.insert(control.name);
  }
}

TEST_P(EveryForm, KeepsEveryControlInsideItsParent) {
  for (const ControlSpec& control : form().controls) {
    Extent parent = {form().client_width, form().client_height};
    if (control.traits.container != nullptr) {
      const ControlSpec* container = Find(form(), control.traits.container);
      ASSERT_NE(container, nullptr) << Label(control);
      parent = {container->place.width, container->place.height};
    }
    const Place& place = control.place;
    EXPECT_GE(place.left, 0) << Label(control);
    EXPECT_GE(place.top, 0) << Label(control);
    EXPECT_LE(place.left + place.width, parent.width) << Label(control);
    EXPECT_LE(place.top + place.height, parent.height) << Label(control);
  }
}

TEST_P(EveryForm, CanBeBuiltAsItsTableSays) {
  for (const ControlSpec& spec : form().controls) {
    const std::unique_ptr<Control> control = CreateControl(spec, Words(form()));
    EXPECT_EQ(control->Kind(), spec.kind);
    EXPECT_EQ(control->Name(), spec.name);
    EXPECT_EQ(control->Index(), spec.index);
    EXPECT_EQ(control->GetPlace(), spec.place) << Label(spec);
    EXPECT_EQ(control->Visible(), spec.traits.visible) << Label(spec);
  }
}

TEST_P(EveryForm, GivesEachPlaceInTheOrderOfTheTabKeyOnce) {
  std::set<int> places;
  for (const ControlSpec& control : form().controls) {
    if (control.traits.tab >= 0) {
      EXPECT_TRUE(places.insert(control.traits.tab).second) << Label(control);
    }
  }
}

TEST_P(EveryForm, NamesOnlyTextsThatThereAre) {
  const Words words(form());
  for (const ControlSpec& control : form().controls) {
    const ControlTraits& traits = control.traits;
    for (const StringId id :
         {traits.caption, traits.help, traits.help_end, traits.tool_tip, traits.spoken}) {
      if (id == kNoText || id == kEmptyText) continue;
      ASSERT_NE(form().texts, nullptr) << Label(control);
      EXPECT_FALSE(words(id).empty()) << Label(control);
    }
  }
}

TEST_P(EveryForm, AnchorsControlsToOthersOfTheForm) {
  for (const ControlSpec& control : form().controls) {
    for (const Anchor& anchor : control.traits.anchors) {
      if (anchor.step == 0) continue;
      EXPECT_NE(anchor.edge, Edge::kNone) << Label(control);
      EXPECT_NE(anchor.to_edge, Edge::kNone) << Label(control);
      if (anchor.to != nullptr) {
        EXPECT_NE(Find(form(), anchor.to, anchor.to_index), nullptr) << Label(control);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(FormTables, EveryForm,
                         testing::ValuesIn(AllForms().begin(), AllForms().end()),
                         [](const auto& form) {
                           std::string name = Narrow(form.param->name);
                           std::erase(name, '_');
                           return name;
                         });

TEST(AllFormsTest, NamesEachFormOnce) {
  std::set<Text> names;
  for (const FormSpec* form : AllForms()) EXPECT_TRUE(names.insert(form->name).second);
}

// --- The main window ---

using K = ControlKind;

struct Expected {
  K kind;
  TextView name;
  int index;
  Place place;
  TextView caption;
  bool visible = true;
};

class MainWindowTable : public testing::TestWithParam<Expected> {};

TEST_P(MainWindowTable, PlacesTheControl) {
  const Expected& expected = GetParam();
  const ControlSpec* control = Find(kMainFormSpec, expected.name, expected.index);
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(control->kind, expected.kind);
  EXPECT_EQ(control->place, expected.place);
  EXPECT_EQ(control->caption, expected.caption);
  EXPECT_EQ(control->traits.visible, expected.visible);
}

constexpr Expected kMainWindow[] = {
    {K::kDriveListBox, u"ListeDrive", -1, {75, 75, 2580, 315}, u""},
    {K::kDirListBox, u"ListeRepertoire", -1, {75, 450, 2580, 1665}, u""},
    {K::kButton, u"Explorer", -1, {2700, 75, 990, 840}, u"Explorer"},
    {K::kButton, u"ConvertHTML", -1, {4050, 75, 990, 840}, u"HTML..."},
    {K::kButton, u"Exporter", -1, {5175, 75, 990, 840}, u"Exporter..."},
    {K::kButton, u"Imprimer", -1, {6300, 75, 990, 840}, u"Imprimer..."},
    {K::kButton, u"CommandOption", -1, {7545, 75, 990, 840}, u"Options..."},
    {K::kButton, u"Apropos", -1, {8670, 75, 990, 840}, u"A propos..."},
    {K::kButton, u"Quitter", -1, {9795, 75, 990, 840}, u"Quitter"},
    {K::kImage, u"ImageAppli", -1, {2850, 1080, 480, 480}, u""},
    {K::kLabel, u"Label2", 11, {3450, 1140, 1065, 195}, u"Libellé produit :"},
    {K::kTextBox, u"TextInfo", 4, {4575, 1065, 5490, 285}, u""},
    {K::kLabel, u"Label2", 20, {3765, 1440, 750, 195}, u"Copyright :"},
    {K::kTextBox, u"TextInfo", 1, {4575, 1365, 5490, 285}, u""},
    {K::kLabel, u"Label2", 21, {3570, 1740, 945, 195}, u"Nom interne :"},
    {K::kTextBox, u"TextInfo", 2, {4575, 1665, 5490, 285}, u""},
    {K::kLabel, u"Label2", 22, {2865, 2040, 1650, 195}, u"Société de distribution :"},
    {K::kTextBox, u"TextInfo", 3, {4575, 1980, 5490, 285}, u""},
    {K::kPictureBox, u"IconeFichier", -1, {10110, 1395, 540, 540}, u""},
    {K::kTextBox, u"TextInfo", 5, {4575, 2295, 5490, 285}, u""},
    {K::kTextBox, u"TextInfo", 6, {10110, 2295, 705, 285}, u""},
    {K::kTabControl, u"ZoneDesTableaux", -1, {30, 2295, 10800, 3165}, u""},
    {K::kGrid, u"GridLogiciel", 0, {75, 375, 8775, 2745}, u""},
    {K::kGrid, u"GridLogiciel", 1, {75, 375, 8775, 2745}, u""},
    {K::kGrid, u"GridLogiciel", 2, {75, 375, 8775, 2745}, u""},
    {K::kLabel, u"LabelInfo", 1, {150, 5610, 1500, 195}, u"Fichiers accessibles :"},
    {K::kLabel, u"LabelInfo", 2, {2625, 5610, 2055, 195}, u"Affichage des fichiers ASCII :", false},
    {K::kButton, u"PrintTexte", -1, {4800, 5530, 300, 300}, u"", false},
    {K::kListBox, u"ListFichier", -1, {75, 5835, 2415, 645}, u""},
    {K::kTextBox, u"TextInfo", 0, {2550, 5850, 8325, 1215}, u"", false},
    {K::kPictureBox, u"ImageSelect", -1, {2580, 5850, 540, 540}, u"", false},
    {K::kStatusBar, u"PanelAide", -1, {0, 7095, 10905, 315}, u""},
    {K::kLine, u"Line1", 0, {2775, 990, 8070, 0}, u""},
    {K::kLine, u"Line1", 1, {30, 2160, 2730, 0}, u""},
    {K::kLine, u"Line2", -1, {2760, 990, 0, 1190}, u""},
};

INSTANTIATE_TEST_SUITE_P(EveryRow, MainWindowTable, testing::ValuesIn(kMainWindow));

TEST(MainFormTableTest, HoldsTheseControlsAndTheShadowsAlone) {
  EXPECT_EQ(kMainFormSpec.controls.size(), std::size(kMainWindow) + 7);
}

TEST(MainFormTableTest, HasTheSizeOfTheDesign) {
  EXPECT_EQ(kMainFormSpec.client_width, 10905);
  EXPECT_EQ(kMainFormSpec.client_height, 7410);
  EXPECT_TRUE(kMainFormSpec.sizable);
  EXPECT_EQ(kMainFormSpec.back_color, Rgb(192, 192, 255));
  EXPECT_EQ(kMainFormMinimum.width, 11025);
  EXPECT_EQ(kMainFormMinimum.height, 7830);
}

TEST(MainFormTableTest, PutsAShadowBehindEachButtonOfTheToolBar) {
  const std::pair<int, TextView> shadows[] = {
      {0, u"Quitter"},     {1, u"Apropos"},  {2, u"Explorer"},     {3, u"Exporter"},
      {4, u"ConvertHTML"}, {5, u"Imprimer"}, {6, u"CommandOption"}};
  for (const auto& [index, name] : shadows) {
    const ControlSpec* shadow = Find(kMainFormSpec, u"ShapeOmbre", index);
    const ControlSpec* button = Find(kMainFormSpec, name);
    ASSERT_NE(shadow, nullptr);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(shadow->place, (Place{button->place.left + 75, 150, 990, 825})) << index;
    EXPECT_LT(shadow, button) << "a shadow is painted first";
  }
}

// What a screen reader says where the control itself bears no text.
TEST(MainFormTableTest, NamesWhatBearsNoText) {
  const std::set<K> silent = {K::kDriveListBox, K::kDirListBox, K::kTextBox,   K::kListBox,
                              K::kPictureBox,   K::kTabControl, K::kStatusBar, K::kGrid};
  for (const ControlSpec& control : kMainFormSpec.controls) {
    if (silent.contains(control.kind)) {
      EXPECT_NE(control.traits.spoken, kNoText) << Label(control);
    }
  }
}

// How the main window's controls follow its size, in a client area of 12000 by 9000.
class MainWindowArrangement : public testing::Test {
 protected:
  MainWindowArrangement() {
    std::vector<Place> places;
    for (const ControlSpec& control : kMainFormSpec.controls) places.push_back(control.place);
    Arrange(kMainFormSpec.controls, places, {12000, 9000}, 1, [&](const Placement& placement) {
      const ControlSpec& control = kMainFormSpec.controls[placement.row];
      order_.push_back(Label(control));
      places_[Label(control)] = placement.place;
    });
  }

  std::vector<std::string> order_;
  std::map<std::string, Place> places_;
};

TEST_F(MainWindowArrangement, TakesTheStepsInTheirOrder) {
  EXPECT_THAT(order_,
              testing::ElementsAre("ShapeOmbre(0)", "Quitter", "Line1(0)", "ZoneDesTableaux",
                                   "TextInfo(6)", "IconeFichier", "TextInfo(5)", "TextInfo(4)",
                                   "TextInfo(3)", "TextInfo(2)", "TextInfo(1)", "ListFichier",
                                   "TextInfo(0)", "GridLogiciel(1)"));
}

TEST_F(MainWindowArrangement, MovesTheLastButtonWithTheRightEdge) {
  EXPECT_EQ(places_["ShapeOmbre(0)"], (Place{11010, 150, 990, 825}));
  EXPECT_EQ(places_["Quitter"], (Place{10935, 75, 990, 840}));
}

TEST_F(MainWindowArrangement, StretchesTheTablesAndTheDetailsToTheRight) {
  EXPECT_EQ(places_["Line1(0)"], (Place{2775, 990, 9195, 0}));
  EXPECT_EQ(places_["ZoneDesTableaux"], (Place{30, 2295, 11940, 3165}));
  EXPECT_EQ(places_["TextInfo(6)"], (Place{11265, 2295, 705, 285}));
  EXPECT_EQ(places_["IconeFichier"], (Place{11295, 1395, 540, 540}));
  EXPECT_EQ(places_["TextInfo(5)"], (Place{4575, 2295, 6690, 285}));
  EXPECT_EQ(places_["TextInfo(1)"], (Place{4575, 1365, 6690, 285}));
  EXPECT_EQ(places_["GridLogiciel(1)"], (Place{75, 375, 11790, 2745}));
}

TEST_F(MainWindowArrangement, GivesTheHeightToTheCompanionsAndTheTextPane) {
  EXPECT_EQ(places_["ListFichier"], (Place{75, 5835, 2415, 2850}));
  EXPECT_EQ(places_["TextInfo(0)"], (Place{2550, 5850, 9390, 2850}));
}

TEST(MainFormTableTest, PutsEachTableOnItsTab) {
  for (int table = 0; table < 3; ++table) {
    const ControlSpec* grid = Find(kMainFormSpec, u"GridLogiciel", table);
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(TextView(grid->traits.container), u"ZoneDesTableaux");
    EXPECT_EQ(grid->traits.page, table);
  }
}

}  // namespace
}  // namespace trovex::test
