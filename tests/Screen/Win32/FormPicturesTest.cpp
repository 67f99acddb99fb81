// Every form in its real window at three resolutions: nothing is cut off, and a picture of each is
// written where the environment variable TROVEX_PICTURES names a directory.
#include <cstdlib>
#include <map>

#include "Export/Lib_GridListe.h"
#include "Html/Lib_OptionsHTML.h"
#include "Html/Lib_RGBForm.h"
#include "Lib/Lib_SelectDlg.h"
#include "Resources/Forms.h"
#include "Screen/Lib_AboutDlg.h"
#include "System/Lib_SystemWinInfo.h"
#include "WindowTest.h"
#include "support/Win32/DarkScheme.h"
#include "support/Win32/Readability.h"
#include "support/Win32/WindowPicture.h"

namespace trovex::test {
namespace {

using testing::IsEmpty;

class FormPicturesTest : public WindowTest {
 protected:
  // Shows the form and looks at it at 100, 150 and 200 percent.
  void LookAt(Form& form) {
    form.Load();
    form.Show();
    Rest();
    for (const int percent : {100, 150, 200}) {
      MoveToResolution(form, 96 * percent / 100);
      Rest();
      EXPECT_THAT(Clipped(form), IsEmpty()) << "at " << percent << " %";
      TakePicture(form, std::to_string(percent));
    }
    MoveToResolution(form, 96);
    LookInTheDark(form);
    seen_.insert(form.Name());
  }

  static std::set<Text> seen_;

 private:
  // The form on a desktop in light letters on black: first with the program's own colours, then
  // with high contrast, which makes all of it black.
  void LookInTheDark(Form& form) {
    // The program's own green on white is the least.
    constexpr double kLegible = 1.3, kEasilyRead = 4.5;
    const DarkScheme scheme;
    SetHighContrast(form, false);
    EXPECT_THAT(HardToRead(form, kLegible, 1), IsEmpty()) << "with a dark desktop";
    TakePicture(form, "sombre");
    SetHighContrast(form, true);
    EXPECT_THAT(HardToRead(form, kEasilyRead, 0.1), IsEmpty()) << "with high contrast";
    TakePicture(form, "contraste");
    SetHighContrast(form, false);
  }

  void SetHighContrast(const Form& form, bool on) {
    view.GetShared().colours.ask = [on] { return on; };
    SendMessageW(Handle(form), WM_SYSCOLORCHANGE, 0, 0);
    Rest();
    Redraw(form);
  }

  // The visible controls whose text stands out too little, or on too light a background.
  std::vector<std::string> HardToRead(const Form& form, double least, double lightest) {
    std::vector<std::string> found;
    for (const auto& control : form.Controls()) {
      if (!HasText(*control) || view.Of(form)->Of(*control) == nullptr) continue;
      const HWND window = Handle(*control);
      if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
      double background = 0;
      const double contrast = Contrast(window, &background);
      if (contrast < least || background > lightest) {
        found.push_back(NameOf(*control) + ": " + std::to_string(contrast) + " on " +
                        std::to_string(background));
      }
    }
    return found;
  }

  static bool HasText(const Control& control) {
    if (const auto* captioned = dynamic_cast<const Captioned*>(&control)) {
      return !captioned->Caption().empty();
    }
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) return !box->GetText().empty();
    const ControlKind kind = control.Kind();
    return kind == ControlKind::kGrid || kind == ControlKind::kDirListBox;
  }

  void Redraw(const Form& form) {
    const HWND window = Handle(form);
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE);
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    Rest();
  }

  void TakePicture(const Form& form, const std::string& look) {
    const char* directory = std::getenv("TROVEX_PICTURES");
    if (directory == nullptr) return;
    Redraw(form);
    const HWND window = Handle(form);
    WritePicture(window,
                 std::filesystem::path(directory) / (ToUtf8(form.Name()) + "-" + look + ".png"));
  }

  // What of the form's controls cannot be read whole: captions wider or higher than their windows,
  // windows that leave the form or cover each other.
  std::vector<std::string> Clipped(const Form& form) {
    std::vector<std::string> found;
    const SIZE client = ClientSize(form);
    for (const auto& control : form.Controls()) {
      if (view.Of(form)->Of(*control) == nullptr || !IsWindowVisible(Handle(*control))) continue;
      const RECT at = PlaceOf(*control);
      // A closed drop-down list counts as high as it is closed.
      if (at.left < 0 || at.top < 0 || at.right > client.cx || at.bottom > client.cy) {
        found.push_back(NameOf(*control) + " leaves the form");
      }
      const auto* captioned = dynamic_cast<const Captioned*>(control.get());
      if (captioned != nullptr && !captioned->Caption().empty()) {
        if (!Fits(*captioned)) found.push_back(NameOf(*control) + " is too small for its caption");
        const Control* other = Covered(form, *captioned);
        if (other != nullptr) found.push_back(NameOf(*control) + " meets " + NameOf(*other));
      }
    }
    return found;
  }

