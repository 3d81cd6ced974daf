// Texts of COM as UTF-8.
#pragma once

#include <oaidl.h>

#include <string>

namespace mortane::controller {

// A null pointer is an empty text; a text may hold NUL characters.
std::string TextOf(BSTR text);

// The text of a string that the caller owns, which is freed.
std::string TakeText(BSTR text);

}  // namespace mortane::controller
