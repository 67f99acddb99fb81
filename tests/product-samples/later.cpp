// A program that Windows XP could not start: it imports a function of Windows Vista.
#define _WIN32_WINNT 0x0600
#include <windows.h>

int main() {
  return static_cast<int>(GetTickCount64() & 1);
}
