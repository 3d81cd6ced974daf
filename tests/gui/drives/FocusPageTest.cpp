// The focus drive page: what loading shows and hides, and what it does to the model.
#include <QApplication>
#include <QLabel>
#include <QRadioButton>

#include "gui/drives/DrivePages.h"
#include "gui/support/FontScope.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

const Lines kMoveStart{"NosepieceDevice.BeginZPositioning()", "ZDriveDevice.MoveProfile = 9",
                       "ZDriveDevice.MoveOption = 0"};

TEST(FocusPage, TheFirstLoadingPreparesTheDriveTwiceAndTheNextOnce) {
  PageRig rig(Standing(benches::Named("Harbour")));
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  const Lines version{"ControllerVersion(1) -> \"V1.31\""};
  EXPECT_EQ(rig.journal.Lines(), kMoveStart + kMoveStart + version);
  rig.journal.Clear();
  page.LoadData();
  EXPECT_EQ(rig.journal.Lines(), kMoveStart + version);
}

struct PreparedRow {
  const char* bench;
  bool prepared;
};

TEST(FocusPage, PreparesTheDriveWhereTheNosepieceTurnsAndADriveIsAtLeastSensed) {
  for (const PreparedRow& row :
       {PreparedRow{"Quay", true}, PreparedRow{"Harbour", true}, PreparedRow{"Lantern", true},
        PreparedRow{"Pair", true}, PreparedRow{"Attic", true}, PreparedRow{"Hub", false},
        PreparedRow{"Outpost", false}, PreparedRow{"Relay", false}, PreparedRow{"Deck", false},
        PreparedRow{"Watch", false}, PreparedRow{"Shell", false}, PreparedRow{"Hollow", false}}) {
    PageRig rig(row.bench, Link::Reported);
    rig.prompts.AcceptAnyBox();
    auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
    EXPECT_EQ(page.CheckRealMove->isChecked(), row.prepared) << row.bench;
    const bool begun = !rig.journal.Lines().empty() &&
                       rig.journal.Lines().front() == "NosepieceDevice.BeginZPositioning()";
    EXPECT_EQ(begun, row.prepared) << row.bench;
  }
}

TEST(FocusPage, ADriveThatIsOnlySensedAnswersEachPreparingWithABox) {
  PageRig rig("Pair");
  rig.prompts.ExpectBox("MoveStart Error!!", box::kCritical);
  rig.prompts.ExpectBox("MoveStart Error!!", box::kCritical);
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  rig.prompts.ExpectBox("MoveStart Error!!", box::kCritical);
  page.LoadData();
}

TEST(FocusPage, AnotherMicroscopeWithoutADriveLeavesTheTick) {
  PageRig rig(List({"Quay", "Hub", "Harbour"}));
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_TRUE(page.CheckRealMove->isChecked());
}

TEST(FocusPage, TheTeachingSectionIsHiddenOnEveryInstrumentAndByEachLoading) {
  for (const std::string& name : benches::Names()) {
    PageRig rig(name, Link::Reported);
    rig.prompts.AcceptAnyBox();
    auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
    EXPECT_FALSE(page.FrameZNose->isVisible()) << name;
    page.FrameZNose->show();
    page.LoadData();
    EXPECT_FALSE(page.FrameZNose->isVisible()) << name;
  }
}

TEST(FocusPage, NoKeyReachesTheHiddenSection) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  const std::vector<std::string> stops = rig.TabOrder();
  ASSERT_GE(stops.size(), 3U);
  for (const std::string& name : stops) {
    EXPECT_FALSE(page.FrameZNose->isAncestorOf(&rig.Find(name))) << name;
  }
}

TEST(FocusPage, TheUpperLimitIsShownWhereTheNosepieceTurns) {
  for (const PreparedRow& row :
       {PreparedRow{"Harbour", true}, PreparedRow{"Pair", true}, PreparedRow{"Deck", true},
        PreparedRow{"Outpost", false}, PreparedRow{"Hub", false}, PreparedRow{"Hollow", false}}) {
    PageRig rig(row.bench, Link::Reported);
    rig.prompts.AcceptAnyBox();
    auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
    EXPECT_EQ(page.FrameUpperLimitation->isVisible(), row.prepared) << row.bench;
  }
}

