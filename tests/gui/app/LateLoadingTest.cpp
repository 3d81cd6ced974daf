// Pages of which no sub-page is made do to the model and to the controller what whole pages do.
#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <memory>
#include <random>

#include "app/ControlSettingsCtl.h"
#include "app/FormServices.h"
#include "app/MakePages.h"
#include "common/Failure.h"
#include "condensers/CondenserSettingsCtl.h"
#include "drawings/MoveCross.h"
#include "filters/FilterQubeCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "gui/support/LatePages.h"
#include "gui/support/ShownControls.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "record/ModelItems.h"
#include "support/RandomModel.h"
#include "support/Rig.h"
#include "support/Rows.h"
#include "support/Sample.h"
#include "support/ScriptedJoystick.h"
#include "widgets/ComboBox.h"
#include "widgets/LatePage.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

using MakePage = Page* (*)(const FormServices& services);

struct PageKind {
  const char* name;
  MakePage make;
  int latePages;
};

const PageKind kPages[] = {
    {"objectives",
     [](const FormServices& services) -> Page* {
       return MakeObjectiveSettings(services.k70, nullptr);
     },
     3},
    {"filter cubes",
     [](const FormServices& services) -> Page* {
       return MakeFilterQubeSettings(services.k70, nullptr);
     },
     3},
    {"condensers",
     [](const FormServices& services) -> Page* {
       return MakeCondenserSettings(services.k70, nullptr);
     },
     2},
    {"interlocks",
     [](const FormServices& services) -> Page* {
       return MakeInterlockSettings(services.k70, nullptr);
     },
     3},
    {"controls",
     [](const FormServices& services) -> Page* {
       return new ControlSettingsCtl(services, MakeControlSubPages(services));
     },
     6},
};

std::string ModelText(const clsK70& k70) {
  DomDocument document;
  k70.WriteSections(document);
  std::string text = document.ToText();
  try {
    for (const ConfigurationItem& item : ItemsOf(k70)) text += "\n" + item.value + "|" + item.exact;
  } catch (const Failure&) {
    text += "\nfailure";
  }
  return text;
}

struct Sight {
  Lines calls;
  std::size_t callCount = 0;
  Lines asked;
  std::string model;

  bool operator==(const Sight&) const = default;
};

struct Course {
  Sight loaded;
  Sight madeLater;
  Lines shown;
  Lines callsOfSteps;
};

enum class Make { BeforeLoading, Later };

class LateLoading : public ::testing::TestWithParam<std::string> {
 protected:
  // All pages over one model, as in a window, one after the other.
  static std::vector<Course> Run(unsigned seed, Make make) {
    Rig rig(GetParam());
    rig.prompts.AcceptAnyBox();
    rig.ConnectAndReceive();
    if (seed != 0) {
      std::mt19937 random(seed);
      MakeRandom(rig.k70, random);
    }
    rig.prompts.ClearRecords();
    ScriptedJoystick joystick;
    const FormServices services{rig.k70, rig.library, rig.prompts, joystick, {}};
    std::vector<std::unique_ptr<Page>> pages;
    std::vector<Course> courses;
    for (const PageKind& kind : kPages) {
      pages.emplace_back(kind.make(services));
      courses.push_back(Load(kind, *pages.back(), make, rig));
    }
    return courses;
  }

 private:
  static Course Load(const PageKind& kind, Page& page, Make make, Rig& rig) {
    page.hide();
    const auto late = page.findChildren<LatePage*>();
    EXPECT_EQ(late.size(), kind.latePages);
    if (make == Make::BeforeLoading) MakeAllPages(page);
    const auto sight = [&rig] {
      return Sight{rig.journal.Lines(), rig.journal.CallCount(), rig.prompts.Log(),
                   ModelText(rig.k70)};
    };
    Course course;
    try {
      page.LoadData();
    } catch (const Failure&) {
      course.shown.push_back("a failure");
    }
    for (int i = 0; i < 2; ++i) page.SetNosePostiton();
    course.loaded = sight();
    MakeAllPages(page);
    course.madeLater = sight();
    for (const LatePage* one : late) {
      for (std::string& line : ShownIn(*one->made())) course.shown.push_back(std::move(line));
    }
    // A step shows where the drive stands in the row that is selected.
    for (auto* button : page.findChildren<MoveButton*>()) button->click();
    course.callsOfSteps = rig.journal.Lines();
    return course;
  }
};

