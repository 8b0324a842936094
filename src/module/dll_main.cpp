// The library's entries: the system's, and the one by which a drawing host asks for its version.
#include "dialogs/win32/host_services.h"
#include "dialogs/win32/message_box.h"

// Stays when functions are added to the C interface: a host that knows the module still does.
#ifndef ORV3CAL_HOST_API_VERSION
#define ORV3CAL_HOST_API_VERSION 1
#endif

// A host asks once, before anything else, and refuses a module whose number it does not know.
extern "C" __declspec(dllexport) int acrxGetApiVersion() { return ORV3CAL_HOST_API_VERSION; }

// Runs under the loader's lock, so it only notes where the library is and who shows its messages.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) {
    orv3::SetModuleInstance(instance);
    orv3::SetMessageHandler(orv3::ShowMessageBox);
  }
  return TRUE;
}
