// Which frames and controls of the page of the other controls an instrument brings up.
#include <QApplication>

#include "gui/drives/OtherPage.h"
#include "gui/support/PageLayout.h"

namespace mortane::test {
namespace {

struct FrameRow {
  const char* bench;
  const char* frames;
};

TEST(OtherPageFrames, GoByWhatTheInstrumentHas) {
  for (const FrameRow& row :
       {FrameRow{"Quay", "kbs"}, FrameRow{"Harbour", "kbst"}, FrameRow{"Lantern", "kbs"},
        FrameRow{"Hub", "b"}, FrameRow{"Pair", "kbs"}, FrameRow{"Outpost", "k"},
        FrameRow{"Relay", "kbst"}, FrameRow{"Deck", "b"}, FrameRow{"DeckRemote", "rb"},
        FrameRow{"Watch", "bs"}, FrameRow{"Shell", ""}, FrameRow{"Hollow", "kbs"},
        FrameRow{"Attic", "kbst"}, FrameRow{"Crowd", "b"}}) {
    OtherRig rig(row.bench);
    EXPECT_EQ(FramesOf(rig.Show(MakeControlOtherCtl(rig.k70()))), row.frames) << row.bench;
  }
}

struct VersionRow {
  const char* version;
  bool changeable;
};

TEST(OtherPageFrames, AVersionBelowOneThreeCanChangeTheKnobsAndFromThenOnThereIsTheTactorFrame) {
  for (const VersionRow& row :
       {VersionRow{"V0.9", true}, VersionRow{"V1.2", true}, VersionRow{"V1.20", true},
        VersionRow{"V1.21", true}, VersionRow{"V1.29", true}, VersionRow{"V1.3", false},
        VersionRow{"V1.30", false}, VersionRow{"V1.30b", false}, VersionRow{"V1.31", false},
        VersionRow{"V2.0", false}, VersionRow{"vDEMO", true}, VersionRow{"", true}}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(1).version = row.version;
    OtherRig rig(std::move(bench));
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    for (OptionGroup* group : std::initializer_list<OptionGroup*>{page.optAuto, page.optXYAuto}) {
      for (const int option : {0, 1}) {
        EXPECT_EQ(group->button(option)->isEnabled(), row.changeable) << row.version;
      }
    }
    EXPECT_EQ(page.FrameTactorSwich->isVisible(), !row.changeable) << row.version;
  }
}

struct KnobRow {
  const char* bench;
  const char* shown;  // label, both options, check box, list of the focus knob; then of the stage's
};

std::string KnobControlsOf(const ControlOtherCtl& page) {
  std::string shown;
  for (const QWidget* control : std::initializer_list<const QWidget*>{
           page.lblFocusDrive, page.optAuto->button(0), page.optAuto->button(1),
           page.CheckFocusAuto, page.ComboFocus, page.lblXYStage, page.optXYAuto->button(0),
           page.optXYAuto->button(1), page.CheckStageAuto, page.ComboStage}) {
    shown += control->isHidden() ? '-' : 'x';
  }
  return shown;
}

// The focus knob's options stay where there is no focus knob; those of the stage go with the stage.
TEST(OtherPageFrames, TheKnobsControlsComeAndGoEachByItsOwnRule) {
  for (const KnobRow& row : {KnobRow{"Quay", "xxx--xxxxx"},     // focus automatic, stage manual
                             KnobRow{"Harbour", "xxx--xxxxx"},  // both manual
                             KnobRow{"Lantern", "xxx---xx--"},  // focus manual, stage sensed
                             KnobRow{"Pair", "-xx--xxxx-"},     // focus sensed, stage automatic
                             KnobRow{"Outpost", "xxx-------"},  // no stage
                             KnobRow{"Hub", "-xx-------"}, KnobRow{"Shell", "-xx-------"},
                             KnobRow{"Watch", "-xx---xx--"}}) {  // both sensed
    OtherRig rig(row.bench);
    EXPECT_EQ(KnobControlsOf(rig.Show(MakeControlOtherCtl(rig.k70()))), row.shown) << row.bench;
  }
}

// A row without controls would still be a group to a screen reader.
TEST(OtherPageFrames, TheRowOfTheStageKnobGoesWithTheStage) {
  for (const auto& [bench, hasStage] : {std::pair{"Hollow", false}, std::pair{"Outpost", false},
                                        std::pair{"Pair", true}, std::pair{"Watch", true}}) {
    OtherRig rig(bench);
    const auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    EXPECT_EQ(!page.Frame1->isHidden(), hasStage) << bench;
  }
}

TEST(OtherPageFrames, AKnobsOptionsSayOfWhichKnobTheyAreAlsoWithoutALabel) {
  for (const char* bench : {"Quay", "Lantern", "Pair", "Hub", "Watch"}) {
    OtherRig rig(bench);
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    for (const auto& [group, knob] :
         {std::pair<OptionGroup*, const char*>(page.optAuto, "Focus Knob"),
          std::pair<OptionGroup*, const char*>(page.optXYAuto, "Stage Knob")}) {
      EXPECT_EQ(group->button(0)->toolTip(), knob) << bench;
      EXPECT_EQ(group->button(0)->accessibleName(), QString(knob) + " Auto") << bench;
      EXPECT_EQ(group->button(1)->accessibleName(), QString(knob) + " Manual ( default )") << bench;
    }
  }
}

TEST(OtherPageFrames, AManualStageKnobOfUnknownSensitivityHasNoList) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  rig.k70().COther.curSensitivityXY = -1;
  page.LoadData();
  EXPECT_EQ(KnobControlsOf(page), "xxx--xxxx-");
}

TEST(OtherPageFrames, ASensitivityOfAnAutomaticOrUnknownStageKnobIsNotShown) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  for (const std::int32_t automatic : {1, -1, 2}) {
    rig.k70().COther.curAutoXY = automatic;
    rig.k70().COther.curSensitivityXY = 2;
    page.LoadData();
    EXPECT_TRUE(page.ComboStage->isHidden()) << automatic;
    EXPECT_EQ(page.ComboStage->index(), 1) << automatic;
  }
}

