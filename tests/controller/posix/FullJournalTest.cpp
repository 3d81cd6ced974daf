// A journal on a full disk.
#include <gtest/gtest.h>

#include "controller/replay/JournalFile.h"

namespace mortane::controller::test {
namespace {

TEST(FullJournal, IsToldOnceAndNothingElseHappens) {
  std::vector<std::string> notices;
  JournalFile file("/dev/full", {}, [&](const std::string& text) { notices.push_back(text); });
  file.Write("a line");
  file.Write("a line");
  EXPECT_EQ(notices, std::vector<std::string>{
                         "Cannot write the journal /dev/full: No space left on device"});
}

}  // namespace
}  // namespace mortane::controller::test
