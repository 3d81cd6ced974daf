#include "comserver/EnumeratorObject.h"

#include <oleauto.h>

#include "common/Failure.h"
#include "comserver/Conversion.h"
#include "comserver/Unknown.h"

namespace mortane::comserver {
namespace {

using controller::ObjectRef;
using controller::Value;

// An enumerator has no EXCEPINFO to tell a failure with: its number is the result.
template <typename Step>
HRESULT Guarded(Step step) {
  try {
    return step();
  } catch (const Failure& failure) {
    return failure.Number();
  } catch (const std::exception&) {
    return E_FAIL;
  }
}

class EnumeratorObject : public Unknown<IEnumVARIANT> {
 public:
  EnumeratorObject(ObjectRef collection, ObjectRef items)
      : collection_(std::move(collection)), items_(std::move(items)) {}

  STDMETHODIMP Next(ULONG count, VARIANT* items, ULONG* fetched) override {
    ULONG given = 0;
    const HRESULT result = Guarded([&] {
      for (; given < count; ++given) {
        VariantInit(&items[given]);
        const Value item = Take();
        if (std::holds_alternative<std::monostate>(item)) return S_FALSE;
        WriteVariant(item, items[given]);
      }
      return S_OK;
    });
    if (fetched != nullptr) *fetched = given;
    return result;
  }

  STDMETHODIMP Skip(ULONG count) override {
    return Guarded([&] {
      for (ULONG i = 0; i < count; ++i) {
        if (std::holds_alternative<std::monostate>(Take())) return S_FALSE;
      }
      return S_OK;
    });
  }

  STDMETHODIMP Reset() override {
    return Guarded([&] {
      items_ = Fresh();
      taken_ = 0;
      return S_OK;
    });
  }

  STDMETHODIMP Clone(IEnumVARIANT** clone) override {
    *clone = nullptr;
    return Guarded([&] {
      auto* copy = new EnumeratorObject(collection_, Fresh());
      *clone = copy;
      return copy->Skip(taken_);
    });
  }

 private:
  ObjectRef Fresh() const { return std::get<ObjectRef>(collection_->Get("_NewEnum")); }
  Value Take() {
    Value item = items_->Call("Next");
    if (!std::holds_alternative<std::monostate>(item)) ++taken_;
    return item;
  }

  ObjectRef collection_;
  ObjectRef items_;
  ULONG taken_ = 0;
  CountedObject counted_;
  ServerLock lock_;
};

}  // namespace

IEnumVARIANT* MakeEnumerator(const ObjectRef& collection, const ObjectRef& items) {
  return new EnumeratorObject(collection, items);
}

}  // namespace mortane::comserver