TEST(OtherPageFrames, AKnobThatIsUnknownHasNothingSelected) {
  OtherRig rig("Quay");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = -1;
  page.LoadData();
  EXPECT_EQ(page.optAuto->selected(), -1);
  EXPECT_EQ(page.optXYAuto->selected(), -1);
  EXPECT_FALSE(page.FrameManualHandle->isVisible());
  EXPECT_EQ(rig.k70().COther.curAutoZ, -1) << "clearing is no click";
  EXPECT_EQ(rig.k70().COther.curAutoXY, -1);
}

struct UnitRow {
  int unit;
  const char* frames;  // with every field known
};

TEST(OtherPageFrames, EachControllerBringsItsOwn) {
  for (const UnitRow& row : {UnitRow{0, "bs"}, UnitRow{1, "b"}, UnitRow{2, ""}, UnitRow{3, ""},
                             UnitRow{4, "b"}, UnitRow{5, "b"}, UnitRow{6, "r"}}) {
    Bench bench = benches::Named("Shell");
    bench.instruments.back().Unit(row.unit + 1) = {1, "V1.30"};
    OtherRig rig(std::move(bench));
    clsControlOther& other = rig.k70().COther;
    other.curBuzzer = other.curSwEnable = other.curTactorSwEnable = other.curR_TLPOSwEnable = 0;
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    EXPECT_EQ(FramesOf(page), row.frames) << row.unit;
  }
}

struct UnknownRow {
  std::int32_t clsControlOther::*field;
  const char* frames;
};

TEST(OtherPageFrames, AFrameOfAnUnknownValueIsHidden) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().Unit(7) = {1, "V1.00"};
  OtherRig rig(std::move(bench));
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  EXPECT_EQ(FramesOf(page), "krbst");
  for (const UnknownRow& row : {UnknownRow{&clsControlOther::curBuzzer, "krst"},
                                UnknownRow{&clsControlOther::curSwEnable, "krbt"},
                                UnknownRow{&clsControlOther::curTactorSwEnable, "krbs"},
                                UnknownRow{&clsControlOther::curR_TLPOSwEnable, "kbst"},
                                UnknownRow{&clsControlOther::curR_TLPOLED, "krbst"}}) {
    std::int32_t& field = rig.k70().COther.*row.field;
    const std::int32_t before = std::exchange(field, -1);
    page.LoadData();
    EXPECT_EQ(FramesOf(page), row.frames);
    field = before;
    page.LoadData();
    EXPECT_EQ(FramesOf(page), "krbst") << "it comes back";
  }
}

TEST(OtherPageFrames, TheFiberFrameIsThereWhileItsServerAnswers) {
  OtherRig rig("Shell");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  rig.k70().COther.curFiberSwEnable = 0;
  rig.k70().COther.curFiberLED = 1;
  for (const bool answers : {true, false, true}) {
    rig.k70().COther.curFiberStatus = answers;
    page.LoadData();
    EXPECT_EQ(FramesOf(page), answers ? "f" : "");
  }
}

// Everything of the page that a person can see.
std::string Picture(const ControlOtherCtl& page) {
  std::string text;
  for (const QWidget* child : page.findChildren<QWidget*>()) {
    if (child->objectName().isEmpty() || !child->isVisible()) continue;
    text += child->objectName().toStdString() + (child->isEnabled() ? "" : " disabled");
    if (const auto* button = qobject_cast<const QAbstractButton*>(child)) {
      if (button->isChecked()) text += " on";
    }
    if (const auto* combo = qobject_cast<const ComboBox*>(child)) {
      text += " " + combo->currentText().toStdString();
    }
    text += "; ";
  }
  return text;
}

void Load(OtherRig& rig, std::int32_t device, ControlOtherCtl& page) {
  rig.Read(device);
  page.LoadData();
  QApplication::processEvents();
}

