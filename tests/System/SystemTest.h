// Ground of the tests of what the program tells about the machine: a system whose data a test
// spells out, and a status line.
#pragma once

#include <optional>
#include <vector>

#include "Lib/LIB_BUSY.h"
#include "System/LIB_SYSTEME.h"
#include "support/MachineTest.h"

namespace trovex::test {

class FakeSystem : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  // --- What the system answers ---
  bool tells_version = true;
  OsVersionInfo version = {kOsVersionInfoSize, 4, 10, 1998, kFamilyWindows9x, u"\0"};
  std::uint32_t processor = 586;
  std::optional<MemoryStatus> memory = MemoryStatus{65536 * 1024, 0x7FFE0000};
  std::vector<Text> processes = {u"KERNEL32.DLL", u"Explorer.exe"};
  SnapshotHandle snapshot = static_cast<SnapshotHandle>(7);
  // How many programs of a list can be read before an error comes; -1 is all.
  int good_processes = -1;

  // --- What was asked of it ---
  int versions_read = 0;
  std::vector<Text> order;  // of the calls that a window shows the answers of
  std::vector<std::uint32_t> snapshot_flags, snapshot_processes;
  std::vector<SnapshotHandle> closed;

  bool GetVersionEx(OsVersionInfo& info) override {
    ++versions_read;
    order.emplace_back(u"version");
    if (!tells_version || info.dwOSVersionInfoSize != 148) return false;
    info = version;
    return true;
  }
  std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) override {
    order.emplace_back(u"windows");
    return Target().GetWindowsDirectory(buffer, size);
  }
  std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) override {
    order.emplace_back(u"system");
    return Target().GetSystemDirectory(buffer, size);
  }
  void GetSystemInfo(SystemInfo& info) override {
    order.emplace_back(u"processor");
    info.dwProcessorType = processor;
  }
  bool GlobalMemoryStatus(MemoryStatus& status) override {
    order.emplace_back(u"memory");
    if (memory) status = *memory;
    return memory.has_value();
  }
  SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t process) override {
    order.emplace_back(u"programs");
    snapshot_flags.push_back(flags);
    snapshot_processes.push_back(process);
    return snapshot;
  }
  bool Process32First(SnapshotHandle handle, ProcessEntry& entry) override {
    next_ = 0;
    return Process32Next(handle, entry);
  }
  bool Process32Next(SnapshotHandle handle, ProcessEntry& entry) override {
    if (good_processes >= 0 && next_ == static_cast<std::size_t>(good_processes)) {
      throw RuntimeError(ErrorNumber::kDeviceIo);
    }
    const bool known = handle == snapshot && snapshot != SnapshotHandle::kInvalid;
    if (!known || entry.dwSize != 296 || next_ == processes.size()) return false;
    entry.szExeFile = processes[next_++];
    return true;
  }
  void CloseHandle(SnapshotHandle handle) override { closed.push_back(handle); }

 private:
  std::size_t next_ = 0;
};

class SystemTest : public MachineTest {
 protected:
  SystemTest() {
    Rest();
    panel_.AddPanel(u"Msg", StatusBar::PanelStyle::kText);
    RegisterPanelAide(&panel_);
  }
  ~SystemTest() override {
    RegisterPanelAide(nullptr);
    Rest();
  }

  const Text& StatusLine() { return panel_.PanelText(u"Msg"); }

  FakeSystem system{machine};

 private:
  static void Rest() {
    LIB_SYSTEME::sNomSysteme.clear();
    LIB_SYSTEME::sVersionSysteme.clear();
  }

  StatusBar panel_;
  PlatformScope system_scope_{system};
};

}  // namespace trovex::test
