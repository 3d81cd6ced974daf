// A plain sleep of the calling thread.
#pragma once

namespace mortane {

// Nothing or less returns at once.
void SleepMilliseconds(int milliseconds);

}  // namespace mortane
