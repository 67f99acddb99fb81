#include "System/Lib_SystemWinInfo.h"

#include <cmath>

#include "Lib/Dialogs.h"
#include "Lib/Graphics.h"
#include "Platform/Platform.h"
#include "Resources/Strings.h"
#include "Resources/SystemWinInfoTable.h"
#include "System/LIB_SYSTEME.h"

namespace trovex {
namespace {

constexpr std::uint32_t kDirectoryBuffer = 255;  // characters
constexpr int kGroup = 3;                        // digits

Text DirectoryOf(std::uint32_t (FilePort::*operation)(Text&, std::uint32_t)) {
  Text buffer;
  const std::uint32_t length = (CurrentPlatform().*operation)(buffer, kDirectoryBuffer);
  return buffer.substr(0, length);
}

Text NameOfProcessor() {
  SystemInfo info;
  CurrentPlatform().GetSystemInfo(info);
  return sNomProcesseur(info.dwProcessorType);
}

// Goes through the list of running programs; an error leaves what was added.
void AddProcesses(ListBox& list, SnapshotHandle snapshot) {
  IgnoringErrors([&] {
    ProcessEntry entry;
    entry.dwSize = kProcessEntrySize;
    for (bool more = CurrentPlatform().Process32First(snapshot, entry); more;
         more = CurrentPlatform().Process32Next(snapshot, entry)) {
      list.AddItem(entry.szExeFile);
    }
  });
}

}  // namespace

const Text& sNomProcesseur(std::uint32_t dwProcessorType) {
  switch (dwProcessorType) {
    case 386:
      return ResString(StringId::kIntel386);
    case 486:
      return ResString(StringId::kIntel486);
    case 586:
      return ResString(StringId::kIntelPentium);
    case 4000:
      return ResString(StringId::kMipsR4000);
    case 21064:
      return ResString(StringId::kDecAlpha);
    default:
      // Deliberately the text before kInconnue.
      return ResString(StringId::kListeProcessus);
  }
}

Text sFormatMemoire(std::uint32_t dwOctets) {
  const double kilobytes = static_cast<std::int32_t>(dwOctets) / 1024.0;
  const long long number = std::llround(kilobytes);
  Text digits = number == 0 ? Text() : Decimal(std::llabs(number));
  for (int at = static_cast<int>(digits.size()) - kGroup; at > 0; at -= kGroup) {
    digits.insert(static_cast<std::size_t>(at), u".");
  }
  return (number < 0 ? u"-" : u"") + digits + u" Ko";
}

Lib_SystemWinInfo::Lib_SystemWinInfo()
    : Form(kSystemWinInfoSpec),
      ZoneInfos(Get<Frame>(u"ZoneInfos")),
      CommandMSInfo(Get<Button>(u"CommandMSInfo")),
      AfficheProcess(Get<Button>(u"AfficheProcess")),
      ListProcess(Get<ListBox>(u"ListProcess")) {
  on_load = [this] { Form_Load(); };
  on_activate = [] { CurrentView().SetPointer(Pointer::kDefault); };
  on_unload = [this] {
    if (Val(Tag()) != 0) FenetrePremierPlan(*this, false);
  };
  on_key_press = [this](int key) {
    if (key == kKeyEscape) Unload();
  };
  AfficheProcess.on_click = [this] { AfficheProcess_Click(); };
  CommandMSInfo.on_click = [] { LIB_SYSTEME::LanceMSInfo(); };
}

void Lib_SystemWinInfo::Form_Load() {
  CurrentView().SetPointer(Pointer::kHourglass);
  CenterForm(*this);
  WriteValues();
  AfficheProcess_Click();
}

void Lib_SystemWinInfo::WriteValues() {
  const Text sWindows = DirectoryOf(&FilePort::GetWindowsDirectory);
  const Text sSystem = DirectoryOf(&FilePort::GetSystemDirectory);
  Text sNom, sVersion;
  LIB_SYSTEME::GetVersionSysteme(sNom, sVersion);
  const Text sProcesseur = NameOfProcessor();
  MemoryStatus memory;
  const bool bMemoire = CurrentPlatform().GlobalMemoryStatus(memory);
  LabelInfo(0).SetCaption(sWindows);
  LabelInfo(1).SetCaption(sSystem);
  LabelInfo(2).SetCaption(bMemoire ? sFormatMemoire(memory.dwTotalPhys) : Text());
  LabelInfo(3).SetCaption(bMemoire ? sFormatMemoire(memory.dwTotalVirtual) : Text());
  LabelInfo(4).SetCaption(sProcesseur);
  LabelInfo(5).SetCaption(sNom);
  LabelInfo(7).SetCaption(sVersion);
}

void Lib_SystemWinInfo::AfficheProcess_Click() {
  IgnoringErrors([this] {
    Platform& platform = CurrentPlatform();
    const SnapshotHandle snapshot = platform.CreateToolhelp32Snapshot(kSnapshotProcesses, 0);
    if (snapshot == SnapshotHandle::kNone) return;
    AddProcesses(ListProcess, snapshot);
    platform.CloseHandle(snapshot);
  });
}

}  // namespace trovex
