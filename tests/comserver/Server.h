// What all objects of the test server share: the simulated library behind them, and counts.
#pragma once

#include <functional>

#include "controller/ControllerObject.h"

namespace mortane::comserver {

// Objects and locks that keep the server in memory. `unused` is called when the last one goes.
void LockServer();
void UnlockServer();
bool IsServerUsed();
void OnServerUnused(std::function<void()> unused);

// Objects handed out and not released yet; the tests' own class is not counted.
long& LiveObjects();

// Calls of GetIDsOfNames.
long& NameQueries();

// An object of one of kClassNames; raises a Failure. The bench is the one that the environment
// variable MORTANE_SERVER_BENCH names: a file, which follows every change, or a named bench.
// Without it, "Quay". Moves take their time.
controller::ObjectRef CreateServed(std::size_t place);

}  // namespace mortane::comserver
