// The link to the fiber illuminator's server: whatever state the server is in.
#include "drives/FiberRemoteLink.h"

#include <memory>
#include <optional>

#include "common/Failure.h"
#include "drives/DriveRig.h"

namespace mortane::test {
namespace {

using controller::FiberData;

// A server that has its device, with the remote on and bright.
FiberData OpenServer() {
  FiberData fiber;
  fiber.installed = fiber.open = true;
  fiber.status = 4;
  fiber.switchEnable = 1;
  fiber.led = 2;
  return fiber;
}

FiberData ClosedServer() {
  FiberData fiber = OpenServer();
  fiber.open = false;
  return fiber;
}

FiberData ServerWithoutDevice(bool openRaises) {
  FiberData fiber = ClosedServer();
  fiber.opens = false;
  fiber.openRaises = openRaises;
  return fiber;
}

Bench BenchWith(const FiberData& fiber) {
  Bench bench = benches::Named("Harbour");
  bench.fiber = fiber;
  return bench;
}

struct LinkRig : Rig {
  explicit LinkRig(const FiberData& fiber) : Rig(BenchWith(fiber)) { Make(); }

  void Make() {
    link.emplace(library);
    journal.Clear();
  }
  clsControlOther& other() { return units.COther; }

  std::optional<FiberRemoteLink> link;
};

std::string FiberValuesOf(const clsControlOther& other) {
  return std::string(other.curFiberStatus ? "answers " : "silent ") +
         std::to_string(other.curFiberSwEnable) + " " + std::to_string(other.curFiberLED);
}

TEST(FiberRemoteLink, CreatesItsObjectsOnceAndAsksThemNothing) {
  LinkRig rig(OpenServer());
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.link->Read(rig.other());
  rig.link->Read(rig.other());
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Create"), std::string::npos) << line;
  }
}

TEST(FiberRemoteLink, ReadsAServerThatIsOpen) {
  LinkRig rig(OpenServer());
  rig.link->Read(rig.other());
  EXPECT_EQ(FiberValuesOf(rig.other()), "answers 1 2");
  EXPECT_EQ(rig.journal.Lines(), (Lines{"IsOpen -> true", "IsOpen -> true",
                                        "SwitchEnable -> int16(1)", "LED -> int16(2)"}));
}

TEST(FiberRemoteLink, OpensAServerThatIsClosedForOneSecond) {
  LinkRig rig(ClosedServer());
  rig.link->Read(rig.other());
  EXPECT_EQ(FiberValuesOf(rig.other()), "answers 1 2");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"IsOpen -> false", "Open(1000)", "Status -> 4", "IsOpen -> true",
                   "SwitchEnable -> int16(1)", "LED -> int16(2)"}));
}

TEST(FiberRemoteLink, TriesAServerWithoutDeviceAtEachReading) {
  for (const bool raises : {true, false}) {
    LinkRig rig(ServerWithoutDevice(raises));
    for (int i = 0; i < 2; ++i) {
      rig.journal.Clear();
      rig.link->Read(rig.other());
      EXPECT_EQ(FiberValuesOf(rig.other()), "silent -1 -1");
      ASSERT_EQ(rig.journal.Lines().size(), 4U);
      EXPECT_EQ(rig.journal.Lines()[1].substr(0, 10), "Open(1000)");
      EXPECT_EQ(rig.journal.Lines()[2], "Status -> 4");
      EXPECT_EQ(rig.journal.Lines()[3], "IsOpen -> false");
    }
  }
}

