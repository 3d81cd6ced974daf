// The page of the limits that a nosepiece keeps.

#include <QAbstractButton>
#include <QFrame>
#include <QLabel>
#include <QTest>
#include <array>

#include "gui/objectives/AccessibleObjectives.h"
#include "gui/objectives/ObjectivePages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "widgets/Card.h"
#include "widgets/OptionGroup.h"

namespace mortane::test {
namespace {

template <std::int16_t clsLimitation::*Rule>
std::string ValueOf(ObjectiveUnits& k70) {
  return std::to_string(k70.curLimit.*Rule);
}

template <std::int16_t clsLimitation::*Rule, std::int16_t Value>
void Set(ObjectiveUnits& k70) {
  k70.curLimit.*Rule = Value;
}

constexpr auto kIncrease = &clsLimitation::curIncrease;
constexpr auto kSkip = &clsLimitation::curSkip;
constexpr auto kImmersion = &clsLimitation::curImmersion;

const std::vector<GivenControl> kControls{
    {"FrameBase", "Limitation Controls"},
    {"frmIncrease", ""},
    {"optPreventIncrease_0", "Free (default)"},
    {"optPreventIncrease_1", "No Rotation"},
    {"optPreventIncrease_2", "Rotate After Stage going down"},
    {"Label8", " Safety Setting (Change from 2.0x / Lower Obj. to 1 mm / Less W.D. Obj. )"},
    {"frmSkip", "Empty Position"},
    {"optSkipEmpty_0", "Use (default)"},
    {"optSkipEmpty_1", "Skip"},
    {"Label9", "Rotate With Skipping empty data position"},
    {"frmImmersion", "Immersion Objective IN/OUT Control"},
    {"optPreventImmersion_0", "Free (default)"},
    {"optPreventImmersion_1", "No Rotation"},
    {"optPreventImmersion_2", "Rotate After Stage going down"},
    {"Label10", "Rotate Immersion Type"},
    {"Label2",
     "Limitation Controls are effective after rotating the nosepiece with interlock mode."},
    {"Label1",
     "These functions are effective for rotating the nosepiece by buttons on the microscope"},
};

PageDrillData LimitPage() {
  PageDrillData data;
  data.name = "Limits";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeObjectiveLimitCtl;
  data.controls = kControls;
  data.shown = {
      {"optPreventIncrease_2", Set<kIncrease, 2>, ValueOf<kIncrease>, "on"},
      {"optPreventIncrease_0", Set<kIncrease, 1>, ValueOf<kIncrease>, "off"},
      {"optSkipEmpty_1", Set<kSkip, 1>, ValueOf<kSkip>, "on"},
      {"optPreventImmersion_1", Set<kImmersion, 1>, ValueOf<kImmersion>, "on"},
      {"optPreventImmersion_0", Set<kImmersion, -1>, ValueOf<kImmersion>, "off"},
  };
  data.edits = {
      {"optPreventIncrease_1", "No Rotation", ValueOf<kIncrease>, "1"},
      {"optPreventIncrease_2", "Rotate After Stage going down", ValueOf<kIncrease>, "2"},
      {"optSkipEmpty_1", "Skip", ValueOf<kSkip>, "1"},
      {"optPreventImmersion_2", "Rotate After Stage going down", ValueOf<kImmersion>, "2"},
  };
  const auto unknown = [](Bench& bench) { bench.instruments.back().limitation = 0; };
  data.enabling = {
      {"frmIncrease", "Harbour", {}, true},
      {"frmIncrease", "Harbour", unknown, false},
      {"frmSkip", "Harbour", unknown, false},
      {"frmImmersion", "Harbour", unknown, false},
      {"frmImmersion", "Outpost", {}, false},
      {"optPreventIncrease_2", "Harbour", {}, true},
      {"optPreventIncrease_2", "Deck", [](Bench& b) { b.instruments.back().limitation = 1; },
       false},
      {"optPreventImmersion_2", "Deck", [](Bench& b) { b.instruments.back().limitation = 1; },
       false},
      {"optPreventImmersion_1", "Deck", [](Bench& b) { b.instruments.back().limitation = 1; },
       true},
  };
  data.tabOrder = {"optPreventIncrease_0", "optSkipEmpty_0", "optPreventImmersion_0"};
  data.accessible = AccessibleLimits();
  return data;
}

INSTANTIATE_TEST_SUITE_P(LimitPage, PageDrill, testing::Values(LimitPage()), PageDrillName);

TEST(LimitPage, ShowsEachOfTheEighteenCodesAndWritesItBack) {
  int code = 0;
  for (const auto& [immersion, increase, skip] : {std::array{0, 0, 0},
                                                  {0, 0, 1},
                                                  {0, 1, 0},
                                                  {0, 1, 1},
                                                  {0, 2, 0},
                                                  {0, 2, 1},
                                                  {1, 0, 0},
                                                  {1, 0, 1},
                                                  {2, 0, 0},
                                                  {2, 0, 1},
                                                  {1, 1, 0},
                                                  {1, 1, 1},
                                                  {2, 1, 0},
                                                  {2, 1, 1},
                                                  {1, 2, 0},
                                                  {1, 2, 1},
                                                  {2, 2, 0},
                                                  {2, 2, 1}}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().limitation = ++code;
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
    EXPECT_EQ(page.optPreventIncrease->selected(), increase) << code;
    EXPECT_EQ(page.optSkipEmpty->selected(), skip) << code;
    EXPECT_EQ(page.optPreventImmersion->selected(), immersion) << code;
    EXPECT_EQ(rig.k70().curLimit.WriteSdk(), "");
    EXPECT_EQ(rig.instrument().limitation, code);
  }
}

TEST(LimitPage, AnUnknownCodeDisablesAllGroupsAndIsNotWrittenBack) {
  for (const std::int32_t code : {0, 19}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().limitation = code;
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
    for (const OptionGroup* group : std::initializer_list<const OptionGroup*>{
             page.optPreventIncrease, page.optSkipEmpty, page.optPreventImmersion}) {
      EXPECT_EQ(group->selected(), -1) << code;
      EXPECT_FALSE(group->button(0)->isEnabled()) << code;
    }
    EXPECT_FALSE(rig.k70().curLimit.IsEnable());
    EXPECT_EQ(rig.k70().curLimit.WriteSdk(), "");
    EXPECT_EQ(rig.instrument().limitation, code);
  }
}

TEST(LimitPage, ASkipOfTwoFromASettingsFileSelectsNothing) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
  rig.k70().curLimit.curSkip = 2;
  page.LoadData();
  EXPECT_EQ(page.optSkipEmpty->selected(), -1);
  EXPECT_TRUE(page.frmSkip->isEnabled());
  EXPECT_EQ(rig.k70().curLimit.curSkip, 2);
}

TEST(LimitPage, AKnownRuleAmongUnknownOnesIsEnabledAlone) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
  rig.k70().curLimit.curIncrease = -1;
  rig.k70().curLimit.curImmersion = -1;
  page.LoadData();
  EXPECT_FALSE(page.frmIncrease->isEnabled());
  EXPECT_TRUE(page.frmSkip->isEnabled());
  EXPECT_FALSE(page.frmImmersion->isEnabled());
  rig.k70().curLimit.curIncrease = 1;
  page.LoadData();
  EXPECT_TRUE(page.frmIncrease->isEnabled());
  EXPECT_EQ(page.optPreventIncrease->selected(), 1);
}

