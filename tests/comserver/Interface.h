// What an interface of the test server offers, out of the simulator's own list of members.
#pragma once

#include <oaidl.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controller/com/ComPointer.h"
#include "controller/simulator/MemberObject.h"

namespace mortane::comserver {

// A member with the uses that it has, each with its number of arguments. A write takes its value
// besides.
struct ServedMember {
  std::string_view name;
  DISPID id;
  std::optional<std::size_t> get;
  std::optional<std::size_t> put;
  std::optional<std::size_t> call;
};

// No two interfaces share an id, but for the default member's and the enumerator's: an id of
// another interface leads to no member.
class Interface {
 public:
  Interface(const std::vector<controller::MemberEntry>& entries, DISPID firstId);

  // Null for a member that the interface has not. Case does not matter in a name.
  const ServedMember* Find(std::wstring_view name) const;
  const ServedMember* Find(DISPID id) const;

  ITypeInfo* TypeInfo() const { return typeInfo_.get(); }

 private:
  std::vector<ServedMember> members_;
  controller::ComPointer<ITypeInfo> typeInfo_;
};

// Objects that offer the same members have the same interface.
const Interface& InterfaceOf(const std::vector<controller::MemberEntry>& entries);

}  // namespace mortane::comserver