TEST(FocusPage, WhatItsFramesHoldStandsAtTheirTopWithoutGaps) {
  for (const double size : {1.0, 1.5, 2.0}) {
    const FontScope font(FontOf(QApplication::font().pointSizeF() * size));
    FocusRig rig("Lantern");
    for (const OptionGroup* group : std::initializer_list<const OptionGroup*>{
             rig.page.optUpperLimitation, rig.page.optDownLimitation}) {
      const QRect first = group->button(0)->geometry();
      const QRect second = group->button(1)->geometry();
      EXPECT_LE(second.top() - first.bottom(), grid::kBetweenGroups);
    }
  }
}

TEST(FocusPage, RowsOfNeighbouringFramesStandOnOneLine) {
  for (const double size : {0.8, 1.0, 1.5, 2.0}) {
    const FontScope font(FontOf(QApplication::font().pointSizeF() * size));
    FocusRig rig("Lantern");
    const auto line = [&](const QWidget* control) {
      return control->mapTo(&rig.page, control->rect().center()).y();
    };
    for (int row = 0; row < 2; ++row) {
      const int escape = line(rig.page.chkEscape[static_cast<std::size_t>(row)]);
      EXPECT_NEAR(line(rig.page.lblEscape[static_cast<std::size_t>(row)]), escape, 1);
      EXPECT_EQ(line(rig.page.optUpperLimitation->button(row)), escape) << size << row;
      EXPECT_EQ(line(rig.page.optDownLimitation->button(row)), escape) << size << row;
    }
  }
}

TEST(FocusPage, ItsCardIsAsTallAsWhatItHolds) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  rig.window().resize(1048, 900);
  QApplication::processEvents();
  EXPECT_EQ(page.FrameBase->y(), 0);
  EXPECT_EQ(page.FrameBase->width(), page.width());
  EXPECT_EQ(page.FrameBase->height(), page.FrameBase->sizeHint().height());
  EXPECT_LT(page.FrameBase->height(), page.height() / 2);
}

TEST(FocusPage, TheTwoPartsOfTheTeachingSectionAreEquallyWide) {
  FocusRig rig;
  EXPECT_NEAR(rig.page.FrameNosepiece->width(), rig.page.FrameZControl->width(), 1);
}

TEST(FocusPage, TheUpperLimitIsThePagesOwn) {
  FocusRig rig;
  EXPECT_EQ(rig.page.optUpperLimitation->selected(), -1);
  ClickButton(*rig.page.optUpperLimitation->button(1));
  EXPECT_EQ(rig.drive().curUpperLimit, 1);
  ClickButton(*rig.page.optUpperLimitation->button(0));
  EXPECT_EQ(rig.drive().curUpperLimit, 0);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.drive().curUpperLimit = 1;
  rig.page.LoadData();
  EXPECT_EQ(rig.page.optUpperLimitation->selected(), 0);
}

TEST(FocusPage, ALoadingShowsTheFramesOfWhatTheMicroscopeHas) {
  FocusRig limits("Lantern");
  limits.page.FrameDownLimitation->hide();
  limits.page.LoadData();
  EXPECT_TRUE(limits.page.FrameDownLimitation->isVisible());
  FocusRig escape;
  escape.page.frmEscapeSetting->hide();
  escape.page.LoadData();
  EXPECT_TRUE(escape.page.frmEscapeSetting->isVisible());
}

TEST(FocusPage, TheLowerLimitIsEnabledAgainByAMicroscopeThatHasIt) {
  PageRig rig(List({"Quay", "Outpost", "Harbour"}));
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  ASSERT_FALSE(page.FrameDownLimitation->isEnabled());
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_TRUE(page.optDownLimitation->button(0)->isEnabled());
  EXPECT_TRUE(page.optDownLimitation->button(1)->isEnabled());
  EXPECT_EQ(page.optDownLimitation->selected(), 0);
}

