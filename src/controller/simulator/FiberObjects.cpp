#include "controller/simulator/FiberObjects.h"

namespace mortane::controller {
namespace {

FiberData& Installed(const SimulatorRef& state) {
  if (!state->bench.fiber.installed) RaiseSimulated("The fiber server is not installed.");
  return state->bench.fiber;
}

FiberData& Opened(const SimulatorRef& state) {
  FiberData& fiber = Installed(state);
  if (!fiber.open) RaiseSimulated("The fiber server has no device.");
  return fiber;
}

void AddRemoteField(MemberObject& remote, const SimulatorRef& state, std::string_view member,
                    std::int16_t FiberData::*field) {
  remote.OnGet(member, 0, [state, field](Args) -> Value { return Opened(state).*field; })
      .OnPut(member, 0, [state, field](const Value& value, Args) {
        state->Assign(Opened(state).*field, IntegerArgument(value));
      });
}

}  // namespace

ObjectRef MakeFiberServer(const SimulatorRef& state) {
  Installed(state);
  auto server = std::make_shared<MemberObject>();
  server->OnGet("IsOpen", 0, [state](Args) -> Value { return Installed(state).open; })
      .OnCall("Open", 1,
              [state](Args args) -> Value {
                LongArgument(args[0]);
                if (!Installed(state).opens) RaiseSimulated("The fiber device does not answer.");
                Installed(state).open = true;
                return {};
              })
      .OnCall("Close", 0,
              [state](Args) -> Value {
                Installed(state).open = false;
                return {};
              })
      .OnGet("Status", 0, [state](Args) -> Value { return Installed(state).status; });
  return server;
}

ObjectRef MakeFiberRemote(const SimulatorRef& state) {
  Installed(state);
  auto remote = std::make_shared<MemberObject>();
  AddRemoteField(*remote, state, "SwitchEnable", &FiberData::switchEnable);
  AddRemoteField(*remote, state, "LED", &FiberData::led);
  return remote;
}

}  // namespace mortane::controller
