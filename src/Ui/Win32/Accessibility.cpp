#include "Ui/Win32/Accessibility.h"

#include <initguid.h>
// Behind initguid.h, so that the identifiers stand here.
#include <objbase.h>
#include <oleacc.h>

#include "Platform/Win32/Names.h"

namespace trovex::win32 {
namespace {

// The service that annotates windows; null where the system has none.
IAccPropServices* Services() {
  static IAccPropServices* const services = [] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    void* created = nullptr;
    CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                     &created);
    return static_cast<IAccPropServices*>(created);
  }();
  return services;
}

}  // namespace

void SetAccessibleName(HWND window, const Text& name) {
  if (name.empty() || Services() == nullptr) return;
  Services()->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                             PROPID_ACC_NAME, Wide(name));
}

}  // namespace trovex::win32
