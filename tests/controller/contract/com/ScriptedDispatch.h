// A late-bound object whose answers a test writes, for what no simulated instrument answers.
#pragma once

#include <oaidl.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "comserver/Unknown.h"
#include "controller/com/ComObject.h"

namespace mortane::controller::test {

// One call as the object got it. The variants belong to the caller.
struct ReceivedCall {
  DISPID id;
  LCID locale;
  WORD flags;
  const DISPPARAMS* parameters;
  VARIANT* result;
  EXCEPINFO* told;
};

using Script = std::function<HRESULT(const ReceivedCall&)>;

// Knows every name by one id. Without type information unless it is given some.
class ScriptedDispatch : public comserver::Unknown<IDispatch> {
 public:
  static constexpr DISPID kId = 7;

  explicit ScriptedDispatch(Script script) : script_(std::move(script)) { ++alive; }
  ~ScriptedDispatch() override { --alive; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    if (id == IID_IEnumVARIANT && items != nullptr) return items->QueryInterface(id, object);
    return Unknown::QueryInterface(id, object);
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = type ? 1 : 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    *info = type.get();
    if (!type) return E_NOTIMPL;
    type->AddRef();
    return S_OK;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID locale, DISPID* ids) override {
    asked.emplace_back(names[0]);
    askedLocale = locale;
    *ids = kId;
    return S_OK;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters,
                      VARIANT* result, EXCEPINFO* told, UINT*) override {
    return script_({id, locale, flags, parameters, result, told});
  }

  static inline int alive = 0;
  std::vector<std::wstring> asked;
  LCID askedLocale = 0;
  ComPointer<ITypeInfo> type;
  IEnumVARIANT* items = nullptr;  // borrowed; what it gives as its enumerator

 private:
  Script script_;
};

// The object as the program sees it, and the object itself, which the first one keeps alive.
struct ScriptedObject {
  explicit ScriptedObject(Script script)
      : dispatch(new ScriptedDispatch(std::move(script))),
        seen(MakeComObject(ComPointer<IDispatch>(dispatch), ids)) {}

  // What the object hands out may outlive it.
  static inline MemberIds ids;
  ScriptedDispatch* dispatch;
  ObjectRef seen;
};

}  // namespace mortane::controller::test
