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

void AddRemoteField(MemberTable<SimulatorRef>& table, std::string_view member,
                    std::int16_t FiberData::*field) {
  table
      .OnGet(member, 0,
             [field](const SimulatorRef& state, Args) -> Value { return Opened(state).*field; })
      .OnPut(member, 0, [field](const SimulatorRef& state, const Value& value, Args) {
        state->Assign(Opened(state).*field, IntegerArgument(value));
      });
}

MemberTable<SimulatorRef> RemoteMembers() {
  MemberTable<SimulatorRef> table;
  AddRemoteField(table, "SwitchEnable", &FiberData::switchEnable);
  AddRemoteField(table, "LED", &FiberData::led);
  return table;
}

}  // namespace

ObjectRef MakeFiberServer(const SimulatorRef& state) {
  static const MemberTable<SimulatorRef> members =
      MemberTable<SimulatorRef>()
          .OnGet("IsOpen", 0,
                 [](const SimulatorRef& shared, Args) -> Value { return Installed(shared).open; })
          .OnCall("Open", 1,
                  [](const SimulatorRef& shared, Args args) -> Value {
                    LongArgument(args[0]);
                    FiberData& fiber = Installed(shared);
                    if (!fiber.opens && fiber.openRaises) {
                      RaiseSimulated("The fiber device does not answer.");
                    }
                    fiber.open = fiber.opens;
                    return {};
                  })
          .OnCall("Close", 0,
                  [](const SimulatorRef& shared, Args) -> Value {
                    Installed(shared).open = false;
                    return {};
                  })
          .OnGet("Status", 0, [](const SimulatorRef& shared, Args) -> Value {
            return Installed(shared).status;
          });
  Installed(state);
  return MakeObject(members, state);
}

ObjectRef MakeFiberRemote(const SimulatorRef& state) {
  static const MemberTable<SimulatorRef> members = RemoteMembers();
  Installed(state);
  return MakeObject(members, state);
}

}  // namespace mortane::controller