TEST(OtherPageFrames, NothingIsLeftOfAFormerInstrument) {
  std::vector<std::string> names = benches::Names();
  names.pop_back();  // a list of devices
  Bench all;
  for (const std::string& name : names) all.instruments.push_back(benches::InstrumentNamed(name));
  const auto count = static_cast<std::int32_t>(names.size());
  std::vector<std::string> fresh;
  for (std::int32_t device = 0; device < count; ++device) {
    OtherRig rig(all);
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    Load(rig, device, page);
    fresh.push_back(Picture(page));
  }
  OtherRig rig(all);
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  for (std::int32_t former = 0; former < count; ++former) {
    for (std::int32_t device = 0; device < count; ++device) {
      Load(rig, former, page);
      Load(rig, device, page);
      EXPECT_EQ(Picture(page), fresh[static_cast<std::size_t>(device)])
          << names[static_cast<std::size_t>(device)] << " after "
          << names[static_cast<std::size_t>(former)];
    }
  }
}

QRect PlaceOf(const QWidget* widget, const ControlOtherCtl& page) {
  return {widget->mapTo(&page, QPoint(0, 0)), widget->size()};
}

TEST(OtherPageFrames, StandInTwoColumnsAndCloseUpInEach) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  const QRect knobs = PlaceOf(page.FrameManualHandle, page);
  const QRect buzzer = PlaceOf(page.FrameBuzzer, page);
  const QRect tactor = PlaceOf(page.FrameTactorSwich, page);
  EXPECT_EQ(buzzer.top(), knobs.top());
  EXPECT_GT(buzzer.left(), knobs.right());
  EXPECT_NEAR(knobs.width() / static_cast<double>(buzzer.width()), 1.5, 0.05);
  page.SwitchVisible(false);
  QApplication::processEvents();
  EXPECT_EQ(PlaceOf(page.FrameBuzzer, page), buzzer);
  EXPECT_LT(PlaceOf(page.FrameTactorSwich, page).top(), tactor.top());
}

TEST(OtherPageFrames, OfTheRightColumnTakeThePlaceOfALeftOneThatIsEmpty) {
  OtherRig rig("Harbour");
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  const QRect knobs = PlaceOf(page.FrameManualHandle, page);
  const QRect buzzer = PlaceOf(page.FrameBuzzer, page);
  const auto moved = [&] {
    QApplication::processEvents();
    const QRect place = PlaceOf(page.FrameBuzzer, page);
    EXPECT_EQ(place.size(), buzzer.size());
    EXPECT_TRUE(place == buzzer || place.topLeft() == knobs.topLeft());
    return place != buzzer;
  };
  page.ManualHandleVisible(false);
  EXPECT_TRUE(moved());
  page.R_TLPORemoteVisible(true);
  EXPECT_FALSE(moved());
  page.R_TLPORemoteVisible(false);
  EXPECT_TRUE(moved());
  page.LoadData();
  EXPECT_FALSE(moved());
  rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = -1;
  page.LoadData();
  EXPECT_TRUE(moved());
  rig.k70().COther.curFiberStatus = true;
  rig.k70().COther.curFiberSwEnable = rig.k70().COther.curFiberLED = 0;
  page.LoadData();
  EXPECT_FALSE(moved());
}

TEST(OtherPageFrames, OptionsBeginAtOnePlaceInTheLeftColumn) {
  OtherRig rig("Quay");
  clsControlOther& other = rig.k70().COther;
  other.curFiberStatus = true;
  other.curFiberSwEnable = other.curFiberLED = 1;
  auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
  const auto start = [&page](const OptionGroup* group) {
    return group->button(0)->mapTo(&page, QPoint(0, 0)).x();
  };
  for (const OptionGroup* group : std::initializer_list<const OptionGroup*>{
           page.optXYAuto, page.optFiber_LED, page.optFiber_Switch}) {
    EXPECT_EQ(start(group), start(page.optAuto));
  }
  other.curAutoZ = -1;
  page.LoadData();
  QApplication::processEvents();
  EXPECT_FALSE(page.lblFocusDrive->isVisible());
  EXPECT_EQ(start(page.optAuto), start(page.optXYAuto)) << "the label's place stays";
}

// The columns stand side by side, or one below the other where both do not fit.
TEST(OtherPageFrames, TheColumnsStackWhereTheWidthIsShort) {
  for (const char* bench : {"Quay", "DeckRemote"}) {
    OtherRig rig(bench);
    auto& page = rig.Show(MakeControlOtherCtl(rig.k70()));
    const QWidget& left = *page.FrameManualHandle->parentWidget();
    const QWidget& right = *page.FrameBuzzer->parentWidget();
    rig.window().resize(1000, 900);
    ComeToRest();
    EXPECT_EQ(left.y(), right.y()) << bench;
    const int both = page.minimumSizeHint().width();
    rig.window().resize(both + 40, 900);
    ComeToRest();
    EXPECT_EQ(left.x(), right.x()) << bench;
    EXPECT_EQ(left.width(), right.width()) << bench;
    EXPECT_LT(left.y(), right.y()) << bench;
    EXPECT_EQ(LayoutFaults(page), std::vector<std::string>{}) << bench;
    rig.window().resize(1000, 900);
    ComeToRest();
    EXPECT_EQ(left.y(), right.y()) << bench;
    EXPECT_EQ(LayoutFaults(page), std::vector<std::string>{}) << bench;
  }
}

}  // namespace
}  // namespace mortane::test
