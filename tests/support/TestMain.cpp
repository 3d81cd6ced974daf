// Runs the tests of a room that needs no Qt.
#include <gtest/gtest.h>

#include "platform/NamedMutex.h"
#include "support/SecondProcess.h"
#include "support/TestWatch.h"
#include "support/UniqueName.h"

int main(int argc, char** argv) {
  if (const auto code = mortane::test::PlayPart()) return *code;
  testing::InitGoogleTest(&argc, argv);
  const mortane::test::UniqueName deviceNames;
  mortane::NamedMutex::SetScope(deviceNames.Text() + "-");
  testing::UnitTest::GetInstance()->listeners().Append(mortane::test::MakeTestWatch().release());
  return RUN_ALL_TESTS();
}