TEST_P(LateLoading, DoesWhatTheMadePagesDoAndShowsTheSameLater) {
  const std::vector<std::string> names = benches::Names();
  const auto row = std::find(names.begin(), names.end(), GetParam()) - names.begin();
  // What was received, and on some of the benches a random model.
  std::vector<unsigned> seeds = ColumnsOfRow<unsigned>(static_cast<std::size_t>(row), {1, 2}, 4);
  seeds.push_back(0);
  for (const unsigned seed : seeds) {
    const std::vector<Course> whole = Run(seed, Make::BeforeLoading);
    const std::vector<Course> late = Run(seed, Make::Later);
    for (std::size_t i = 0; i < std::size(kPages); ++i) {
      SCOPED_TRACE(std::string(kPages[i].name) + " " + std::to_string(seed));
      EXPECT_EQ(whole[i].loaded.calls, late[i].loaded.calls);
      EXPECT_EQ(whole[i].loaded.callCount, late[i].loaded.callCount);
      EXPECT_EQ(whole[i].loaded.asked, late[i].loaded.asked);
      EXPECT_EQ(whole[i].loaded.model, late[i].loaded.model);
      EXPECT_TRUE(late[i].loaded == late[i].madeLater) << "the making changes nothing";
      EXPECT_EQ(whole[i].shown, late[i].shown);
      EXPECT_EQ(whole[i].callsOfSteps, late[i].callsOfSteps);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Benches, LateLoading, ::testing::ValuesIn(benches::Names()),
                         [](const auto& tested) { return tested.param; });

// On an ordinary microscope next to nothing is made before it is shown.
TEST(LateLoading, MakesNoSubPageThatItNeedNotMake) {
  struct Making {
    const char* page;
    int made;
  };
  // The interlocks that tell the drives.
  const std::vector<Making> expected{{"objectives", 0},
                                     {"filter cubes", 0},
                                     {"condensers", 0},
                                     {"interlocks", 1},
                                     {"controls", 0}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    ScriptedJoystick joystick;
    rig.prompts.AcceptAnyBox();
    const std::unique_ptr<Page> page(
        kPages[i].make({rig.k70, rig.library, rig.prompts, joystick, {}}));
    page->hide();
    page->LoadData();
    int made = 0;
    for (const LatePage* late : page->findChildren<LatePage*>()) made += late->made() != nullptr;
    EXPECT_EQ(made, expected[i].made) << expected[i].page;
  }
}

// A vacant code has no row, so that the last fixed code counts one row too many.
TEST(LateLoading, LeavesACubeWithoutARowAndDoesNotMakeItsSubPage) {
  Bench bench = benches::Named("Harbour");
  for (auto& cube : bench.instruments.back().database.cubes) {
    if (cube.code == 2 || cube.option) cube.name = "----------";
  }
  Rig rig(bench);
  rig.ConnectAndReceive();
  const std::int32_t last = rig.k70.dbFilter.FixedCount();
  rig.k70.curFilter.code(1, last);
  const std::unique_ptr<FilterQubeSettingsCtl> page(MakeFilterQubeSettings(rig.k70, nullptr));
  page->LoadData();
  EXPECT_EQ(page->FilterQubeCtl1.made(), nullptr);
  EXPECT_EQ(page->FilterQubeCtl1->List1->index(), -1);
  EXPECT_EQ(rig.k70.curFilter.code(1), last);
}

}  // namespace
}  // namespace mortane::test