TEST(LimitPage, StageDownReturnsWithAnotherController) {
  Bench bench = List({"Quay", "Deck", "Harbour"});
  bench.instruments[1].limitation = 1;
  PageRig rig(std::move(bench), Link::None);
  auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
  for (const bool withStageDown : {false, true}) {
    rig.k70().Connect(withStageDown ? 2 : 1);
    rig.k70().Receive();
    page.LoadData();
    EXPECT_EQ(page.optPreventIncrease->button(2)->isEnabled(), withStageDown);
    EXPECT_EQ(page.optPreventImmersion->button(2)->isEnabled(), withStageDown);
  }
}

TEST(LimitPage, ArrowsMoveInsideAGroupAndStore) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
  page.optPreventIncrease->button(0)->setFocus();
  QTest::keyClick(page.optPreventIncrease->button(0), Qt::Key_Right);
  EXPECT_EQ(rig.k70().curLimit.curIncrease, 1);
  EXPECT_TRUE(page.optPreventIncrease->button(1)->hasFocus());
}

// Where the first letter of a label stands, from the left edge of the page.
int TextStart(const QLabel& label, const QWidget& page) {
  const QString text = label.text();
  EXPECT_GE(label.contentsMargins().left(), 0) << "wrapped lines would begin outside";
  const int blank = text.startsWith(' ') ? label.fontMetrics().horizontalAdvance(' ') : 0;
  return label.mapTo(&page, QPoint(label.contentsMargins().left() + blank, 0)).x();
}

TEST(LimitPage, InALargeWindowTheRulesStayTogetherAndTheNotesStandAtTheBottom) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
  rig.window().resize(1000, 1200);
  QApplication::processEvents();
  for (const QWidget* rule :
       std::array<const QWidget*, 3>{page.frmIncrease, page.frmSkip, page.frmImmersion})
    EXPECT_EQ(rule->height(), rule->sizeHint().height()) << rule->objectName().toStdString();
  EXPECT_LT(page.FrameBase->height() - page.Label1->geometry().bottom(), 40);
  EXPECT_GT(page.Label2->y() - page.frmImmersion->geometry().bottom(), 200);
}

TEST(LimitPage, ExplanationsBeginAtOneEdgeWhateverTheirTextBeginsWith) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveLimitCtl(rig.k70()));
  EXPECT_EQ(TextStart(*page.Label8, page), TextStart(*page.Label9, page));
  EXPECT_EQ(TextStart(*page.Label10, page), TextStart(*page.Label9, page));
}

}  // namespace
}  // namespace mortane::test
