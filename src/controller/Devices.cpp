#include "controller/Devices.h"

#include "controller/EnumeratorMembers.h"

namespace mortane::controller {

std::optional<TurretPosition> TurretEnumerator::Next() const {
  const Value item = Call(kNextMember);
  if (std::holds_alternative<std::monostate>(item)) return std::nullopt;
  return TurretPosition(ToObject(item));
}

}  // namespace mortane::controller
