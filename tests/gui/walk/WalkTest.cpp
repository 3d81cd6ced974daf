// Short random walks over both windows; tools/walk.sh makes long ones.
#include <gtest/gtest.h>

#include "Walk.h"
#include "controller/simulator/Benches.h"

namespace mortane::test {
namespace {

// Enough to set off what is on the pages; more takes long.
constexpr int kMainEvents = 80;
constexpr int kWizardEvents = 30;

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

class MainWindowWalk : public ::testing::TestWithParam<std::string> {};

TEST_P(MainWindowWalk, BreaksNothing) {
  const WalkPlan plan{WalkedWindow::Main, GetParam(), 1, kMainEvents};
  EXPECT_EQ(Joined(Walk(plan)), "");
}

class WizardWalk : public ::testing::TestWithParam<std::string> {};

TEST_P(WizardWalk, BreaksNothing) {
  const WalkPlan plan{WalkedWindow::Wizard, GetParam(), 1, kWizardEvents};
  EXPECT_EQ(Joined(Walk(plan)), "");
}

std::string NameOf(const ::testing::TestParamInfo<std::string>& row) {
  return row.param;
}

INSTANTIATE_TEST_SUITE_P(Benches, MainWindowWalk, ::testing::ValuesIn(controller::benches::Names()),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(Benches, WizardWalk, ::testing::ValuesIn(controller::benches::Names()),
                         NameOf);

}  // namespace
}  // namespace mortane::test
