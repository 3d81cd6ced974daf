#include "controller/com/ComError.h"

#include <oleauto.h>

#include <cstdint>
#include <string>

#include "controller/ControllerError.h"
#include "controller/com/ComText.h"
#include "platform/windows/Wide.h"

namespace mortane::controller {
namespace {

constexpr const char* kOwnSource = "Mortane";

// Facility "control" of a failure code; the low word is the number that the server raised.
constexpr std::uint32_t kControlFacility = 0x800A0000U;
constexpr std::uint32_t kFacilityMask = 0xFFFF0000U;
constexpr std::uint32_t kNumberMask = 0x0000FFFFU;

std::int32_t NumberOf(const EXCEPINFO& told) {
  if (told.wCode != 0) return told.wCode;
  const auto code = static_cast<std::uint32_t>(told.scode);
  if ((code & kFacilityMask) == kControlFacility) {
    return static_cast<std::int32_t>(code & kNumberMask);
  }
  return static_cast<std::int32_t>(told.scode);
}

}  // namespace

void RaiseComError(HRESULT result) {
  RaiseComError(result, SystemMessage(static_cast<unsigned long>(result)));
}

void RaiseComError(HRESULT result, const std::string& text) {
  throw ControllerError(kOwnSource, static_cast<std::int32_t>(result), text);
}

void RaiseLibraryError(EXCEPINFO& told) {
  if (told.pfnDeferredFillIn != nullptr) told.pfnDeferredFillIn(&told);
  const std::string source = TakeText(told.bstrSource);
  const std::string description = TakeText(told.bstrDescription);
  SysFreeString(told.bstrHelpFile);
  throw ControllerError(source, NumberOf(told), description);
}

}  // namespace mortane::controller
