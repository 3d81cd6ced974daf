// Values of the controller library as COM's variants.
#pragma once

#include <oaidl.h>
#include <oleauto.h>

#include <functional>

#include "controller/Value.h"
#include "controller/com/ComPointer.h"

namespace mortane::controller {

// Makes an object of the transport of one that the library gave.
using ObjectMaker = std::function<ObjectRef(ComPointer<IDispatch>)>;

// A variant that frees what it holds.
class Variant {
 public:
  Variant() = default;
  ~Variant() { Clear(variant_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT* get() { return &variant_; }

  // Frees what a variant holds. Most answers are numbers, which hold nothing.
  static void Clear(VARIANT& variant) {
    if (variant.vt > VT_DATE && variant.vt != VT_BOOL) VariantClear(&variant);
  }

 private:
  VARIANT variant_{};
};

// Fills an empty variant. Text becomes UTF-16, a boolean the library's 16-bit truth. Raises
// kConversionError for an object of another back end; the variant is still empty then.
void WriteVariant(const Value& value, VARIANT& variant);

// References to a value are followed. Raises kOverflowError for an integer that 32 bits do not
// hold, the failure that an error variant is, and kConversionError for kinds that no library member
// has.
Value ToValue(const VARIANT& variant, const ObjectMaker& make);

}  // namespace mortane::controller
