#include "common/CheckedIndex.h"
#include "common/ErrorTrap.h"
#include "common/Failure.h"
#include "common/FailureText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace mortane {
namespace {

const Failure kLibraryFailure("LIB", -2147467259, "gone");

TEST(FailureLine, IsTheOpeningWithSourceAndHexadecimalNumber) {
  EXPECT_EQ(FailureLine("Nosepiece Limit (", kLibraryFailure), "Nosepiece Limit (LIB:80004005)");
  EXPECT_EQ(FailureLine("X[1](", Failure("", 0, "")), "X[1](:0)");
}

TEST(OperationError, HasTheFormOfTheMicroscopeObject) {
  EXPECT_EQ(OperationError("Connect", Failure("LIB", 55, "")), "*** Connect Error!!(37)");
}

TEST(RaiseOwnFailure, NamesTheProgramAsItsSource) {
  try {
    RaiseOwnFailure(kAlreadyOpenError, "open");
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Source(), "Mortane");
    EXPECT_EQ(failure.Number(), 55);
    EXPECT_EQ(failure.Description(), "open");
    EXPECT_STREQ(failure.what(), "open");
    return;
  }
  ADD_FAILURE() << "nothing was raised";
}

TEST(CheckedIndex, CountsFromTheFirstEntry) {
  EXPECT_EQ(CheckedIndex(1, 1, 14), 0U);
  EXPECT_EQ(CheckedIndex(14, 1, 14), 13U);
  EXPECT_EQ(CheckedIndex(-3, -3, 1), 0U);
}

TEST(CheckedIndex, RaisesErrorNineOutsideTheTable) {
  for (const std::int32_t index : {0, 15, -1, INT32_MAX, INT32_MIN}) {
    try {
      CheckedIndex(index, 1, 14);
      ADD_FAILURE() << index << " was taken";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kSubscriptError);
      EXPECT_EQ(failure.Description(), "Subscript out of range: " + std::to_string(index));
    }
  }
}

TEST(ErrorTrap, RunsEveryStatementAndRemembersThatOneFailed) {
  ErrorTrap trap;
  int ran = 0;
  EXPECT_TRUE(trap.Run([&] { ++ran; }));
  EXPECT_FALSE(trap.Run([&] {
    ++ran;
    throw kLibraryFailure;
  }));
  EXPECT_TRUE(trap.Run([&] { ++ran; }));
  EXPECT_EQ(ran, 3);
  EXPECT_TRUE(trap.TakeFailed());
}

TEST(ErrorTrap, ForgetsTheFailureOnceAsked) {
  ErrorTrap trap;
  EXPECT_FALSE(trap.TakeFailed());
  trap.Run([] { throw kLibraryFailure; });
  EXPECT_TRUE(trap.TakeFailed());
  EXPECT_FALSE(trap.TakeFailed());
}

TEST(ErrorTrap, LetsBugsThrough) {
  ErrorTrap trap;
  EXPECT_THROW(trap.Run([] { throw std::logic_error("bug"); }), std::logic_error);
  EXPECT_FALSE(trap.TakeFailed());
}

}  // namespace
}  // namespace mortane
