// The counting part of a COM object with one interface.
#pragma once

#include <unknwn.h>

#include <atomic>

#include "comserver/Server.h"

namespace mortane::comserver {

// COM's interfaces have no virtual destructor: only Release deletes an object.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Made with one reference, which belongs to its maker.
template <typename Interface>
class Unknown : public Interface {
 public:
  Unknown() = default;
  virtual ~Unknown() = default;
  Unknown(const Unknown&) = delete;
  Unknown& operator=(const Unknown&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object =
        id == IID_IUnknown || id == __uuidof(Interface) ? static_cast<Interface*>(this) : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<ULONG> references_{1};
};

#pragma GCC diagnostic pop

// Keeps the server in memory.
class ServerLock {
 public:
  ServerLock() { LockServer(); }
  ~ServerLock() { UnlockServer(); }
  ServerLock(const ServerLock&) = delete;
  ServerLock& operator=(const ServerLock&) = delete;
};

// Counts an object among the live ones that tests ask for.
class CountedObject {
 public:
  CountedObject() { ++LiveObjects(); }
  ~CountedObject() { --LiveObjects(); }
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;
};

}  // namespace mortane::comserver
