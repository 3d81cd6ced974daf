#include "common/TemporaryName.h"

#include <gtest/gtest.h>

namespace mortane {
namespace {

TEST(TemporaryName, TellsTheProcessThatItBelongsTo) {
  for (const std::int64_t process :
       {std::int64_t{1}, std::int64_t{4194304}, std::int64_t{1} << 32}) {
    for (const int number : {0, 7, kTemporaryNames - 1}) {
      EXPECT_EQ(ProcessOfTemporary(TemporaryName(process, number)), process);
    }
  }
  EXPECT_EQ(TemporaryName(12, 3), ".mortane-12-3.tmp");
}

TEST(TemporaryName, IsNoOtherThanItsOwnForm) {
  for (const char* name : {"",
                           ".mortane-",
                           ".mortane-12",
                           ".mortane-12.tmp",
                           ".mortane-12-.tmp",
                           ".mortane--3.tmp",
                           ".mortane-12-3",
                           ".mortane-12-3.tmp.bak",
                           ".mortane-12-3.TMP",
                           "mortane-12-3.tmp",
                           ".Mortane-12-3.tmp",
                           ".mortane-012-3.tmp",
                           ".mortane-12-03.tmp",
                           ".mortane-+12-3.tmp",
                           ".mortane--12-3.tmp",
                           ".mortane-12--3.tmp",
                           ".mortane-0-3.tmp",
                           ".mortane-12-1000.tmp",
                           ".mortane-12-3-4.tmp",
                           ".mortane-1x-3.tmp",
                           ".mortane-12_3.tmp",
                           ".mortane- 12-3.tmp",
                           ".mortane-99999999999999999999-3.tmp",
                           "a.xml"}) {
    EXPECT_FALSE(ProcessOfTemporary(name)) << name;
  }
}

}  // namespace
}  // namespace mortane