TEST(FiberRemoteLink, AServerThatIsMissingIsNoFailure) {
  LinkRig rig(FiberData{});
  rig.link->Read(rig.other());
  EXPECT_EQ(FiberValuesOf(rig.other()), "silent -1 -1");
  EXPECT_NO_THROW(rig.link->Write(rig.other()));
  EXPECT_NO_THROW(rig.link.reset());
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST(FiberRemoteLink, AnObjectThatCannotBeCreatedLeavesTheServerSilent) {
  for (const char* creation : {"Create(FiberServer)", "Create(FiberRemote)"}) {
    LinkRig rig(OpenServer());
    rig.faults.Add({creation});
    rig.Make();
    rig.faults.Clear();
    rig.link->Read(rig.other());
    EXPECT_EQ(FiberValuesOf(rig.other()), "silent -1 -1") << creation;
    EXPECT_NO_THROW(rig.link->Write(rig.other())) << creation;
  }
}

struct ReadFault {
  const char* call;
  int occurrence;
  const char* values;
};

TEST(FiberRemoteLink, EachCallOfAReadingMayFail) {
  for (const ReadFault& row :
       {ReadFault{"IsOpen", 1, "answers 1 2"}, ReadFault{"IsOpen", 2, "silent -1 -1"},
        ReadFault{"IsOpen", 0, "silent -1 -1"}, ReadFault{"Open", 1, "silent -1 -1"},
        ReadFault{"Status", 1, "answers 1 2"}, ReadFault{"SwitchEnable", 1, "silent -1 -1"},
        ReadFault{"LED", 1, "silent -1 -1"}}) {
    LinkRig rig(ClosedServer());
    rig.faults.Add({row.call, row.occurrence});
    EXPECT_NO_THROW(rig.link->Read(rig.other())) << row.call;
    EXPECT_GE(rig.faults.Hits(), 1U) << row.call;
    EXPECT_EQ(FiberValuesOf(rig.other()), row.values) << row.call << row.occurrence;
    EXPECT_TRUE(rig.prompts.Boxes().empty()) << row.call;
  }
}

TEST(FiberRemoteLink, AServerThatStopsAnsweringIsNeitherShownNorSentTo) {
  LinkRig rig(OpenServer());
  rig.link->Read(rig.other());
  rig.faults.Add({"LED", 1});
  rig.link->Read(rig.other());
  EXPECT_FALSE(rig.other().curFiberStatus);
  rig.journal.Clear();
  rig.link->Write(rig.other());
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.link->Read(rig.other());
  EXPECT_EQ(FiberValuesOf(rig.other()), "answers 1 2") << "it answers again";
}

TEST(FiberRemoteLink, WritesSwitchAndThenLedAsSixteenBits) {
  LinkRig rig(OpenServer());
  rig.link->Read(rig.other());
  rig.other().curFiberSwEnable = 0;
  rig.other().curFiberLED = 1;
  rig.journal.Clear();
  rig.link->Write(rig.other());
  EXPECT_EQ(rig.journal.Lines(), (Lines{"SwitchEnable = int16(0)", "LED = int16(1)"}));
}

TEST(FiberRemoteLink, WritesUnchangedValuesToo) {
  LinkRig rig(OpenServer());
  rig.link->Read(rig.other());
  rig.journal.Clear();
  rig.link->Write(rig.other());
  EXPECT_EQ(rig.journal.Lines(), (Lines{"SwitchEnable = int16(1)", "LED = int16(2)"}));
}

TEST(FiberRemoteLink, DoesNotWriteWhatIsUnknown) {
  LinkRig rig(OpenServer());
  rig.other().curFiberStatus = true;
  rig.link->Write(rig.other());
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.other().curFiberLED = 0;
  rig.link->Write(rig.other());
  EXPECT_EQ(rig.journal.Lines(), Lines{"LED = int16(0)"});
}

struct TooWide {
  std::int32_t enabled;
  std::int32_t led;
};

TEST(FiberRemoteLink, AValueBeyondSixteenBitsIsAnOverflow) {
  for (const TooWide& row : {TooWide{32768, 0}, TooWide{0, 32768}, TooWide{-32769, 0}}) {
    LinkRig rig(OpenServer());
    rig.other().curFiberStatus = true;
    rig.other().curFiberSwEnable = row.enabled;
    rig.other().curFiberLED = row.led;
    try {
      rig.link->Write(rig.other());
      ADD_FAILURE() << row.enabled << ' ' << row.led;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kOverflowError);
    }
  }
}

TEST(FiberRemoteLink, AWriteThatFailsIsToldToTheCaller) {
  for (const char* call : {"put SwitchEnable", "put LED"}) {
    LinkRig rig(OpenServer());
    rig.link->Read(rig.other());
    rig.faults.Add({call});
    EXPECT_THROW(rig.link->Write(rig.other()), Failure) << call;
  }
}

TEST(FiberRemoteLink, ClosesTheServerAtItsEndAlsoWithoutADevice) {
  for (const FiberData& fiber : {OpenServer(), ServerWithoutDevice(true)}) {
    LinkRig rig(fiber);
    rig.link.reset();
    EXPECT_EQ(rig.journal.Lines(), Lines{"Close()"});
    EXPECT_FALSE(rig.simulated.bench().fiber.open);
  }
}

TEST(FiberRemoteLink, AServerThatRefusesToCloseIsNoFailure) {
  LinkRig rig(OpenServer());
  rig.faults.Add({"Close"});
  EXPECT_NO_THROW(rig.link.reset());
  EXPECT_EQ(rig.faults.Hits(), 1U);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST(FiberRemoteLink, NothingElseOfTheOtherControlsIsTouched) {
  LinkRig rig(OpenServer());
  rig.ConnectAndReceive();
  const clsControlOther before = rig.other();
  rig.link->Read(rig.other());
  EXPECT_EQ(rig.other().curAutoZ, before.curAutoZ);
  EXPECT_EQ(rig.other().curBuzzer, before.curBuzzer);
  EXPECT_EQ(rig.other().curSwEnable, before.curSwEnable);
  EXPECT_EQ(rig.other().curTactorSwEnable, before.curTactorSwEnable);
}

}  // namespace
}  // namespace mortane::test
