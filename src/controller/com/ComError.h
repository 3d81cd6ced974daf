// Failures of COM calls as failures of the controller library.
#pragma once

#include <oaidl.h>

#include <string>

namespace mortane::controller {

// Raises a ControllerError with the result as its number and the system's text for it; the source
// is the program's, since no library spoke.
[[noreturn]] void RaiseComError(HRESULT result);
[[noreturn]] void RaiseComError(HRESULT result, const std::string& text);

// Raises what the library told of its failure, and frees the texts of `told`. A number that Visual
// Basic servers wrap as 0x800Axxxx is given without its wrapping, as their own callers see it.
[[noreturn]] void RaiseLibraryError(EXCEPINFO& told);

inline void RequireSuccess(HRESULT result) {
  if (FAILED(result)) RaiseComError(result);
}

}  // namespace mortane::controller
