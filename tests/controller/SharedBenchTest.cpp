// Programs that use one bench file at a time.
#include "controller/simulator/SharedBench.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/Failure.h"
#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"
#include "controller/simulator/BenchFile.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using mortane::test::TempFolder;

// Three instruments, at 0 to 2, in a file.
struct FileRig {
  FileRig() {
    Bench bench;
    for (const char* name : {"Quay", "Harbour", "Lantern"}) {
      bench.instruments.push_back(benches::InstrumentNamed(name));
    }
    WriteBenchFile(path, bench);
  }
  Bench Stored() const { return ReadBenchFile(path); }

  TempFolder folder;
  std::string path = folder.Path("bench.xml");
};

// One program: its library, and the file behind it.
struct Session {
  explicit Session(const std::string& path) : file(path), library(file.Known()) {
    library.OnConnection([this] { Keep(); });
  }
  void Keep() { file.Exchange(library.bench()); }
  Instrument& instrument(std::size_t place) { return library.bench().instruments.at(place); }

  SharedBench file;
  SimulatedLibrary library;
};

TEST(SharedBench, KeepsWhatBothSessionsSent) {
  const FileRig rig;
  Session first(rig.path);
  Session second(rig.path);
  ConnectedRoot(first.library, 1).PutSystemName("First");
  ConnectedRoot(second.library, 2).PutSystemName("Second");
  first.Keep();
  second.Keep();
  EXPECT_EQ(rig.Stored().instruments[1].name, "First");
  EXPECT_EQ(rig.Stored().instruments[2].name, "Second");
  first.Keep();
  EXPECT_EQ(rig.Stored().instruments[2].name, "Second") << "a stale copy came back";
}

TEST(SharedBench, ShowsASessionWhatTheOtherSentOnceItConnects) {
  const FileRig rig;
  Session first(rig.path);
  Session second(rig.path);
  ConnectedRoot(first.library, 1).ControllerSettings().PutEscapeMode(1);
  first.Keep();
  const Microscope root = ConnectedRoot(second.library, 1);
  EXPECT_EQ(root.ControllerSettings().EscapeMode(), 1);
  root.PutSystemName("Second");
  second.Keep();
  EXPECT_EQ(rig.Stored().instruments[1].name, "Second");
  EXPECT_EQ(rig.Stored().instruments[1].escapeMode, 1);
}

TEST(SharedBench, HandsADeviceOnWhenItIsDisconnected) {
  const FileRig rig;
  Session first(rig.path);
  Session second(rig.path);
  const Microscope root = ConnectedRoot(first.library, 1);
  root.PutSystemName("First");
  root.DeviceList().Item(1).Disconnect();
  EXPECT_EQ(NewRoot(second.library).DeviceList().Item(1).Name(), "Harbour");
  ConnectedRoot(second.library, 1);
  EXPECT_EQ(NewRoot(second.library).DeviceList().Item(1).Name(), "First");
}

TEST(SharedBench, TakesTheFiberServerAsAPartOfItsOwn) {
  const FileRig rig;
  Session first(rig.path);
  Session second(rig.path);
  first.library.bench().fiber.led = 2;
  second.instrument(0).name = "Second";
  first.Keep();
  second.Keep();
  EXPECT_EQ(second.library.bench().fiber.led, 2);
  EXPECT_EQ(rig.Stored().fiber.led, 2);
  EXPECT_EQ(rig.Stored().instruments[0].name, "Second");
}

TEST(SharedBench, OfTwoChangesOfOneInstrumentTheLaterOneStands) {
  const FileRig rig;
  Session first(rig.path);
  Session second(rig.path);
  first.instrument(1).name = "First";
  second.instrument(1).escapeMode = 2;
  first.Keep();
  second.Keep();
  EXPECT_EQ(rig.Stored().instruments[1].name, "Harbour");
  EXPECT_EQ(rig.Stored().instruments[1].escapeMode, 2);
}

TEST(SharedBench, IsNotWrittenWhenNothingChangedHere) {
  const FileRig rig;
  const std::string byHand = "<!-- mine --><Bench> <Instrument Name=\"One\"/></Bench>";
  Session session(rig.path);
  rig.folder.Write("bench.xml", byHand);
  session.Keep();
  EXPECT_EQ(TempFolder::Read(rig.path), byHand);
  ASSERT_EQ(session.library.bench().instruments.size(), 1U);
  EXPECT_EQ(session.instrument(0).name, "One");
}

