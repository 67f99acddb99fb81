// Ground of the tests of the HTML folder: a settings file that is not there until a test writes it.
#pragma once

#include "Html/Lib_OptionsHTML.h"
#include "Platform/Encoding.h"
#include "support/MachineTest.h"

namespace trovex::test {

class HtmlTest : public MachineTest {
 protected:
  // A name of its own for each test: the system may keep a file of the same name and date in mind.
  HtmlTest() {
    name_ = "REGL" + std::to_string(++number_) + ".INI";
    sFichierIni = u"D:\\" + Text(name_.begin(), name_.end());
  }
  ~HtmlTest() override {
    Forget();
    sFichierIni.clear();
  }

  // The settings file, its section "html" with these lines.
  void Settings(const std::vector<Text>& lines) {
    Text text = u"[html]\r\n";
    for (const Text& line : lines) text += line + u"\r\n";
    Write(text);
  }
  void Write(const Text& text) { disc.File(name_, ToCp1252(text)); }

  // The options, loaded if they are not.
  OptionsHTML& Options() { return Lib_OptionsHTML(); }
  // The program's end: the next use loads them again.
  void Forget() {
    for (Form* form : std::vector<Form*>(LoadedForms())) form->Unload();
  }

  // Value of a key of the settings file, "-" where it is missing or empty.
  Text Saved(const Text& key) {
    sDernierFichierIni.clear();
    return sLitIni(u"html", key, u"-", sFichierIni);
  }
  // The settings file as it stands, or its first 1000 bytes.
  std::string SettingsBytes() {
    const FileHandle file = disc.GetPlatform().OpenRead(sFichierIni);
    std::string contents(1000, '\0');
    contents.resize(disc.GetPlatform().Read(file, contents.data(), contents.size()));
    disc.GetPlatform().Close(file);
    return contents;
  }
  bool SettingsExist() { return bFichierExiste(sFichierIni); }

 private:
  std::string name_;
  static inline int number_ = 0;
};

// Number of the run-time error that an operation raises; 0 if it raises none.
template <typename Operation>
int ErrorOf(Operation operation) {
  try {
    operation();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

inline constexpr int kOverflow = static_cast<int>(ErrorNumber::kOverflow);
inline constexpr int kNoSuchElement = static_cast<int>(ErrorNumber::kNoSuchElement);

}  // namespace trovex::test
