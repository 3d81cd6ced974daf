// Which tabs the page of the drives and controls has, and which one opens first.
#include "app/SwitchTabs.h"
#include "gui/app/ControlPages.h"

namespace mortane::test {
namespace {

struct BenchRow {
  const char* bench;
  const char* withJoystick;
  const char* without;
};

TEST(ControlTabs, GoByWhatTheInstrumentHas) {
  for (const BenchRow& row :
       {BenchRow{"Quay", "012345:1", "01234:1"}, BenchRow{"Harbour", "012345:1", "01234:1"},
        BenchRow{"Lantern", "025:2", "02:2"}, BenchRow{"Hub", "245:2", "24:2"},
        BenchRow{"Pair", "1235:1", "123:1"}, BenchRow{"Outpost", "025:2", "02:2"},
        BenchRow{"Relay", "2345:2", "234:2"}, BenchRow{"Deck", "25:2", "2:2"},
        BenchRow{"DeckRemote", "25:2", "2:2"}, BenchRow{"Watch", "235:2", "23:2"},
        BenchRow{"Shell", "5:5", ":0"}, BenchRow{"Hollow", "0235:2", "023:2"},
        BenchRow{"Attic", "012345:1", "01234:1"}, BenchRow{"Crowd", "245:2", "24:2"}}) {
    for (const bool plugged : {true, false}) {
      ControlRig rig(row.bench);
      if (!plugged) rig.joystick.Fail(kJoystickUnplugged);
      EXPECT_EQ(TabsOf(rig.ShowPage()), plugged ? row.withJoystick : row.without) << row.bench;
    }
  }
}

struct VersionRow {
  const char* body;  // none where it is empty
  const char* hub;
  bool k70;
  bool tactor;
};

// With a hand controller, and with a body where a version of it is given.
TEST(ControlTabs, TheSwitchesGoByTheVersionOfTheBodyOrElseOfTheHub) {
  for (const VersionRow& row :
       {VersionRow{"V1.3", "", true, true}, VersionRow{"V1.30", "", true, true},
        VersionRow{"V1.30b", "", true, true}, VersionRow{"V2.0", "", true, true},
        VersionRow{"vDEMO", "", true, true}, VersionRow{"V1.29", "V1.30", false, false},
        VersionRow{"V1.2", "vDEMO", false, false}, VersionRow{"V0.9", "", false, false},
        VersionRow{"?", "V1.30", false, false}, VersionRow{"", "V1.3", false, true},
        VersionRow{"", "V1.30", false, true}, VersionRow{"", "vDEMO", false, true},
        VersionRow{"", "V1.29", false, false}, VersionRow{"", "V1.20", false, false},
        VersionRow{"", "", false, false}}) {
    for (const bool handController : {true, false}) {
      Bench bench = benches::Named("Shell");
      Instrument& instrument = bench.instruments.back();
      if (*row.body != '\0') instrument.Unit(1) = {1, row.body};
      if (*row.hub != '\0') instrument.Unit(2) = {1, row.hub};
      if (handController) instrument.Unit(5) = {1, "V1.00"};
      ControlRig rig(std::move(bench));
      const SwitchTabs tabs = FindSwitchTabs(rig.k70());
      EXPECT_EQ(tabs.k70, row.k70) << row.body << '|' << row.hub;
      EXPECT_EQ(tabs.tactor, row.tactor && handController) << row.body << '|' << row.hub;
    }
  }
}

TEST(ControlTabs, TheHubIsAskedOnlyWhereThereIsNoBody) {
  ControlRig body("Quay");
  FindSwitchTabs(body.k70());
  EXPECT_EQ(body.journal.Lines(), Lines{"ControllerVersion(1) -> \"vDEMO\""});
  ControlRig hub("Hub");
  FindSwitchTabs(hub.k70());
  EXPECT_EQ(hub.journal.Lines(), Lines{"ControllerVersion(2) -> \"V1.30\""});
}

TEST(ControlTabs, AVersionThatCannotBeReadIsNone) {
  ControlRig quay("Quay");
  quay.faults.Add({"ControllerVersion(1)"});
  EXPECT_FALSE(FindSwitchTabs(quay.k70()).k70);
  EXPECT_TRUE(FindSwitchTabs(quay.k70()).tactor) << "the hub decides";
  quay.faults.Add({"ControllerVersion(2)"});
  EXPECT_EQ(TabsOf(quay.ShowPage()), "0125:1");
  EXPECT_TRUE(quay.prompts.Boxes().empty());
}

struct JoystickRow {
  std::int32_t result;
  bool tab;
};

TEST(ControlTabs, TheJoypadsIsThereWhileAJoystickAnswers) {
  ControlRig rig("Harbour");
  ControlSettingsCtl& page = rig.ShowPage();
  for (const JoystickRow& row :
       {JoystickRow{kJoystickUnplugged, false}, JoystickRow{kJoystickOk, true},
        JoystickRow{kJoystickNoDriver, false}, JoystickRow{kJoystickBadParameters, false},
        JoystickRow{1, false}, JoystickRow{-1, true}, JoystickRow{kJoystickOk, true}}) {
    rig.joystick.status = row.result;
    const int asked = rig.joystick.statusCalls;
    page.LoadData();
    EXPECT_EQ(rig.joystick.statusCalls, asked + 1);
    EXPECT_EQ(TabsOf(page), row.tab ? "012345:1" : "01234:1") << row.result;
  }
}

TEST(ControlTabs, AreAllHiddenWithNothingToShowAndTheFirstIsSelectedAllTheSame) {
  ControlRig rig("Shell");
  rig.joystick.Fail(kJoystickUnplugged);
  ControlSettingsCtl& page = rig.ShowPage();
  EXPECT_EQ(TabsOf(page), ":0");
  EXPECT_EQ(rig.Shown(), "ControlFocusDriveCtl1");
}

TEST(ControlTabs, WithTheFocusDriveAloneItsTabOpens) {
  ControlRig rig("Outpost");
  rig.joystick.Fail(kJoystickUnplugged);
  rig.k70().COther.curAutoZ = -1;
  EXPECT_EQ(TabsOf(rig.ShowPage()), "0:0");
}

TEST(ControlTabs, NothingIsLeftOfAFormerInstrument) {
  std::vector<std::string> names = benches::Names();
  names.pop_back();  // a list of devices
  Bench all;
  for (const std::string& name : names) all.instruments.push_back(benches::InstrumentNamed(name));
  const auto count = static_cast<std::int32_t>(names.size());
  Lines fresh;
  for (std::int32_t device = 0; device < count; ++device) {
    ControlRig rig(all);
    rig.Read(device);
    const std::string tabs = TabsOf(rig.ShowPage());
    fresh.push_back(tabs + rig.Shown());
  }
  ControlRig rig(all);
  ControlSettingsCtl& page = rig.ShowPage();
  for (std::int32_t former = 0; former < count; ++former) {
    for (std::int32_t device = 0; device < count; ++device) {
      for (const std::int32_t connected : {former, device}) {
        rig.Read(connected);
        page.LoadData();
      }
      EXPECT_EQ(TabsOf(page) + rig.Shown(), fresh[static_cast<std::size_t>(device)])
          << names[static_cast<std::size_t>(device)] << " after "
          << names[static_cast<std::size_t>(former)];
    }
  }
}

}  // namespace
}  // namespace mortane::test
