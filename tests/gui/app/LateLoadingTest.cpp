// Pages of which no sub-page is made do to the model and to the controller what whole pages do.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <algorithm>
#include <memory>
#include <random>

#include "app/ControlSettingsCtl.h"
#include "app/FormServices.h"
#include "app/MakePages.h"
#include "common/Failure.h"
#include "condensers/CondenserSettingsCtl.h"
#include "drawings/MoveCross.h"
#include "drives/clsControlZDrive.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "gui/support/LatePages.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "interlocks/clsInterLockOther.h"
#include "model/DriveCompensation.h"
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

QString TextOf(const QObject& control) {
  if (const auto* list = qobject_cast<const ListBox*>(&control)) {
    QString text = QString::number(list->index());
    for (int row = 0; row < list->rowCount(); ++row)
      text += u'\n' + list->text(row) + u'=' + list->data(row).toString();
    return text;
  }
  if (const auto* combo = qobject_cast<const ComboBox*>(&control)) {
    QString text = QString::number(combo->index());
    for (int row = 0; row < combo->count(); ++row) text += u'\n' + combo->itemText(row);
    return text;
  }
  if (const auto* tabs = qobject_cast<const TabStrip*>(&control))
    return QString::number(tabs->index()) + u'/' + QString::number(tabs->count());
  if (const auto* field = qobject_cast<const QLineEdit*>(&control)) return field->text();
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return button->text() + (button->isChecked() ? u'+' : u'-');
  if (const auto* group = qobject_cast<const OptionGroup*>(&control))
    return QString::number(group->selected());
  return {};
}

// What the named controls of a sub-page show, one line each.
Lines ShownIn(const Page& page) {
  Lines lines;
  for (const QObject* control : page.findChildren<QObject*>()) {
    if (control->objectName().isEmpty() || control->objectName().startsWith("qt_")) continue;
    QString line = page.objectName() + u'.' + control->objectName() + u": "_s + TextOf(*control);
    if (const auto* widget = qobject_cast<const QWidget*>(control)) {
      line += widget->isEnabledTo(&page) ? u" on"_s : u" off"_s;
      line += widget->isVisibleTo(&page) ? u" shown"_s : u" hidden"_s;
    }
    lines.push_back(line.toStdString());
  }
  return lines;
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
  Sight stepped;
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
    course.stepped = sight();
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
      EXPECT_EQ(whole[i].stepped.calls, late[i].stepped.calls);
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

// The page of the drives and controls, loaded but not shown; its sub-pages may be made before.
struct ControlsRig : Rig {
  explicit ControlsRig(const char* bench) : Rig(bench) {
    prompts.AcceptAnyBox();
    ConnectAndReceive();
  }
  void Load(Make make) {
    if (make == Make::BeforeLoading) MakeAllPages(page);
    page.LoadData();
    prompts.ClearRecords();
    journal.Clear();
  }

  ScriptedJoystick joystick;
  ControlSettingsCtl page{{k70, library, prompts, joystick, {}},
                          MakeControlSubPages({k70, library, prompts, joystick, {}})};
};

// Another page may change the compensation, and the interlock that goes with it, in between.
TEST(LateLoading, TheMakingStoresNothingAndTheNextLoadingWhatItStoresOnAMadePage) {
  for (const Make make : {Make::BeforeLoading, Make::Later}) {
    ControlsRig rig("Harbour");
    rig.Load(make);
    clsControlZDrive& drive = rig.k70.CZDrive;
    ASSERT_EQ(drive.curFocusCompensation, compensation::kRelative);
    ASSERT_EQ(rig.k70.ILOther.Status(accessory::kZFocusDrive), kInterlockOn);
    drive.curFocusCompensation = compensation::kNone;
    MakeAllPages(rig.page);
    EXPECT_EQ(drive.curFocusCompensation, compensation::kNone);
    EXPECT_EQ(rig.k70.ILOther.Status(accessory::kZFocusDrive), kInterlockOn);
    rig.page.ControlFocusDriveCtl1->LoadData();
    EXPECT_EQ(drive.curFocusCompensation, compensation::kNone);
    EXPECT_EQ(rig.k70.ILOther.Status(accessory::kZFocusDrive), kInterlockOff);
  }
}

TEST(LateLoading, AnAddressWithoutARowSelectsNone) {
  for (const Make make : {Make::BeforeLoading, Make::Later}) {
    for (const std::int32_t address : {0, 1, 7, 8, 10}) {
      ControlsRig rig("Attic");
      rig.Load(make);
      rig.instrument().Accessory(accessory::kNosepiece).value = address;
      rig.page.SetNosePostiton();
      const bool hasRow = address >= 1 && address <= 7;
      EXPECT_EQ(rig.prompts.Log(), hasRow ? (Lines{"pointer 11", "pointer 0"}) : Lines{})
          << address;
    }
  }
}

struct EndRow {
  const char* page;
  LatePlan (*plan)(clsK70& k70);
  const char* message;
  int style;
};

// As the page itself, which makes no further call when it has been destroyed.
TEST(LateLoading, WhatStandsForAPageCallsNothingAfterItsEndBehindABox) {
  for (const EndRow& row :
       {EndRow{"ControlFocusDriveCtl1", [](clsK70& k70) { return PlanFocusDrive(k70).plan; },
               "MoveStart Error!!", box::kCritical},
        EndRow{"ControlXYStageCtl1", [](clsK70& k70) { return PlanXYStage(k70).plan; },
               "MoveStart Error!!", box::kCritical},
        EndRow{"ControlOtherCtl1", PlanOther, "Data_Load Error3", box::kOk}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    auto late = std::make_unique<LateControl<Page>>(row.page);
    late->Plan(row.plan(rig.k70));
    rig.faults.FailCall(1);
    rig.prompts.ExpectBox(row.message, row.style, Answer::Ok, "", [&late] { late.reset(); });
    late->LoadData();
    EXPECT_EQ(late, nullptr) << row.page;
    EXPECT_EQ(rig.journal.CallCount(), 1U) << row.page;
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  }
}

}  // namespace
}  // namespace mortane::test