TEST(FocusPage, AClickOnTheOtherLowerLimitReachesTheUnit) {
  FocusRig rig("Lantern");
  ASSERT_EQ(rig.page.optDownLimitation->selected(), 1);
  ClickButton(*rig.page.optDownLimitation->button(0));
  EXPECT_EQ(rig.drive().curLowerLimit, 0);
  ClickButton(*rig.page.optDownLimitation->button(1));
  EXPECT_EQ(rig.drive().curLowerLimit, 1);
}

struct VersionRow {
  const char* version;
  bool knowsEscape;
};

// The focus drive's escape of a body below 1.3 is on, whatever the unit held.
TEST(FocusPage, AVersionOfExactly13ShowsTheEscapeSettings) {
  for (const VersionRow& row :
       {VersionRow{"V1.1", false}, VersionRow{"V1.2", false}, VersionRow{"V1.21", false},
        VersionRow{"V1.3", true}, VersionRow{"V1.30", true}, VersionRow{"V1.10", false},
        VersionRow{"V2", true}, VersionRow{"vDEMO", false}, VersionRow{"", false},
        VersionRow{"1.3", true}, VersionRow{"V1,3", false}}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(1).version = row.version;
    bench.instruments.back().escapeMode = 0;
    FocusRig rig(std::move(bench));
    EXPECT_EQ(rig.page.frmEscapeSetting->isEnabled(), row.knowsEscape) << row.version;
    EXPECT_EQ(rig.page.chkEscape[0]->isChecked(), !row.knowsEscape) << row.version;
    EXPECT_EQ(rig.drive().SetEscape(0), row.knowsEscape ? 0 : 1) << row.version;
    EXPECT_EQ(rig.drive().SetEscape(1), 0) << row.version;
  }
}

// What the model holds is shown, disabled.
TEST(FocusPage, AVersionThatCannotBeReadDisablesTheEscapeAndStoresNothing) {
  for (const std::int16_t flag : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    FocusRig rig;
    rig.drive().SetEscape(0, flag);
    rig.drive().SetEscape(1, flag);
    rig.faults.Add({"ControllerVersion(1)"});
    rig.page.LoadData();
    EXPECT_FALSE(rig.page.frmEscapeSetting->isEnabled());
    for (std::size_t axis = 0; axis < 2; ++axis) {
      EXPECT_FALSE(rig.page.chkEscape[axis]->isEnabled());
      EXPECT_EQ(rig.page.chkEscape[axis]->text(), flag == 1 ? "ON" : "OFF");
      EXPECT_EQ(rig.page.chkEscape[axis]->isUnknown(), flag == 2);
    }
    EXPECT_EQ(rig.drive().SetEscape(0), flag);
    EXPECT_EQ(rig.drive().SetEscape(1), flag);
    EXPECT_TRUE(rig.prompts.Boxes().empty());
  }
}

struct LinkRow {
  Link link;
  const char* caption;
  std::int16_t escape;
};

// A microscope without a body has told that it knows no escape; without a connection nobody has.
TEST(FocusPage, WithoutABodyTheEscapeIsOnAndWithoutAConnectionItStays) {
  for (const LinkRow& row : {LinkRow{Link::None, "OFF", 0}, LinkRow{Link::Reported, "ON", 1}}) {
    PageRig rig("Outpost", row.link);
    rig.k70().CZDrive.SetEscape(0, 0);
    auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
    EXPECT_FALSE(page.frmEscapeSetting->isEnabled());
    EXPECT_EQ(page.chkEscape[0]->text(), row.caption);
    EXPECT_EQ(rig.k70().CZDrive.SetEscape(0), row.escape);
  }
}

