#include "comserver/Conversion.h"

#include <oleauto.h>

#include <string>

#include "comserver/DispatchObject.h"
#include "platform/windows/Wide.h"

namespace mortane::comserver {
namespace {

using controller::ObjectRef;
using controller::Value;

HRESULT ReadObject(const VARIANT& variant, Value& value) {
  VARIANT direct{};
  if (FAILED(VariantCopyInd(&direct, const_cast<VARIANT*>(&variant)))) return E_INVALIDARG;
  const bool isObject = direct.vt == VT_DISPATCH || direct.vt == VT_UNKNOWN;
  const ObjectRef object = isObject ? SimulatedBehind(direct.punkVal) : nullptr;
  VariantClear(&direct);
  if (object == nullptr) return DISP_E_TYPEMISMATCH;
  value = object;
  return S_OK;
}

Value ValueOf(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_BSTR:
      return ToUtf8(
          {variant.bstrVal == nullptr ? L"" : variant.bstrVal, SysStringLen(variant.bstrVal)});
    case VT_BOOL:
      return variant.boolVal != VARIANT_FALSE;
    case VT_I2:
      return variant.iVal;
    case VT_R8:
      return variant.dblVal;
    default:
      return static_cast<std::int32_t>(variant.lVal);
  }
}

struct Writer {
  VARIANT& variant;

  HRESULT operator()(std::monostate) const { return S_OK; }
  HRESULT operator()(bool value) const {
    V_VT(&variant) = VT_BOOL;
    V_BOOL(&variant) = static_cast<VARIANT_BOOL>(value ? -1 : 0);
    return S_OK;
  }
  HRESULT operator()(std::int16_t value) const {
    V_VT(&variant) = VT_I2;
    V_I2(&variant) = value;
    return S_OK;
  }
  HRESULT operator()(std::int32_t value) const {
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = value;
    return S_OK;
  }
  HRESULT operator()(double value) const {
    V_VT(&variant) = VT_R8;
    V_R8(&variant) = value;
    return S_OK;
  }
  HRESULT operator()(const std::string& value) const {
    V_VT(&variant) = VT_BSTR;
    V_BSTR(&variant) = MakeText(value);
    return V_BSTR(&variant) == nullptr ? E_OUTOFMEMORY : S_OK;
  }
  HRESULT operator()(const ObjectRef& value) const {
    V_VT(&variant) = VT_DISPATCH;
    V_DISPATCH(&variant) = MakeDispatch(value);
    return S_OK;
  }
};

}  // namespace

HRESULT ReadVariant(const VARIANT& variant, VARTYPE type, LCID locale, Value& value) {
  if (type == VT_DISPATCH) return ReadObject(variant, value);
  VARIANT changed{};
  const HRESULT result =
      VariantChangeTypeEx(&changed, const_cast<VARIANT*>(&variant), locale, 0, type);
  if (FAILED(result)) return result;
  value = ValueOf(changed);
  VariantClear(&changed);
  return S_OK;
}

HRESULT WriteVariant(const Value& value, VARIANT& variant) {
  return std::visit(Writer{variant}, value);
}

BSTR MakeText(std::string_view utf8) {
  const std::wstring wide = ToWide(utf8);
  return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

}  // namespace mortane::comserver
