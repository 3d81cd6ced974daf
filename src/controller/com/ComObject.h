// An object of a COM library behind the one transport, over late binding.
#pragma once

#include <oaidl.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "controller/ControllerObject.h"
#include "controller/com/ComPointer.h"

namespace mortane::controller {

// The numbers by which interfaces know their members, asked for once for each interface and name.
// One interface is told from another by its type information.
class MemberIds {
 public:
  // Raises DISP_E_UNKNOWNNAME for a name that the object does not know. The empty name is the
  // default member, "_NewEnum" the enumerator.
  DISPID Find(IDispatch& object, const std::string& interfaceKey, std::string_view member);

 private:
  std::map<std::string, std::map<std::string, DISPID, std::less<>>> known_;
};

// Empty for an object without type information or without a name in it; its members are then
// asked for each time.
std::string InterfaceKey(IDispatch& object);

// An IDispatch or an IEnumVARIANT; raises E_NOINTERFACE for an object that is neither.
ObjectRef MakeComObject(const ComPointer<IUnknown>& object, std::shared_ptr<MemberIds> ids);

// A new reference to the COM object behind a value; null for an empty value. Raises
// kConversionError for an object of another back end.
IDispatch* ReferenceTo(const ObjectRef& object);

}  // namespace mortane::controller
