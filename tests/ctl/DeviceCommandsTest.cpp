// devices, receive and compare: which microscope, its exclusive use, what is read from it.
#include <algorithm>

#include "CtlRig.h"
#include "controller/simulator/BenchFile.h"

namespace mortane::test {
namespace {

TEST(Devices, ListsEveryEntryWithItsUse) {
  CtlRig rig("Crowd");
  NamedMutex held;
  held.Open("MortaneConnection-31");  // device 1
  EXPECT_EQ(rig.Run({"devices"}), Outcome::Done);
  const std::string out = rig.Out();
  EXPECT_TRUE(out.starts_with("0  ")) << out;
  EXPECT_NE(out.find("used by another program\n"), std::string::npos) << out;
  EXPECT_NE(out.find("not available\n"), std::string::npos) << out;
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 5);
  EXPECT_EQ(rig.Err(), "");
}

TEST(Devices, LeavesNoMicroscopeInUse) {
  CtlRig rig("Crowd");
  rig.Run({"devices"});
  NamedMutex name;
  EXPECT_EQ(name.Open("MortaneConnection-31"), NamedMutex::Opened::First);
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Devices, AsJson) {
  CtlRig rig("Harbour");
  EXPECT_EQ(rig.Run({"devices", "--json"}), Outcome::Done);
  EXPECT_EQ(rig.Out(),
            "{\"devices\":[{\"index\":0,\"name\":\"Lab 2 East\",\"use\":\"free\"},"
            "{\"index\":1,\"name\":\"Harbour\",\"use\":\"free\"}]}\n");
}

TEST(Receive, WritesWhatTheWindowsWouldSave) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  EXPECT_EQ(rig.Out(), "");
  EXPECT_EQ(rig.Err(), "");
  Rig window("Harbour");
  window.ConnectAndReceive();
  EXPECT_TRUE(window.k70.WriteXML(rig.folder.Path("b.xml")));
  EXPECT_EQ(TempFolder::Read(path), TempFolder::Read(rig.folder.Path("b.xml")));
}

TEST(Receive, ADashIsTheStandardOutput) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  EXPECT_EQ(rig.Run({"receive", "-o", "-"}), Outcome::Done);
  EXPECT_EQ(rig.Out(), TempFolder::Read(path));
}

