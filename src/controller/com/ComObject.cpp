#include "controller/com/ComObject.h"

#include <oleauto.h>

#include <algorithm>
#include <bit>
#include <memory>
#include <optional>
#include <utility>

#include "controller/ControllerError.h"
#include "controller/EnumeratorMembers.h"
#include "controller/com/ComError.h"
#include "controller/com/ComReference.h"
#include "controller/com/Variant.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

// Numbers in texts have a decimal point, whatever the user's system writes.
constexpr LCID kLocale = 0x0409;  // English of the United States

// The values of one call, in COM's order: what is written, then the arguments from the last to the
// first.
class Parameters {
 public:
  explicit Parameters(Args args, const Value* put = nullptr) {
    if (args.size() >= values_.all.size()) RaiseComError(DISP_E_BADPARAMCOUNT);
    if (put != nullptr) values_.Add(*put);
    for (std::size_t i = args.size(); i > 0; --i) values_.Add(args[i - 1]);
    parameters_.rgvarg = values_.all.data();
    parameters_.cArgs = values_.count;
    if (put != nullptr) {
      parameters_.rgdispidNamedArgs = &putName_;
      parameters_.cNamedArgs = 1;
    }
  }
  Parameters(const Parameters&) = delete;
  Parameters& operator=(const Parameters&) = delete;

  DISPPARAMS* get() { return &parameters_; }

 private:
  // Frees its variants, also when a later one could not be made.
  struct Values {
    std::array<VARIANT, 8> all;  // the longest call has five arguments
    UINT count = 0;

    void Add(const Value& value) {
      all[count].vt = VT_EMPTY;
      WriteVariant(value, all[count]);
      ++count;
    }
    ~Values() {
      for (UINT i = 0; i < count; ++i) Variant::Clear(all[i]);
    }
  };

  Values values_;
  DISPID putName_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
};

ObjectMaker MakerWith(MemberIds& ids) {
  return [&ids](ComPointer<IDispatch> object) { return MakeComObject(std::move(object), ids); };
}

// Each step is one call of the library.
class ComEnumerator : public ControllerObject {
 public:
  ComEnumerator(ComPointer<IEnumVARIANT> items, MemberIds& ids)
      : items_(std::move(items)), ids_(ids) {}

  Value Get(std::string_view member, Args args) override { return Call(member, args); }
  void Put(std::string_view, const Value&, Args) override { RaiseComError(DISP_E_MEMBERNOTFOUND); }
  Value Call(std::string_view member, Args args) override {
    if (member != kNextMember || !args.empty()) RaiseComError(DISP_E_MEMBERNOTFOUND);
    Variant item;
    ULONG fetched = 0;
    const HRESULT result = items_->Next(1, item.get(), &fetched);
    RequireSuccess(result);
    return result == S_OK && fetched == 1 ? ToValue(*item.get(), MakerWith(ids_)) : Value();
  }

 private:
  ComPointer<IEnumVARIANT> items_;
  MemberIds& ids_;
};

// Members that every interface knows by the same number.
std::optional<DISPID> CommonId(std::string_view member) {
  if (member.empty()) return DISPID_VALUE;
  if (member == kEnumeratorMember) return DISPID_NEWENUM;
  return {};
}

DISPID AskForId(IDispatch& object, std::string_view member) {
  std::wstring name = ToWide(member);
  LPOLESTR text = name.data();
  DISPID id = DISPID_UNKNOWN;
  RequireSuccess(object.GetIDsOfNames(IID_NULL, &text, 1, kLocale, &id));
  return id;
}

class ComObject : public ComReference {
 public:
  ComObject(ComPointer<IDispatch> object, MemberIds& ids) : object_(std::move(object)), ids_(ids) {}

  // A library may have made a property what is described as a method, and the reverse.
  Value Get(std::string_view member, Args args) override { return Read(member, args); }
  Value Call(std::string_view member, Args args) override { return Read(member, args); }

