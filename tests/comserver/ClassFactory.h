// Makes the server's objects for COM.
#pragma once

#include <unknwn.h>

#include <cstddef>

namespace mortane::comserver {

// A new reference to a factory of one of kClassNames. It does not keep the server in memory.
IClassFactory* MakeFactory(std::size_t place);

}  // namespace mortane::comserver
