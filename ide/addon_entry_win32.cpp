// The DLL's two entries: the system's attach and detach, and the IDE's call.
#include <windows.h>

#include <cstdint>

#include "ide/addon_lifecycle_win32.h"

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      return attachAddon(instance) ? TRUE : FALSE;
    case DLL_PROCESS_DETACH:
      detachAddon();
      return TRUE;
    default:
      return TRUE;
  }
}

// Non-zero: the IDE's root interface, start; 0: shut down.
// The argument is an int in the shipped 32-bit build and pointer-wide in the 64-bit one.
extern "C" __declspec(dllexport) void __stdcall BcwAddOnEntry(intptr_t ide) {
  if (ide)
    initialiseAddon(reinterpret_cast<IIdeRoot*>(ide));
  else
    shutDownAddon();
}
