#include "controller/com/ComObject.h"

#include <oleauto.h>

#include <array>
#include <utility>
#include <vector>

#include "common/Failure.h"
#include "controller/ControllerError.h"
#include "controller/com/ComError.h"
#include "controller/com/Variant.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

constexpr std::string_view kEnumeratorMember = "_NewEnum";
constexpr std::string_view kNextMember = "Next";

// COM takes the arguments from the last to the first.
class Parameters {
 public:
  explicit Parameters(Args args, const Value* put = nullptr) {
    variants_.reserve(args.size() + 1);
    if (put != nullptr) variants_.emplace_back(*put);
    for (std::size_t i = args.size(); i > 0; --i) variants_.emplace_back(args[i - 1]);
    for (Variant& variant : variants_) raw_.push_back(*variant.get());
    parameters_.rgvarg = raw_.empty() ? nullptr : raw_.data();
    parameters_.cArgs = static_cast<UINT>(raw_.size());
    if (put != nullptr) {
      parameters_.rgdispidNamedArgs = &putName_;
      parameters_.cNamedArgs = 1;
    }
  }
  Parameters(const Parameters&) = delete;
  Parameters& operator=(const Parameters&) = delete;

  DISPPARAMS* get() { return &parameters_; }

 private:
  std::vector<Variant> variants_;
  std::vector<VARIANT> raw_;  // copies without ownership
  DISPID putName_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
};

class ComObject : public ControllerObject {
 public:
  ComObject(ComPointer<IDispatch> object, std::shared_ptr<MemberIds> ids)
      : object_(std::move(object)), ids_(std::move(ids)) {}

  // A library may have made a property what is described as a method, and the reverse.
  Value Get(std::string_view member, Args args) override {
    return Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, args);
  }
  Value Call(std::string_view member, Args args) override {
    return Invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, args);
  }
  void Put(std::string_view member, const Value& value, Args args) override {
    const DISPID id = IdOf(member);
    Parameters parameters(args, &value);
    const bool isObject = std::holds_alternative<ObjectRef>(value);
    if (isObject) {
      const HRESULT result = TryInvoke(id, DISPATCH_PROPERTYPUTREF, parameters, nullptr);
      if (result != DISP_E_MEMBERNOTFOUND) return RequireSuccess(result);
    }
    RequireSuccess(TryInvoke(id, DISPATCH_PROPERTYPUT, parameters, nullptr));
  }

  const ComPointer<IDispatch>& object() const { return object_; }

 private:
  DISPID IdOf(std::string_view member) {
    if (!hasKey_) {
      key_ = InterfaceKey(*object_.get());
      hasKey_ = true;
    }
    return ids_->Find(*object_.get(), key_, member);
  }

  Value Invoke(std::string_view member, WORD flags, Args args) {
    Parameters parameters(args);
    Variant result;
    RequireSuccess(TryInvoke(IdOf(member), flags, parameters, result.get()));
    return ToValue(*result.get(), ids_);
  }

  // Raises what the library told; gives other results back.
  HRESULT TryInvoke(DISPID id, WORD flags, Parameters& parameters, VARIANT* answer) {
    EXCEPINFO told{};
    const HRESULT result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags,
                                           parameters.get(), answer, &told, nullptr);
    if (result == DISP_E_EXCEPTION) RaiseLibraryError(told);
    return result;
  }

  ComPointer<IDispatch> object_;
  std::shared_ptr<MemberIds> ids_;
  std::string key_;
  bool hasKey_ = false;
};

class ComEnumerator : public ControllerObject {
 public:
  ComEnumerator(ComPointer<IEnumVARIANT> items, std::shared_ptr<MemberIds> ids)
      : items_(std::move(items)), ids_(std::move(ids)) {}

  Value Get(std::string_view member, Args args) override { return Call(member, args); }
  void Put(std::string_view, const Value&, Args) override { RaiseComError(DISP_E_MEMBERNOTFOUND); }
  Value Call(std::string_view member, Args args) override {
    if (member != kNextMember || !args.empty()) RaiseComError(DISP_E_MEMBERNOTFOUND);
    Variant item;
    ULONG fetched = 0;
    const HRESULT result = items_->Next(1, item.get(), &fetched);
    RequireSuccess(result);
    return result == S_OK && fetched == 1 ? ToValue(*item.get(), ids_) : Value();
  }

 private:
  ComPointer<IEnumVARIANT> items_;
  std::shared_ptr<MemberIds> ids_;
};

DISPID AskForId(IDispatch& object, std::string_view member) {
  std::wstring name = ToWide(member);
  std::array<LPOLESTR, 1> names{name.data()};
  DISPID id = DISPID_UNKNOWN;
  RequireSuccess(object.GetIDsOfNames(IID_NULL, names.data(), 1, LOCALE_USER_DEFAULT, &id));
  return id;
}

}  // namespace

DISPID MemberIds::Find(IDispatch& object, const std::string& interfaceKey,
                       std::string_view member) {
  if (member.empty()) return DISPID_VALUE;
  if (member == kEnumeratorMember) return DISPID_NEWENUM;
  if (interfaceKey.empty()) return AskForId(object, member);
  auto& ids = known_[interfaceKey];
  if (const auto known = ids.find(member); known != ids.end()) return known->second;
  const DISPID id = AskForId(object, member);
  ids.emplace(member, id);
  return id;
}

std::string InterfaceKey(IDispatch& object) {
  ComPointer<ITypeInfo> type;
  if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Out())) || !type) return {};
  TYPEATTR* attributes = nullptr;
  if (FAILED(type->GetTypeAttr(&attributes))) return {};
  const GUID guid = attributes->guid;
  type->ReleaseTypeAttr(attributes);
  if (guid == GUID_NULL) return {};
  return {reinterpret_cast<const char*>(&guid), sizeof guid};
}

ObjectRef MakeComObject(const ComPointer<IUnknown>& object, std::shared_ptr<MemberIds> ids) {
  if (auto items = object.As<IEnumVARIANT>()) {
    return std::make_shared<ComEnumerator>(std::move(items), std::move(ids));
  }
  if (auto dispatch = object.As<IDispatch>()) {
    return std::make_shared<ComObject>(std::move(dispatch), std::move(ids));
  }
  RaiseComError(E_NOINTERFACE);
}

IDispatch* ReferenceTo(const ObjectRef& object) {
  if (object == nullptr) return nullptr;
  const auto* com = dynamic_cast<const ComObject*>(object.get());
  if (com == nullptr) {
    RaiseOwnFailure(kConversionError, "The object does not belong to the controller library.");
  }
  com->object()->AddRef();
  return com->object().get();
}

}  // namespace mortane::controller
