#include "Lib/LIB_REGISTRY.h"

#include "support/MachineTest.h"

namespace trovex::test {
namespace {

constexpr RegistryRoot kMachine = RegistryRoot::kLocalMachine;
constexpr std::uint32_t kUnexpanded = 2;  // type of a text with variables in it

class RegistryTest : public MachineTest {
 protected:
  // Result and value of a value read under an open key.
  long Read(RegistryValue value, Text& text) {
    machine.SetValue(kMachine, u"CLE", u"Nom", std::move(value));
    RegistryKey key = RegistryKey::kNone;
    machine.RegOpenKeyEx(kMachine, u"CLE", 63, key);
    text = u"ancien";
    return iLireValeur(key, u"Nom", text);
  }
};

TEST_F(RegistryTest, ADefaultValueIsReadTrimmed) {
  machine.SetClass(u".zip", u"  zipfile ");
  EXPECT_EQ(sLireCleClasse(u".zip"), u"zipfile");
}

TEST_F(RegistryTest, AnExtensionThatNobodyRegisteredIsEmptyAndTheKeyExistsAfterwards) {
  EXPECT_EQ(sLireCleClasse(u".xyz"), u"");
  EXPECT_TRUE(machine.keys_created.contains(u".XYZ"));
}

TEST_F(RegistryTest, AnEmptyDefaultValueIsEmpty) {
  machine.SetClass(u".zip", u"");
  EXPECT_EQ(sLireCleClasse(u".zip"), u"");
}

TEST_F(RegistryTest, WithoutTheRightToCreateAClassIsEmpty) {
  machine.registry_locked = true;
  EXPECT_EQ(sLireCleClasse(u".zip"), u"");
}

TEST_F(RegistryTest, NulsInsideADefaultValueBecomeBlanks) {
  machine.SetClass(u".zip", Text(u"a\0b\0", 4));
  EXPECT_EQ(sLireCleClasse(u".zip"), u"a b");
}

TEST_F(RegistryTest, AClassKeyStaysOpen) {
  sLireCleClasse(u".zip");
  sLireCleClasse(u".zip");
  EXPECT_EQ(machine.keys_open, 2);
}

TEST_F(RegistryTest, TheOpenCommandOfAClassIsCutAtItsNulAndTrimmed) {
  machine.SetClass(u"zipfile\\shell\\open\\command", Text(u" C:\\ZIP.EXE %1 \0reste", 22));
  EXPECT_EQ(sCommandeOuverture(u"zipfile"), u"C:\\ZIP.EXE %1");
  EXPECT_EQ(machine.keys_open, 0);
  EXPECT_THAT(machine.accesses, testing::ElementsAre(63u));
}

TEST_F(RegistryTest, TheOpenCommandOfAnEmptyClassIsEmpty) {
  machine.SetClass(u"shell\\open\\command", u"C:\\AUTRE.EXE");
  EXPECT_EQ(sCommandeOuverture(u""), u"");
  EXPECT_EQ(sCommandeOuverture(u"absent"), u"");
}

TEST_F(RegistryTest, AMachineValueIsReadByName) {
  machine.SetValue(kMachine, u"SOFTWARE\\Outil", u"Path", FakeShell::TextValue(u" C:\\OUTIL.EXE "));
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Outil", u"PATH"), u"C:\\OUTIL.EXE");
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Outil", u"Absent"), u"");
  EXPECT_EQ(machine.keys_open, 0);
}

TEST_F(RegistryTest, WithoutANameAMachineKeyGivesAStatus) {
  machine.SetValue(kMachine, u"SOFTWARE\\Outil", u"", FakeShell::TextValue(u"défaut"));
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Outil", u""), u"0");
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Absent", u""), u"2");
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Outil", u"", true), u"défaut");
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Absent", u"", true), u"");
  EXPECT_EQ(sLireCleMachine(u"SOFTWARE\\Absent", u"Path"), u"");
  EXPECT_EQ(machine.keys_open, 0);
}

TEST_F(RegistryTest, AStringKeepsItsTerminator) {
  Text text;
  EXPECT_EQ(Read(FakeShell::TextValue(u"abc"), text), 0);
  EXPECT_EQ(text, Text(u"abc\0", 4));
}

TEST_F(RegistryTest, NumbersAndShortBinariesAreReadAsSignedNumbers) {
  Text text;
  EXPECT_EQ(Read({kRegistryNumber, {}, std::string("\x39\x30\0\0", 4)}, text), 0);
  EXPECT_EQ(text, u"12345");
  EXPECT_EQ(Read({kRegistryNumber, {}, "\xFF\xFF\xFF\xFF"}, text), 0);
  EXPECT_EQ(text, u"-1");
  EXPECT_EQ(Read({kRegistryBinary, {}, "\x02\x01"}, text), 0);
  EXPECT_EQ(text, u"258");
}

TEST_F(RegistryTest, ABinaryOfMoreThanFourBytesIsNotRead) {
  Text text;
  EXPECT_EQ(Read({kRegistryBinary, {}, "12345"}, text), 234);
  EXPECT_EQ(text, u"");
}

TEST_F(RegistryTest, OfSeveralStringsTheFirstIsRead) {
  Text text;
  EXPECT_EQ(Read({kRegistryStrings, Text(u"un\0deux\0\0", 9), {}}, text), 0);
  EXPECT_EQ(text, u"un");
  EXPECT_EQ(Read({kRegistryStrings, Text(261, u'x'), {}}, text), 234);
  EXPECT_EQ(text, u"");
}

TEST_F(RegistryTest, AStringWithVariablesIsNotRead) {
  const RegistryValue command = {kUnexpanded, Text(u"%SystemRoot%\\A.EXE\0", 19), {}};
  Text text;
  EXPECT_EQ(Read(command, text), -1);
  EXPECT_EQ(text, u"");
  EXPECT_EQ(sLireCleMachine(u"CLE", u"Nom"), u"");
  machine.SetValue(RegistryRoot::kClassesRoot, u"classe\\shell\\open\\command", u"", command);
  EXPECT_EQ(sCommandeOuverture(u"classe"), u"");
}

TEST_F(RegistryTest, TheDefaultValueOfAClassKeepsItsVariables) {
  machine.SetValue(RegistryRoot::kClassesRoot, u"classe", u"",
                   {kUnexpanded, Text(u"%SystemRoot%\\A.EXE,1\0", 21), {}});
  EXPECT_EQ(sLireCleClasse(u"classe"), u"%SystemRoot%\\A.EXE,1");
}

TEST_F(RegistryTest, AnyOtherTypeAndAMissingValueAreNotRead) {
  Text text;
  for (const std::uint32_t type : {0U, 5U, 8U, 11U}) {
    EXPECT_EQ(Read({type, u"abc", {}}, text), -1) << type;
  }
  EXPECT_EQ(text, u"");
  RegistryKey key = RegistryKey::kNone;
  machine.RegOpenKeyEx(kMachine, u"CLE", 63, key);
  text = u"ancien";
  EXPECT_EQ(iLireValeur(key, u"Absent", text), 2);
  EXPECT_EQ(text, u"");
}

}  // namespace
}  // namespace trovex::test
