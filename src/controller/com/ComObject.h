// An object of a COM library behind the one transport, over late binding.
#pragma once

#include <oaidl.h>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "controller/ControllerObject.h"
#include "controller/com/ComPointer.h"

namespace mortane::controller {

// The numbers by which interfaces know their members, asked for once for each interface and name.
// One interface is told from another by the identifier in its type information.
class MemberIds {
 public:
  using Table = std::map<std::string, DISPID, std::less<>>;

  // The table that all objects of this one's interface share. Null for an object without such an
  // identifier, and for one in another process: asking that for its interface takes longer than
  // asking for the few names that a program uses of it.
  Table* TableOf(IDispatch& object);

 private:
  std::map<std::array<std::uint64_t, 2>, Table> tables_;
};

ObjectRef MakeComObject(ComPointer<IDispatch> object, std::shared_ptr<MemberIds> ids);

// A new reference to the COM object behind a value; null for an empty value. Raises
// kConversionError for an object of another back end.
IDispatch* ReferenceTo(const ObjectRef& object);

}  // namespace mortane::controller
