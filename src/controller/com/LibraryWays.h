// Where the objects of a controller library are made: which ways there are, and which is taken.
#pragma once

#include <oaidl.h>

#include <string>

#include "controller/com/ComPointer.h"

namespace mortane::controller {

class HostProcess;

// All, in the order of kAny: the program's own process; the process of a registered server; the
// host, for a class that is there for 32 bits only.
enum class LibraryWays { kAny, kInProcess, kHost32 };

// MORTANE_LIBRARY: "inprocess", "host32", or nothing. Raises a Failure for anything else.
LibraryWays WaysOfEnvironment();

// The first way that gives an object. The host is tried where the system's list of classes for 32
// bits has a library of that name, and where the other two ways say that the class is not
// registered. Raises the failure of the last way that says more than that, else of the last way.
// Its text has a line for each way that was tried, its own line at the end; the others end with
// COM's number. For a name that nothing is registered under, CO_E_CLASSSTRING with the system's
// text.
ComPointer<IDispatch> MakeByFirstWay(const std::string& className, LibraryWays ways,
                                     HostProcess& host);

}  // namespace mortane::controller