  // An object is assigned by reference where the library allows that.
  void Put(std::string_view member, const Value& value, Args args) override {
    const DISPID id = IdOf(member);
    Parameters parameters(args, &value);
    if (std::holds_alternative<ObjectRef>(value)) {
      const HRESULT result = TryInvoke(id, DISPATCH_PROPERTYPUTREF, parameters, nullptr);
      if (result != DISP_E_MEMBERNOTFOUND) return RequireSuccess(result);
    }
    RequireSuccess(TryInvoke(id, DISPATCH_PROPERTYPUT, parameters, nullptr));
  }

  IDispatch& Dispatch() const override { return *object_.get(); }

 private:
  Value Read(std::string_view member, Args args) {
    const DISPID id = IdOf(member);
    Parameters parameters(args);
    Variant result;
    RequireSuccess(TryInvoke(id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, result.get()));
    return id == DISPID_NEWENUM ? ToEnumerator(*result.get())
                                : ToValue(*result.get(), MakerWith(ids_));
  }

  Value ToEnumerator(const VARIANT& answer) const {
    const bool isObject = answer.vt == VT_UNKNOWN || answer.vt == VT_DISPATCH;
    if (!isObject || answer.punkVal == nullptr) RaiseComError(E_NOINTERFACE);
    void* items = nullptr;
    RequireSuccess(answer.punkVal->QueryInterface(IID_IEnumVARIANT, &items));
    return std::make_shared<ComEnumerator>(
        ComPointer<IEnumVARIANT>(static_cast<IEnumVARIANT*>(items)), ids_);
  }

  DISPID IdOf(std::string_view member) {
    if (const auto common = CommonId(member)) return *common;
    MemberIds::Table& table = Ids();
    const auto known = std::find_if(table.begin(), table.end(), [&](const MemberIds::Entry& entry) {
      return entry.name == member;
    });
    if (known != table.end()) return known->id;
    const DISPID id = AskForId(*object_.get(), member);
    table.push_back({std::string(member), id});
    return id;
  }

  // The interface's table, or one of this object's own when its interface is not told from others.
  MemberIds::Table& Ids() {
    if (table_ == nullptr) table_ = ids_.TableOf(*object_.get());
    if (table_ == nullptr) {
      ownTable_ = std::make_unique<MemberIds::Table>();
      table_ = ownTable_.get();
    }
    return *table_;
  }

  // Raises what the library told; gives other results back.
  HRESULT TryInvoke(DISPID id, WORD flags, Parameters& parameters, VARIANT* answer) {
    EXCEPINFO told{};
    const HRESULT result =
        object_->Invoke(id, IID_NULL, kLocale, flags, parameters.get(), answer, &told, nullptr);
    if (result == DISP_E_EXCEPTION) RaiseLibraryError(told);
    return result;
  }

  ComPointer<IDispatch> object_;
  MemberIds& ids_;
  MemberIds::Table* table_ = nullptr;
  std::unique_ptr<MemberIds::Table> ownTable_;
};

}  // namespace

MemberIds::Table* MemberIds::TableOf(IDispatch& object) {
  void* proxy = nullptr;
  if (SUCCEEDED(object.QueryInterface(IID_IClientSecurity, &proxy))) {
    static_cast<IUnknown*>(proxy)->Release();
    return nullptr;
  }
  ComPointer<ITypeInfo> type;
  if (FAILED(object.GetTypeInfo(0, kLocale, type.Out())) || !type) return nullptr;
  if (const auto same = byType_.find(type.get()); same != byType_.end()) return same->second;
  TYPEATTR* attributes = nullptr;
  if (FAILED(type->GetTypeAttr(&attributes))) return nullptr;
  const GUID guid = attributes->guid;
  type->ReleaseTypeAttr(attributes);
  if (guid == GUID_NULL) return nullptr;
  Interface& known = interfaces_[std::bit_cast<std::array<std::uint64_t, 2>>(guid)];
  byType_.erase(known.type.get());
  byType_.emplace(type.get(), &known.ids);
  known.type = std::move(type);
  return &known.ids;
}

ObjectRef MakeComObject(ComPointer<IDispatch> object, MemberIds& ids) {
  return std::make_shared<ComObject>(std::move(object), ids);
}

}  // namespace mortane::controller
