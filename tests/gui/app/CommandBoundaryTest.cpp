#include "app/CommandBoundary.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "common/Failure.h"
#include "support/ScriptedPrompts.h"

namespace mortane::test {
namespace {

TEST(RunStep, ShowsNothingOfAStepThatComesToItsEnd) {
  ScriptedPrompts prompts;
  int runs = 0;
  EXPECT_TRUE(RunStep(prompts, [&] { ++runs; }));
  EXPECT_EQ(runs, 1);
}

TEST(RunStep, ShowsTheTextOfAFailureAndGoesOn) {
  ScriptedPrompts prompts;
  prompts.ExpectBox("The file is broken.", box::kCritical);
  EXPECT_FALSE(RunStep(prompts, [] { throw Failure("LIB", 5, "The file is broken."); }));
}

TEST(RunStep, ShowsAFaultOfTheProgramItselfAndGoesOn) {
  ScriptedPrompts prompts;
  prompts.ExpectBox("beyond the end", box::kCritical);
  EXPECT_FALSE(RunStep(prompts, [] { throw std::out_of_range("beyond the end"); }));
}

}  // namespace
}  // namespace mortane::test