  std::string NameOf(const Control& control) {
    return ToUtf8(control.Name()) + "(" + std::to_string(control.Index()) + ")";
  }

  // The pixels of a button that its frame, or its mark, leaves to no caption.
  static int Margin(const Control& control, int height) {
    if (control.Kind() == ControlKind::kButton) return 6;
    const bool has_mark =
        control.Kind() == ControlKind::kCheckBox || control.Kind() == ControlKind::kOptionButton;
    return has_mark ? std::min(height, 20) : 0;
  }

  bool Fits(const Captioned& control) {
    RECT client;
    GetClientRect(Handle(control), &client);
    const HDC dc = GetDC(Handle(control));
    SelectObject(dc, reinterpret_cast<HFONT>(Ask(control, WM_GETFONT)));
    RECT needed = {0, 0, client.right - Margin(control, client.bottom), 0};
    const Text& caption = control.Caption();
    const bool wraps =
        control.Kind() == ControlKind::kLabel || control.Kind() == ControlKind::kPanel;
    const int width = static_cast<int>(needed.right);
    DrawTextW(dc, Wide(caption), static_cast<int>(caption.size()), &needed,
              DT_CALCRECT | DT_NOPREFIX | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
    ReleaseDC(Handle(control), dc);
    return needed.right <= width && needed.bottom <= client.bottom;
  }

  // Another window of the same page under a caption; null if there is none.
  const Control* Covered(const Form& form, const Control& control) {
    const RECT mine = PlaceOf(control);
    for (const auto& other : form.Controls()) {
      if (other.get() == &control || other->Kind() == ControlKind::kTabControl) continue;
      if (view.Of(form)->Of(*other) == nullptr || !IsWindowVisible(Handle(*other))) continue;
      const RECT its = PlaceOf(*other);
      RECT common;
      if (IntersectRect(&common, &mine, &its)) return other.get();
    }
    return nullptr;
  }
};

std::set<Text> FormPicturesTest::seen_;

TEST_F(FormPicturesTest, MainForm) {
  MainForm form;
  Main(form);
  form.ListeRepertoire.SetPath(u"D:\\");
  form.Explorer.Press();
  Rest();
  LookAt(form);
}

TEST_F(FormPicturesTest, OptionsHTML) {
  OptionsHTML form;
  LookAt(form);
}

TEST_F(FormPicturesTest, RGBForm) {
  Lib_RGBForm form;
  LookAt(form);
}

TEST_F(FormPicturesTest, SelectDlg) {
  Lib_SelectDlg form;
  form.Libelle().SetCaption(u"Quels tableaux faut-il exporter ?");
  form.SelOptions(0).SetCaption(u"Le tableau affiché");
  form.SelOptions(1).SetCaption(u"Tous les tableaux");
  form.Preselect(0);
  LookAt(form);
}

TEST_F(FormPicturesTest, SystemWinInfo) {
  Lib_SystemWinInfo form;
  LookAt(form);
}

TEST_F(FormPicturesTest, AboutDlg) {
  Lib_AboutDlg form;
  form.LabelNom.SetCaption(u"Trovex");
  form.LabelVersion.SetCaption(u"v1.0.12");
  form.LabelAccord.SetCaption(u"Version 32 bits pour Windows");
  LookAt(form);
}

TEST_F(FormPicturesTest, GridListe) {
  Lib_GridListe form;
  form.SetCaption(u"Liste des fichiers");
  for (int row = 0; row < 12; ++row) form.GridListe.AddItem(u"Fichier\tD:\\JEUX\t12 Ko\t1.0");
  LookAt(form);
}

// Comes last: the tool form is never shown.
TEST_F(FormPicturesTest, ZEveryFormWasLookedAt) {
  for (const FormSpec* spec : AllForms()) {
    const bool shown = Text(spec->name) != u"Lib_Form";
    EXPECT_EQ(seen_.contains(spec->name), shown) << ToUtf8(spec->name);
  }
}

}  // namespace
}  // namespace trovex::test
