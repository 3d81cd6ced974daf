// What a person reads of a sending that ended half-way.
#include "ctl/ResultText.h"

#include <gtest/gtest.h>

#include <sstream>

namespace mortane::test {
namespace {

ctl::NamedChange Change(const std::string& name, const std::string& from, const std::string& to) {
  return {{{}, name, from, from}, {{}, name, to, to}};
}

TEST(ResultText, TellsOfAPartlySendingWhatIsWrittenWhatIsNotAndWhatNobodyKnows) {
  ctl::SendResult result;
  result.sending = ctl::Sending::Partly;
  result.comparison.device = "Bay 7";
  result.comparison.changed = {Change("Objective 1", "4x", "10x"), Change("Cube 1", "A", "B"),
                               Change("Cube 2", "C", "D")};
  result.written = {result.comparison.changed[0]};
  result.notWritten = {result.comparison.changed[1]};
  result.notKnown = {result.comparison.changed[2]};
  result.failures = {"Filter Cube[2]"};
  std::ostringstream out;
  ctl::ResultText(out, false).WriteSent(result);
  EXPECT_EQ(out.str(),
            "Bay 7: 1 of 3 changes written\n"
            "Written: 1 item\n  Objective 1: 4x → 10x\n"
            "Not written: 1 item\n  Cube 1: A → B\n"
            "Not known whether written: 1 item\n  Cube 2: C → D\n"
            "Failed: 1 line\n  Filter Cube[2]\n");
}

}  // namespace
}  // namespace mortane::test
