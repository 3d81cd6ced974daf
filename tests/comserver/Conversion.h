// The simulator's values as variants, and what callers hand in as values of the declared type.
#pragma once

#include <oaidl.h>

#include "controller/Value.h"

namespace mortane::comserver {

// Changes the variant into `type` by the rules of automation, and that into a value. The object
// of another server is DISP_E_TYPEMISMATCH.
HRESULT ReadVariant(const VARIANT& variant, VARTYPE type, LCID locale, controller::Value& value);

// `variant` is empty. An object gets a wrapper of its own.
HRESULT WriteVariant(const controller::Value& value, VARIANT& variant);

BSTR MakeText(std::string_view utf8);

}  // namespace mortane::comserver