TEST(SharedBench, KeepsTheInstrumentsThatWereAddedByHand) {
  const FileRig rig;
  Session session(rig.path);
  Bench longer = rig.Stored();
  longer.instruments.push_back(benches::InstrumentNamed("Hub"));
  WriteBenchFile(rig.path, longer);
  session.instrument(2).name = "Third";
  session.Keep();
  longer.instruments[2].name = "Third";
  EXPECT_EQ(rig.Stored(), longer);
  EXPECT_EQ(session.library.bench(), longer);
}

TEST(SharedBench, KeepsAChangedInstrumentAtItsPlaceInAShorterFile) {
  const FileRig rig;
  Session session(rig.path);
  Bench expected = rig.Stored();
  WriteBenchFile(rig.path, Bench{{benches::InstrumentNamed("Hub")}, {}});
  session.instrument(2).name = "Third";
  session.Keep();
  expected.instruments[0] = benches::InstrumentNamed("Hub");
  expected.instruments[2].name = "Third";
  EXPECT_EQ(rig.Stored(), expected);
}

TEST(SharedBench, MakesAFileAnewThatWentAwayOnceSomethingChanged) {
  const FileRig rig;
  Session session(rig.path);
  Bench expected = rig.Stored();
  std::filesystem::remove(rig.path);
  session.Keep();
  EXPECT_FALSE(std::filesystem::exists(rig.path));
  session.instrument(1).name = "New";
  session.Keep();
  expected.instruments[1].name = "New";
  EXPECT_EQ(rig.Stored(), expected);
}

TEST(SharedBench, LeavesAFileThatBecameWrongAndTriesAgain) {
  const FileRig rig;
  Session session(rig.path);
  const std::string good = TempFolder::Read(rig.path);
  rig.folder.Write("bench.xml", "<Bench>");
  session.instrument(1).name = "New";
  EXPECT_THROW(session.Keep(), Failure);
  EXPECT_EQ(TempFolder::Read(rig.path), "<Bench>");
  EXPECT_EQ(session.instrument(1).name, "New");
  rig.folder.Write("bench.xml", good);
  session.Keep();
  EXPECT_EQ(rig.Stored().instruments[1].name, "New");
}

TEST(SharedBench, HasOneLockForAllWaysToItsFile) {
  const FileRig rig;
  const std::string name = SharedBench::LockName(rig.path);
  EXPECT_TRUE(name.starts_with("MortaneBench-"));
  EXPECT_EQ(name.size(), std::string("MortaneBench-0123456789ABCDEF").size());
  EXPECT_EQ(SharedBench::LockName(rig.folder.Path("./bench.xml")), name);
  EXPECT_NE(SharedBench::LockName(rig.folder.Path("other.xml")), name);
}

// What is wrong must not be taken for missing, and replaced, because of its name.
TEST(SharedBench, LeavesAWrongFileUnderAnyName) {
  const TempFolder folder;
  for (const char* name : {"b.xml", "b \xC3\xA4\xE6\x97\xA5.xml"}) {
    const std::string path = folder.Path(name);
    WriteBenchFile(path, Bench{{Instrument()}, {}});
    SharedBench file(path);
    Bench bench = file.Known();
    folder.Write(name, "<Bench>");
    bench.instruments[0].name = "New";
    EXPECT_THROW(file.Exchange(bench), Failure) << name;
    EXPECT_EQ(TempFolder::Read(path), "<Bench>") << name;
  }
}

TEST(SharedBench, IsReadWhenItIsMade) {
  const TempFolder folder;
  EXPECT_THROW(SharedBench(folder.Path("missing.xml")), Failure);
  EXPECT_THROW(SharedBench(folder.Write("bad.xml", "<Bench/>")), Failure);
}

TEST(OnConnection, IsToldBeforeADeviceConnectsAndAfterItDisconnects) {
  SimulatedRig rig("Harbour");
  const DeviceEntry entry = rig.root.DeviceList().Item(0);
  std::vector<std::string> told;
  rig.library.OnConnection([&] {
    told.push_back(rig.root.DeviceList().Item(0).Name());
    rig.instrument().available = 0;
  });
  entry.Disconnect();
  EXPECT_EQ(told.size(), 1U);
  EXPECT_THROW(rig.root.ControllerPresent(1), ControllerError) << "disconnected";
  rig.instrument().available = 1;
  EXPECT_THROW(entry.Connect(), ControllerError) << "what is told before counts";
  EXPECT_EQ(told.size(), 2U);
}

}  // namespace
}  // namespace mortane::controller::test
