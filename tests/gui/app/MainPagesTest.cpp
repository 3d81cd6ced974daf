// What a microscope must have for the main window to enable a page.
#include "app/MainPages.h"

#include <gtest/gtest.h>

#include "drives/clsControlOther.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
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
constexpr std::size_t kInterlockPage = 4;
constexpr std::size_t kControlPage = 5;

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

struct UnitCase {
  std::size_t page;
  const char* unit;
  std::vector<std::int32_t> unfitted;
  // Reads one unit; the others stay as they were made.
  void (*read)(clsK70& k70);
  bool enabled;
};

TEST(MainPages, OfSeveralUnitsAreEnabledByEachOfThemAlone) {
  using accessory::kXYStage, accessory::kZFocusDrive;
  const auto nothing = [](clsK70&) {};
  for (const UnitCase& given :
       {UnitCase{kInterlockPage, "none", {}, nothing, false},
        UnitCase{kInterlockPage,
                 "ILObservation",
                 {},
                 [](clsK70& k70) { k70.ILObservation.ReadSdk(); },
                 true},
        UnitCase{kInterlockPage, "ILOther", {}, [](clsK70& k70) { k70.ILOther.ReadSdk(); }, true},
        UnitCase{kInterlockPage, "ILOffset", {}, [](clsK70& k70) { k70.ILOffset.ReadSdk(); }, true},
        UnitCase{kControlPage, "none", {kXYStage, kZFocusDrive}, nothing, false},
        UnitCase{kControlPage, "CZDrive", {kXYStage}, nothing, true},
        UnitCase{kControlPage, "CXYDrive", {kZFocusDrive}, nothing, true},
        UnitCase{kControlPage,
                 "COther",
                 {kXYStage, kZFocusDrive},
                 [](clsK70& k70) { k70.COther.ReadSdk(); },
                 true}}) {
    Bench bench = benches::Named("Harbour");
    for (const std::int32_t number : given.unfitted) Unfit(bench, number);
    Rig rig(std::move(bench));
    rig.Connect();
    given.read(rig.k70);
    EXPECT_EQ(MainPages()[given.page].isEnabled(rig.k70), given.enabled) << given.unit;
  }
}

TEST(MainPages, OfTheSystemIsAlwaysEnabled) {
  EXPECT_FALSE(MainPages()[0].isEnabled) << "it has no rule";
}

}  // namespace
}  // namespace mortane::test