// After a loading that set the escape on, of a body that does not know it.
TEST(FocusPage, ABodyThatIsLostKeepsTheEscapeOfTheModel) {
  FocusRig rig("Lantern");
  ASSERT_EQ(rig.page.chkEscape[0]->text(), "ON");
  rig.drive().SetEscape(0, 0);
  rig.faults.Add({"ControllerVersion(1)"});
  rig.page.LoadData();
  EXPECT_EQ(rig.page.chkEscape[0]->text(), "OFF");
  EXPECT_EQ(rig.drive().SetEscape(0), 0);
}

// The page shows it on from the loading before, and what it shows is what is sent.
TEST(FocusPage, EachLoadingTurnsTheEscapeOnForABodyThatDoesNotKnowIt) {
  FocusRig rig("Lantern");
  for (const std::int16_t flag : {std::int16_t{0}, std::int16_t{2}}) {
    rig.drive().SetEscape(0, flag);
    rig.page.LoadData();
    EXPECT_EQ(rig.page.chkEscape[0]->text(), "ON") << flag;
    EXPECT_EQ(rig.drive().SetEscape(0), 1) << flag;
  }
}

TEST(FocusPage, TheEscapeIsEnabledAgainByABodyThatKnowsIt) {
  PageRig rig(List({"Quay", "Harbour", "Lantern"}));
  auto& page = rig.Show(MakeControlFocusDriveCtl(rig.k70()));
  ASSERT_FALSE(page.frmEscapeSetting->isEnabled());
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  for (std::size_t axis = 0; axis < 2; ++axis) {
    EXPECT_TRUE(page.chkEscape[axis]->isEnabled());
    EXPECT_TRUE(page.lblEscape[axis]->isEnabled());
  }
}

TEST(FocusPage, WithoutAStageItsEscapeKeepsWhatItShows) {
  FocusRig rig("Hollow");
  rig.drive().SetEscape(1, 1);
  rig.page.LoadData();
  EXPECT_FALSE(rig.page.chkEscape[1]->isChecked());
  EXPECT_EQ(rig.drive().SetEscape(1), 1);
}

TEST(FocusPage, AnUnknownEscapeIsAThirdStateThatIsNotSent) {
  FocusRig rig("Attic");
  for (std::size_t axis = 0; axis < 2; ++axis) {
    EXPECT_TRUE(rig.page.chkEscape[axis]->isUnknown());
    EXPECT_EQ(rig.page.chkEscape[axis]->text(), "OFF");
    EXPECT_EQ(rig.drive().SetEscape(static_cast<std::int32_t>(axis)), 2);
  }
  rig.drive().WriteSdk();
  ASSERT_GT(rig.journal.CallCount(), 0U);
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("EscapeMode ="), std::string::npos) << line;
  }
}

TEST(FocusPage, AClickMakesAnUnknownEscapeKnown) {
  FocusRig rig("Attic");
  ClickButton(*rig.page.chkEscape[0]);
  EXPECT_FALSE(rig.page.chkEscape[0]->isUnknown());
  EXPECT_EQ(rig.drive().SetEscape(0), rig.page.chkEscape[0]->isChecked() ? 1 : 0);
  EXPECT_EQ(rig.drive().SetEscape(1), 2);
}

TEST(FocusPage, AnEscapeThatWasOnAndBecomesUnknownStaysUnknownInTheUnit) {
  FocusRig rig;
  ASSERT_TRUE(rig.page.chkEscape[0]->isChecked());
  rig.drive().SetEscape(0, 2);
  rig.drive().SetEscape(1, 2);
  rig.page.LoadData();
  EXPECT_TRUE(rig.page.chkEscape[0]->isUnknown());
  EXPECT_EQ(rig.drive().SetEscape(0), 2);
  EXPECT_EQ(rig.drive().SetEscape(1), 2);
  rig.drive().SetEscape(0, 0);
  rig.page.LoadData();
  EXPECT_FALSE(rig.page.chkEscape[0]->isUnknown());
  EXPECT_EQ(rig.drive().SetEscape(0), 0);
}

}  // namespace
}  // namespace mortane::test
