// Objects of the simulator as COM objects.
#pragma once

#include <oaidl.h>

#include "controller/ControllerObject.h"

namespace mortane::comserver {

// A new reference to a late-bound object in front of a simulated one.
IDispatch* MakeDispatch(const controller::ObjectRef& object);

// The same, of a class for the tests alone, which does not count as a live object.
IDispatch* MakeUncountedDispatch(const controller::ObjectRef& object);

// The simulated object behind one that this server made; null for any other.
controller::ObjectRef SimulatedBehind(IUnknown* object);

}  // namespace mortane::comserver
