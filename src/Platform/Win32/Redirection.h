// On a Windows of 64 bits a program of 32 bits finds another directory where it names the system's.
// What the program shows and reads is what stands there.
#pragma once

namespace trovex {

// The system's two calls, null where it has none.
struct RedirectionCalls {
  int(__stdcall* disable)(void** former) = nullptr;
  int(__stdcall* revert)(void* former) = nullptr;
};

// Those of this system, asked for by name. A test puts its own in place.
RedirectionCalls& Redirection();

// Names mean what they say for the life of the object, on this thread. Such objects may nest.
class Unredirected {
 public:
  Unredirected();
  ~Unredirected();
  Unredirected(const Unredirected&) = delete;
  Unredirected& operator=(const Unredirected&) = delete;

 private:
  void* former_ = nullptr;
  bool off_ = false;
};

}  // namespace trovex
