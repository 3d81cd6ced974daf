// Ends a test program whose test hangs, so that no run waits for ever.
#pragma once

#include <gtest/gtest.h>

#include <memory>

namespace mortane::test {

// A test that takes longer than this is named on standard error, and the process ends.
inline constexpr int kSecondsForOneTest = 60;

// For the program's list of listeners, which owns it.
std::unique_ptr<testing::TestEventListener> MakeTestWatch();

}  // namespace mortane::test
