// What a microscope must have for the main window to enable a page.
#include "app/MainPages.h"

#include <gtest/gtest.h>

#include "support/Rig.h"
#include "support/Rows.h"

namespace mortane::test {
namespace {

struct PageCase {
  std::size_t page;
  const char* bench;
  void (*change)(Bench& bench);
  bool enabled;
};

constexpr std::size_t kObjectivePage = 1;
constexpr std::size_t kFilterPage = 2;
constexpr std::size_t kCondenserPage = 3;

void UnfitNosepiece(Bench& bench) {
  Unfit(bench, accessory::kNosepiece);
}

void UnfitCubes(Bench& bench) {
  Unfit(bench, accessory::kFilterCube);
}

void UnfitCondenser(Bench& bench) {
  Unfit(bench, accessory::kCondenser);
}

void RemoveBody(Bench& bench) {
  bench.instruments.back().Unit(1) = {};
}

TEST(MainPages, AreEnabledByWhatTheMicroscopeHas) {
  for (const PageCase& given : {PageCase{kObjectivePage, "Harbour", nullptr, true},
                                PageCase{kObjectivePage, "Harbour", UnfitNosepiece, false},
                                PageCase{kObjectivePage, "Harbour", RemoveBody, true},
                                PageCase{kObjectivePage, "Watch", nullptr, true},
                                PageCase{kFilterPage, "Watch", nullptr, true},
                                PageCase{kCondenserPage, "Watch", nullptr, true},
                                PageCase{kFilterPage, "Harbour", nullptr, true},
                                PageCase{kFilterPage, "Harbour", UnfitCubes, false},
                                PageCase{kFilterPage, "Harbour", RemoveBody, true},
                                PageCase{kCondenserPage, "Harbour", nullptr, true},
                                PageCase{kCondenserPage, "Harbour", UnfitCondenser, false},
                                PageCase{kCondenserPage, "Harbour", RemoveBody, false}}) {
    const PageRow row = MainPages()[given.page];
    ASSERT_TRUE(row.make);
    Bench bench = benches::Named(given.bench);
    if (given.change != nullptr) given.change(bench);
    Rig rig(std::move(bench));
    rig.ConnectAndReceive();
    EXPECT_EQ(row.isEnabled(rig.k70), given.enabled) << given.page;
  }
}

TEST(MainPages, OfTheSystemIsAlwaysEnabled) {
  EXPECT_FALSE(MainPages()[0].isEnabled) << "it has no rule";
}

}  // namespace
}  // namespace mortane::test
