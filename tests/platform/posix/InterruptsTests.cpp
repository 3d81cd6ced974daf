// The first wish to end is remembered, the second ends the process.
#include "platform/Interrupts.h"

#include <gtest/gtest.h>

#include <csignal>

#include "support/posix/ChildProcess.h"

namespace mortane::test {
namespace {

class Interrupts : public testing::TestWithParam<int> {};

TEST_P(Interrupts, TheFirstIsRemembered) {
  const InterruptWatch watch;
  EXPECT_FALSE(InterruptWatch::Asked());
  std::raise(GetParam());
  EXPECT_TRUE(InterruptWatch::Asked());
}

TEST_P(Interrupts, TheSecondEndsTheProcess) {
  ChildProcess child([](const ChildProcess::Side& /*test*/) {
    const InterruptWatch watch;
    std::raise(SIGINT);
    std::raise(GetParam());
    return 0;
  });
  EXPECT_EQ(child.Wait(), -GetParam());
}

TEST_P(Interrupts, AfterTheWatchEverythingIsAsBefore) {
  ChildProcess child([](const ChildProcess::Side& /*test*/) {
    {
      // Its end leaves the signals as they were.
      const InterruptWatch watch;
    }
    std::raise(GetParam());
    return 0;
  });
  EXPECT_EQ(child.Wait(), -GetParam());
}

TEST_P(Interrupts, WhatTheProcessWasStartedToIgnoreStaysIgnored) {
  ChildProcess child([](const ChildProcess::Side& /*test*/) {
    std::signal(GetParam(), SIG_IGN);
    {
      const InterruptWatch watch;
      std::raise(GetParam());
      std::raise(GetParam());
      if (InterruptWatch::Asked()) return 1;
    }
    std::raise(GetParam());
    return 0;
  });
  EXPECT_EQ(child.Wait(), 0);
}

INSTANTIATE_TEST_SUITE_P(Signals, Interrupts, testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace
}  // namespace mortane::test
