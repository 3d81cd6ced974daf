// A walk over a simulated collection as COM's enumerator.
#pragma once

#include <oaidl.h>

#include "controller/ControllerObject.h"

namespace mortane::comserver {

// A new reference. `items` is a fresh enumerator of `collection`, which gives further ones.
IEnumVARIANT* MakeEnumerator(const controller::ObjectRef& collection,
                             const controller::ObjectRef& items);

}  // namespace mortane::comserver