TEST(Receive, WritesNothingWhenAPartCannotBeRead) {
  CtlRig rig("Harbour");
  const std::string path = rig.folder.Write("a.xml", "old");
  rig.faults.Add({"NosepieceDevice.Positions(2).Code"});
  EXPECT_EQ(rig.Run({"receive", "-o", path}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("1 part of \"Harbour\" could not be read"), std::string::npos)
      << rig.Err();
  EXPECT_EQ(TempFolder::Read(path), "old");
  EXPECT_EQ(rig.Run({"receive", "-o", path, "--partial"}), Outcome::Done);
  EXPECT_TRUE(TempFolder::Read(path).starts_with("<Setup>"));
  EXPECT_EQ(rig.ErrLines(), 1) << rig.Err();
}

TEST(Receive, AnOutputThatCannotBeWrittenIsNamed) {
  CtlRig rig("Harbour");
  const std::string path = rig.folder.Path("missing/a.xml");
  EXPECT_EQ(rig.Run({"receive", "-o", path}), Outcome::Failed);
  EXPECT_NE(rig.Err().find(path), std::string::npos) << rig.Err();
}

struct ChoiceCase {
  const char* bench;
  std::vector<std::string> options;
  std::string says;  // empty when the choice is good
};

class Choices : public testing::TestWithParam<ChoiceCase> {};

TEST_P(Choices, NameOneMicroscopeOrSayWhatToDo) {
  CtlRig rig(GetParam().bench);
  std::vector<std::string> arguments{"receive", "-o", rig.folder.Path("a.xml")};
  arguments.insert(arguments.end(), GetParam().options.begin(), GetParam().options.end());
  const bool good = GetParam().says.empty();
  EXPECT_EQ(rig.Run(arguments), good ? Outcome::Done : Outcome::Failed) << rig.Err();
  EXPECT_NE(rig.Err().find(GetParam().says), std::string::npos) << rig.Err();
  EXPECT_EQ(rig.Out(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Choices,
    testing::Values(
        ChoiceCase{"Harbour", {}, ""}, ChoiceCase{"Harbour", {"--sim"}, ""},
        ChoiceCase{"Harbour", {"--device", "Harbour"}, ""},
        ChoiceCase{"Harbour", {"--device", "1"}, ""}, ChoiceCase{"Harbour", {"--device", "0"}, ""},
        ChoiceCase{"Harbour",
                   {"--device", "harbour"},
                   "no device is called \"harbour\"; \"mortanectl devices\" lists them"},
        ChoiceCase{"Harbour", {"--device", "2"}, "no device is called \"2\""},
        ChoiceCase{"Harbour", {"--device", "a\nb"}, "no device is called \"a\\nb\""},
        ChoiceCase{"Quay", {}, "no microscope is connected (--sim"},
        ChoiceCase{"Quay", {"--sim"}, ""},
        ChoiceCase{"Crowd", {}, "several microscopes are connected, choose one with --device: 1 "},
        ChoiceCase{"Crowd", {"--device", "1"}, ""}));

TEST(Choices, OfTwoDevicesWithOneNameTheIndexDecides) {
  Bench bench = List({"Quay", "Harbour", "Harbour"});
  CtlRig rig(std::move(bench));
  EXPECT_EQ(rig.Run({"receive", "-o", "-", "--device", "Harbour"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("choose one by its index with --device: 1; 2"), std::string::npos)
      << rig.Err();
  EXPECT_EQ(rig.Run({"receive", "-o", "-", "--device", "2"}), Outcome::Done);
}

TEST(Choices, ADeviceThatIsNotAvailableIsRefused) {
  Bench bench = benches::Named("Harbour");
  bench.instruments[1].available = 0;
  CtlRig rig(std::move(bench));
  EXPECT_EQ(rig.Run({"receive", "-o", "-"}), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: \"Harbour\" is not available\n");
}

TEST(ExclusiveUse, AHeldDeviceIsRefusedAtOnceAndNothingIsAskedOfIt) {
  CtlRig rig("Harbour");
  NamedMutex held;
  held.Open("MortaneConnection-31");
  EXPECT_EQ(rig.Run({"receive", "-o", "-"}), Outcome::Failed);
  EXPECT_EQ(rig.Err(),
            "mortanectl: \"Harbour\" is used by another program (--wait SECONDS waits for it)\n");
  EXPECT_EQ(rig.sleptMs, 0);
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Connect"), std::string::npos) << line;
  }
}

TEST(ExclusiveUse, IsWaitedFor) {
  CtlRig rig("Harbour");
  NamedMutex held;
  held.Open("MortaneConnection-31");
  rig.onSleep = [&] {
    if (rig.sleptMs >= 3000) held.Close();
  };
  EXPECT_EQ(rig.Run({"receive", "-o", "-", "--wait", "10"}), Outcome::Done) << rig.Err();
  EXPECT_EQ(rig.sleptMs, 3000);
}

TEST(ExclusiveUse, IsWaitedForNoLongerThanAsked) {
  CtlRig rig("Harbour");
  NamedMutex held;
  held.Open("MortaneConnection-31");
  EXPECT_EQ(rig.Run({"receive", "-o", "-", "--wait", "2"}), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: \"Harbour\" is used by another program\n");
  EXPECT_EQ(rig.sleptMs, 2000);
}

TEST(ExclusiveUse, TheWaitEndsWhenThePersonAsks) {
  CtlRig rig("Harbour");
  NamedMutex held;
  held.Open("MortaneConnection-31");
  rig.endAsked = [&] { return rig.sleptMs >= 400; };
  EXPECT_EQ(rig.Run({"receive", "-o", "-", "--wait", "10"}), Outcome::Failed);
  EXPECT_EQ(rig.sleptMs, 400);
}

TEST(ExclusiveUse, EndsWithTheCommand) {
  CtlRig rig("Harbour");
  rig.Received("a.xml");
  NamedMutex name;
  EXPECT_EQ(name.Open("MortaneConnection-31"), NamedMutex::Opened::First);
}

TEST(Compare, IsSameRightAfterAReceive) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  rig.journal.Clear();
  EXPECT_EQ(rig.Run({"compare", path}), Outcome::Done);
  EXPECT_EQ(rig.Out(), "Harbour → " + path + ": 0 changes\n");
  EXPECT_TRUE(rig.Written().empty());
}

// But for those whose controllers hold what no settings file can say.
TEST(Compare, IsSameOnEveryBenchThatCanBeRead) {
  for (const std::string& name : benches::Names()) {
    if (name == "Crowd" || name == "Quay") continue;
    CtlRig rig(name);
    const std::string path = rig.folder.Path("a.xml");
    if (rig.Run({"receive", "-o", path}) != Outcome::Done) {
      EXPECT_EQ(name, "Attic");
      continue;
    }
    const Outcome outcome = rig.Run({"compare", path});
    EXPECT_EQ(rig.Out().find("Not known"), std::string::npos) << rig.Out();
    const bool same = name != "DeckRemote" && name != "Pair";
    EXPECT_EQ(outcome, same ? Outcome::Done : Outcome::Different) << rig.Out();
  }
}

TEST(Compare, ShowsOldAndNewInWords) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  rig.instrument().name = "Bay 7";
  EXPECT_EQ(rig.Run({"compare", path}), Outcome::Different);
  EXPECT_EQ(rig.Out(), "Bay 7 → " + path + ": 1 change\n  System Name: Bay 7 → Harbour\n");
}

TEST(Compare, LeavesOutSectionsThatAreNotNamed) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  rig.instrument().name = "Bay 7";
  EXPECT_EQ(rig.Run({"compare", path, "--sections", "nosepiece,Filter"}), Outcome::Done);
  EXPECT_EQ(rig.Run({"compare", path, "--sections", "system"}), Outcome::Different);
  EXPECT_EQ(rig.Run({"compare", path, "--sections", "Lamps"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("no section is called \"Lamps\"; the sections are SYSTEM, NOSEPIECE"),
            std::string::npos)
      << rig.Err();
}

TEST(Compare, ListsWhatTheMicroscopeHasNotAndWhatWasRefused) {
  CtlRig harbour("Harbour");
  const std::string path = harbour.Received("a.xml");
  CtlRig rig("Lantern");
  EXPECT_EQ(rig.Run({"compare", path}), Outcome::Different);
  EXPECT_NE(rig.Out().find("\nNot on this microscope: "), std::string::npos) << rig.Out();
  const std::string bad = rig.folder.Write(
      "bad.xml", "<Setup><NOSEPIECE><ITEM POSITION='1' CODE='900'/></NOSEPIECE></Setup>");
  EXPECT_EQ(rig.Run({"compare", bad}), Outcome::Different);
  EXPECT_NE(rig.Out().find("\nRefused in " + bad + ": 1 line\n"), std::string::npos) << rig.Out();
}

TEST(Compare, WhatCouldNotBeReadIsNeverEqual) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  rig.faults.Add({"NosepieceDevice.Positions(2).Code"});
  EXPECT_EQ(rig.Run({"compare", path}), Outcome::Failed);
  EXPECT_NE(rig.Out().find("\nNot known: "), std::string::npos) << rig.Out();
  EXPECT_NE(rig.Out().find("\nNot read from Harbour: 1 line\n"), std::string::npos) << rig.Out();
}

TEST(Compare, AsJson) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  rig.instrument().name = "Bay 7";
  EXPECT_EQ(rig.Run({"compare", path, "--json"}), Outcome::Different);
  EXPECT_EQ(rig.Out(), "{\"changes\":1,\"device\":\"Bay 7\",\"files\":[\"" + InJson(path) +
                           "\"],\"changed\":[{\"item\":\"System Name\",\"section\":\"SYSTEM\","
                           "\"element\":\"QHRMNAME\",\"position\":\"\",\"attribute\":\"NAME\","
                           "\"from\":{\"value\":\"Bay 7\",\"words\":\"Bay 7\"},"
                           "\"to\":{\"value\":\"Harbour\",\"words\":\"Harbour\"}}],\"unknown\":[],"
                           "\"notOnMicroscope\":[],\"refused\":[],\"unread\":[]}\n");
}

TEST(Compare, ANameThatIsNoValidTextStaysOneLine) {
  CtlRig rig("Harbour");
  const std::string path = rig.Received("a.xml");
  rig.instrument().name = "A\n\xFF\x1B[2J";
  EXPECT_EQ(rig.Run({"compare", path}), Outcome::Failed);  // no file could hold that name
  EXPECT_EQ(rig.ErrLines(), 1) << rig.Err();
  EXPECT_EQ(rig.Err().find('\x1B'), std::string::npos);
  EXPECT_EQ(rig.Run({"devices", "--json"}), Outcome::Done);
  EXPECT_NE(rig.Out().find("A\\n\xEF\xBF\xBD\\u001b[2J"), std::string::npos) << rig.Out();
}

TEST(Compare, ReadsTheFileBeforeItTouchesTheLibrary) {
  CtlRig rig("Harbour");
  EXPECT_EQ(rig.Run({"compare", rig.folder.Path("missing.xml")}), Outcome::Failed);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(InstalledLibrary, ThatCannotBeUsedIsToldWithItsReason) {
  CtlRig rig("Harbour");
  rig.surroundings.library.openInstalled = []() -> std::unique_ptr<controller::ControllerLibrary> {
    throw Failure("Mortane", static_cast<std::int32_t>(0x80040154U), "not registered");
  };
  EXPECT_EQ(rig.Run({"devices"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("the controller library cannot be used: not registered (80040154)"),
            std::string::npos)
      << rig.Err();
  EXPECT_EQ(rig.Run({"devices", "--sim"}), Outcome::Done) << rig.Err();
}

TEST(BenchOption, GoesBeforeTheInstalledLibraryAndTheEnvironment) {
  CtlRig rig("Quay");
  rig.surroundings.library.bench = rig.folder.Write("wrong.xml", "<Other/>");
  EXPECT_EQ(rig.Run({"devices"}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("wrong.xml"), std::string::npos) << rig.Err();
  const std::string bench = rig.folder.Path("bench.xml");
  controller::WriteBenchFile(bench, benches::Named("Harbour"));
  EXPECT_EQ(rig.Run({"devices", "--bench", bench}), Outcome::Done) << rig.Err();
  EXPECT_NE(rig.Out().find("1  Harbour"), std::string::npos) << rig.Out();
}

}  // namespace
}  // namespace mortane::test
