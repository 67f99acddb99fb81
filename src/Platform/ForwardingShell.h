// Passes every operation of its part on. What changes one of them derives from it.
#pragma once

#include "Platform/ShellPort.h"

namespace trovex {

class ForwardingShell : public virtual ShellPort {
 public:
  // `target` must outlive this object.
  explicit ForwardingShell(ShellPort& target) : target_(target) {}

  int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                   const Text& directory, int show) override {
    return target_.ShellExecute(verb, file, parameters, directory, show);
  }
  int FindExecutable(const Text& file, const Text& directory, Text& buffer) override {
    return target_.FindExecutable(file, directory, buffer);
  }
  void StartProgram(const Text& command_line, int mode) override {
    target_.StartProgram(command_line, mode);
  }
  bool HasHelpEngine() override { return target_.HasHelpEngine(); }
  int ExtractIconEx(const Text& file, int index, IconOwner owner) override {
    return target_.ExtractIconEx(file, index, owner);
  }

 protected:
  ShellPort& Target() { return target_; }

 private:
  ShellPort& target_;
};

}  // namespace trovex
