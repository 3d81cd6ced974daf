#include "controller/com/ComRoot.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>

#include "controller/ControllerError.h"

namespace mortane::controller {
namespace {

constexpr std::string_view kDeviceListMember = "DeviceList";

constexpr std::int32_t OfSystem(long error) {
  return static_cast<std::int32_t>(0x80070000U | static_cast<std::uint32_t>(error));
}

// With which COM answers for an object whose process is gone.
constexpr std::array kLosses{
    std::int32_t{RPC_E_DISCONNECTED},    std::int32_t{RPC_E_SERVER_DIED},
    std::int32_t{RPC_E_SERVER_DIED_DNE}, std::int32_t{CO_E_OBJNOTCONNECTED},
    OfSystem(RPC_S_SERVER_UNAVAILABLE),  OfSystem(RPC_S_CALL_FAILED),
    OfSystem(RPC_S_CALL_FAILED_DNE)};

bool IsLoss(std::int32_t number) {
  return std::find(kLosses.begin(), kLosses.end(), number) != kLosses.end();
}

}  // namespace

template <typename Use>
auto ComRoot::Watched(Use use) {
  try {
    return use();
  } catch (const ControllerError& error) {
    lost_ = lost_ || IsLoss(error.Number());
    throw;
  }
}

ComRoot::ComRoot(std::function<ObjectRef()> make) : make_(std::move(make)), object_(make_()) {}

Value ComRoot::Get(std::string_view member, Args args) {
  if (lost_ && member == kDeviceListMember) {
    object_ = make_();
    lost_ = false;
  }
  return Watched([&] { return object_->Get(member, args); });
}

void ComRoot::Put(std::string_view member, const Value& value, Args args) {
  Watched([&] { object_->Put(member, value, args); });
}

Value ComRoot::Call(std::string_view member, Args args) {
  return Watched([&] { return object_->Call(member, args); });
}

}  // namespace mortane::controller
