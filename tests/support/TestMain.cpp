// Runs the tests of a room that needs no Qt.
#include <gtest/gtest.h>

#include "support/TestWatch.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(mortane::test::MakeTestWatch().release());
  return RUN_ALL_TESTS();
}
