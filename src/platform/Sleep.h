// A plain sleep of the calling thread.
#pragma once

namespace mortane {

// Returns at once for 0 or a negative number.
void SleepMilliseconds(int milliseconds);

}  // namespace mortane
