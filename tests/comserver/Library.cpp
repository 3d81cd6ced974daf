// The test server as a library in the caller's process.
#include <olectl.h>

#include "comserver/ClassFactory.h"
#include "comserver/Registration.h"
#include "comserver/Server.h"
#include "controller/com/ComPointer.h"

namespace {

namespace server = mortane::comserver;

HMODULE module = nullptr;

server::Registration Entry() {
  return {server::kInProcessFamily, std::wstring(server::kInProcessPrefix), L"InprocServer32",
          server::ModulePath(module), 0};
}

}  // namespace

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) module = instance;
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  const server::ClassFamily other = server::FamilyOfEnvironment();
  for (std::size_t place = 0; place < server::kClassNames.size(); ++place) {
    if (classId == server::kInProcessFamily.ClassId(place) || classId == other.ClassId(place)) {
      const mortane::controller::ComPointer<IClassFactory> factory(server::MakeFactory(place));
      return factory->QueryInterface(id, object);
    }
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
  return server::IsServerUsed() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
  return server::Register(Entry());
}

STDAPI DllUnregisterServer() {
  return server::Unregister(Entry());
}
