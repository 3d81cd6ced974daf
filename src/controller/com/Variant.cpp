#include "controller/com/Variant.h"

#include <cstdint>
#include <limits>
#include <string>

#include "common/Failure.h"
#include "controller/com/ComError.h"
#include "controller/com/ComReference.h"
#include "controller/com/ComText.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

// The length counts bytes: a text may hold NUL characters.
BSTR MakeText(std::string_view utf8) {
  const std::wstring wide = ToWide(utf8);
  BSTR text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (text == nullptr) RaiseComError(E_OUTOFMEMORY);
  return text;
}

// A new reference; null for an empty value.
IDispatch* ReferenceTo(const ObjectRef& object) {
  if (object == nullptr) return nullptr;
  const auto* com = dynamic_cast<const ComReference*>(object.get());
  if (com == nullptr) {
    RaiseOwnFailure(kConversionError, "The object does not belong to the controller library.");
  }
  com->Dispatch().AddRef();
  return &com->Dispatch();
}

// Writes a Value into an empty variant.
struct Writer {
  VARIANT& variant;

  void operator()(std::monostate) const {}
  void operator()(bool value) const {
    variant.vt = VT_BOOL;
    variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(std::int16_t value) const {
    variant.vt = VT_I2;
    variant.iVal = value;
  }
  void operator()(std::int32_t value) const {
    variant.vt = VT_I4;
    variant.lVal = value;
  }
  void operator()(double value) const {
    variant.vt = VT_R8;
    variant.dblVal = value;
  }
  void operator()(const std::string& value) const {
    variant.bstrVal = MakeText(value);
    variant.vt = VT_BSTR;
  }
  void operator()(const ObjectRef& value) const {
    variant.pdispVal = ReferenceTo(value);
    variant.vt = VT_DISPATCH;
  }
};

template <typename Integer>
Value Whole(Integer value) {
  if (!std::in_range<std::int32_t>(value)) RaiseOwnFailure(kOverflowError, "Overflow");
  return static_cast<std::int32_t>(value);
}

Value Object(IDispatch* object, const ObjectMaker& make) {
  if (object == nullptr) return {};
  object->AddRef();
  return make(ComPointer<IDispatch>(object));
}

// An object that was handed out under its simplest interface.
Value Object(IUnknown* object, const ObjectMaker& make) {
  if (object == nullptr) return {};
  void* dispatch = nullptr;
  RequireSuccess(object->QueryInterface(IID_IDispatch, &dispatch));
  return make(ComPointer<IDispatch>(static_cast<IDispatch*>(dispatch)));
}

double AsDouble(const VARIANT& variant) {
  Variant changed;
  RequireSuccess(VariantChangeType(changed.get(), const_cast<VARIANT*>(&variant), 0, VT_R8));
  return changed.get()->dblVal;
}

}  // namespace

void WriteVariant(const Value& value, VARIANT& variant) {
  std::visit(Writer{variant}, value);
}

Value ToValue(const VARIANT& variant, const ObjectMaker& make) {
  if ((variant.vt & VT_BYREF) != 0) {
    Variant direct;
    RequireSuccess(VariantCopyInd(direct.get(), const_cast<VARIANT*>(&variant)));
    return ToValue(*direct.get(), make);
  }
  switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_BOOL:
      return variant.boolVal != VARIANT_FALSE;
    case VT_I2:
      return variant.iVal;
    case VT_I4:
    case VT_INT:
      return static_cast<std::int32_t>(variant.lVal);
    case VT_I1:
      return Whole(static_cast<int>(variant.cVal));
    case VT_UI1:
      return Whole(static_cast<int>(variant.bVal));
    case VT_UI2:
      return Whole(variant.uiVal);
    case VT_UI4:
    case VT_UINT:
      return Whole(variant.ulVal);
    case VT_I8:
      return Whole(variant.llVal);
    case VT_UI8:
      return Whole(variant.ullVal);
    case VT_R8:
      return variant.dblVal;
    case VT_R4:
      return static_cast<double>(variant.fltVal);
    case VT_CY:
    case VT_DECIMAL:
      return AsDouble(variant);
    case VT_BSTR:
      return TextOf(variant.bstrVal);
    case VT_DISPATCH:
      return Object(variant.pdispVal, make);
    case VT_UNKNOWN:
      return Object(variant.punkVal, make);
    case VT_ERROR:
      RaiseComError(variant.scode);
    default:
      RaiseOwnFailure(kConversionError, "The controller library gave a value of unknown kind.");
  }
}

}  // namespace mortane::controller
