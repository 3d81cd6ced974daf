#include "comserver/DispatchObject.h"

#include <oleauto.h>

#include <optional>
#include <vector>

#include "common/Failure.h"
#include "comserver/Conversion.h"
#include "comserver/EnumeratorObject.h"
#include "comserver/Interface.h"
#include "comserver/Signatures.h"
#include "comserver/Unknown.h"

namespace mortane::comserver {
namespace {

using controller::Args;
using controller::ObjectRef;
using controller::Value;

// By which the server knows its own objects; nobody else asks for it, and it is not marshalled.
constexpr IID kOwnObject{
    0x6B0F4E55, 0x52A4, 0x4C0B, {0x9D, 0x11, 0x3E, 0x8A, 0x70, 0x5C, 0x21, 0x00}};

constexpr WORD kWrites = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

class DispatchObject : public Unknown<IDispatch> {
 public:
  DispatchObject(ObjectRef object, bool counted)
      : object_(std::move(object)),
        interface_(
            InterfaceOf(dynamic_cast<const controller::SimulatedObject&>(*object_).Members())) {
    if (counted) counted_.emplace();
  }

  const ObjectRef& Simulated() const { return object_; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                      VARIANT* result, EXCEPINFO* told, UINT* wrongArgument) override;

 private:
  HRESULT Read(const ServedMember& member, WORD flags, const DISPPARAMS& parameters, LCID locale,
               VARIANT* result, UINT* wrongArgument);
  HRESULT Write(const ServedMember& member, WORD flags, const DISPPARAMS& parameters, LCID locale,
                UINT* wrongArgument);

  ObjectRef object_;
  const Interface& interface_;
  std::optional<CountedObject> counted_;
  ServerLock lock_;
};

// The arguments in their order; COM has them from the last to the first, after a written value.
HRESULT ReadArguments(std::string_view member, const DISPPARAMS& parameters, LCID locale,
                      std::vector<Value>& arguments, UINT* wrongArgument) {
  const UINT count = parameters.cArgs - parameters.cNamedArgs;
  for (UINT i = 0; i < count; ++i) {
    const UINT place = parameters.cArgs - 1 - i;
    Value value;
    const HRESULT result =
        ReadVariant(parameters.rgvarg[place], ArgumentType(member, i), locale, value);
    if (FAILED(result)) {
      if (wrongArgument != nullptr) *wrongArgument = place;
      return result;
    }
    arguments.push_back(std::move(value));
  }
  return S_OK;
}

HRESULT Tell(const Failure& failure, EXCEPINFO* told) {
  if (told == nullptr) return failure.Number();
  *told = {};
  told->scode = failure.Number();
  told->bstrSource = MakeText(failure.Source());
  told->bstrDescription = MakeText(failure.Description());
  return DISP_E_EXCEPTION;
}

HRESULT DispatchObject::QueryInterface(REFIID id, void** object) {
  if (object != nullptr && id == kOwnObject) {
    *object = this;
    AddRef();
    return S_OK;
  }
  return Unknown<IDispatch>::QueryInterface(id, object);
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
  *count = interface_.TypeInfo() == nullptr ? 0 : 1;
  return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  *info = index == 0 ? interface_.TypeInfo() : nullptr;
  if (*info == nullptr) return DISP_E_BADINDEX;
  (*info)->AddRef();
  return S_OK;
}

// Names after the first are those of parameters, which have none here.
HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  ++NameQueries();
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  const ServedMember* member = count == 0 ? nullptr : interface_.Find(std::wstring_view(names[0]));
  if (member != nullptr) ids[0] = member->id;
  return member != nullptr && count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT DispatchObject::Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                               DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* told,
                               UINT* wrongArgument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  const ServedMember* member = interface_.Find(id);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  try {
    return (flags & kWrites) != 0
               ? Write(*member, flags, *parameters, locale, wrongArgument)
               : Read(*member, flags, *parameters, locale, result, wrongArgument);
  } catch (const Failure& failure) {
    return Tell(failure, told);
  } catch (const std::exception&) {
    return E_FAIL;
  }
}

HRESULT DispatchObject::Read(const ServedMember& member, WORD flags, const DISPPARAMS& parameters,
                             LCID locale, VARIANT* result, UINT* wrongArgument) {
  const bool gets = (flags & DISPATCH_PROPERTYGET) != 0 && member.get.has_value();
  const bool calls = !gets && (flags & DISPATCH_METHOD) != 0 && member.call.has_value();
  if (!gets && !calls) return DISP_E_MEMBERNOTFOUND;
  if (parameters.cNamedArgs != 0) return DISP_E_NONAMEDARGS;
  if (parameters.cArgs != (gets ? *member.get : *member.call)) return DISP_E_BADPARAMCOUNT;
  std::vector<Value> arguments;
  const HRESULT read = ReadArguments(member.name, parameters, locale, arguments, wrongArgument);
  if (FAILED(read)) return read;
  const Args args{std::span<const Value>(arguments)};
  const Value answer = gets ? object_->Get(member.name, args) : object_->Call(member.name, args);
  if (result == nullptr) return S_OK;
  VariantInit(result);
  if (member.id != DISPID_NEWENUM) return WriteVariant(answer, *result);
  V_VT(result) = VT_UNKNOWN;
  V_UNKNOWN(result) = MakeEnumerator(object_, std::get<ObjectRef>(answer));
  return S_OK;
}

// A member of the object type is written by reference, any other by value.
HRESULT DispatchObject::Write(const ServedMember& member, WORD flags, const DISPPARAMS& parameters,
                              LCID locale, UINT* wrongArgument) {
  const VARTYPE type = WrittenType(member.name);
  const WORD wanted = type == VT_DISPATCH ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
  if (!member.put || (flags & wanted) == 0) return DISP_E_MEMBERNOTFOUND;
  if (parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
    return DISP_E_PARAMNOTOPTIONAL;
  }
  if (parameters.cArgs != *member.put + 1) return DISP_E_BADPARAMCOUNT;
  Value value;
  const HRESULT written = ReadVariant(parameters.rgvarg[0], type, locale, value);
  if (FAILED(written)) {
    if (wrongArgument != nullptr) *wrongArgument = 0;
    return written;
  }
  std::vector<Value> arguments;
  const HRESULT read = ReadArguments(member.name, parameters, locale, arguments, wrongArgument);
  if (FAILED(read)) return read;
  object_->Put(member.name, value, Args{std::span<const Value>(arguments)});
  return S_OK;
}

}  // namespace

IDispatch* MakeDispatch(const ObjectRef& object) {
  return new DispatchObject(object, true);
}

IDispatch* MakeUncountedDispatch(const ObjectRef& object) {
  return new DispatchObject(object, false);
}

ObjectRef SimulatedBehind(IUnknown* object) {
  void* own = nullptr;
  if (object == nullptr || FAILED(object->QueryInterface(kOwnObject, &own))) return nullptr;
  auto* dispatch = static_cast<DispatchObject*>(own);
  ObjectRef simulated = dispatch->Simulated();
  dispatch->Release();
  return simulated;
}

}  // namespace mortane::comserver
