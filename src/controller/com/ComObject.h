// An object of a COM library behind the one transport, over late binding.
#pragma once

#include <oaidl.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "controller/ControllerObject.h"
#include "controller/com/ComPointer.h"

namespace mortane::controller {

// The numbers by which interfaces know their members, asked for once for each interface and name.
// One interface is told from another by the identifier in its type information.
class MemberIds {
 public:
  struct Entry {
    std::string name;
    DISPID id;
  };
  using Table = std::vector<Entry>;  // in the order in which they were asked for; never many

  // The table that all objects of this one's interface share. Null for an object without such an
  // identifier, and for one in another process: asking that for its interface takes longer than
  // asking for the few names that a program uses of it.
  Table* TableOf(IDispatch& object);

 private:
  // The type information that an object of it gave last. Most libraries give the same each time,
  // which is known without asking it; as long as it is held, no other has its address.
  struct Interface {
    ComPointer<ITypeInfo> type;
    Table ids;
  };

  std::map<std::array<std::uint64_t, 2>, Interface> interfaces_;
  std::map<ITypeInfo*, Table*> byType_;
};

// `ids` must outlive the object.
ObjectRef MakeComObject(ComPointer<IDispatch> object, MemberIds& ids);

}  // namespace mortane::controller
