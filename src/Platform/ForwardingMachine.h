// Passes every operation of its part on. What changes one of them derives from it.
#pragma once

#include "Platform/MachinePort.h"

namespace trovex {

class ForwardingMachine : public virtual MachinePort {
 public:
  // `target` must outlive this object.
  explicit ForwardingMachine(MachinePort& target) : target_(target) {}

  Text GetEnvironmentVariable(const Text& name) override {
    return target_.GetEnvironmentVariable(name);
  }
  bool GetVersionEx(OsVersionInfo& info) override { return target_.GetVersionEx(info); }
  void GetSystemInfo(SystemInfo& info) override { target_.GetSystemInfo(info); }
  bool GlobalMemoryStatus(MemoryStatus& status) override {
    return target_.GlobalMemoryStatus(status);
  }
  SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t process) override {
    return target_.CreateToolhelp32Snapshot(flags, process);
  }
  bool Process32First(SnapshotHandle snapshot, ProcessEntry& entry) override {
    return target_.Process32First(snapshot, entry);
  }
  bool Process32Next(SnapshotHandle snapshot, ProcessEntry& entry) override {
    return target_.Process32Next(snapshot, entry);
  }
  void CloseHandle(SnapshotHandle snapshot) override { target_.CloseHandle(snapshot); }
  void MessageBeep(std::uint32_t type) override { target_.MessageBeep(type); }
  Text FormatMessage(std::uint32_t code) override { return target_.FormatMessage(code); }
  double Random() override { return target_.Random(); }

 protected:
  MachinePort& Target() { return target_; }

 private:
  MachinePort& target_;
};

}  // namespace trovex
