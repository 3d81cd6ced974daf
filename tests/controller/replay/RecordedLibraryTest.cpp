// What the journal of a session holds, and that it answers as the session was answered.
#include "controller/replay/RecordedLibrary.h"

#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/Faults.h"
#include "controller/SimulatedRig.h"
#include "controller/replay/JournalFile.h"
#include "controller/replay/ReplayedLibrary.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using mortane::test::TempFolder;
using namespace std::chrono_literals;

// Every look at the clock is 250 microseconds after the one before.
class Recording : public testing::Test {
 protected:
  // What was recorded since the last call, without the columns of times.
  std::string Taken() {
    std::string text;
    for (const std::string& line : std::exchange(lines_, {})) text += line.substr(23) + '\n';
    return text;
  }

  std::chrono::nanoseconds now_ = 5s;
  std::vector<std::string> lines_;
  SimulatedLibrary simulated_{Bench{{benches::InstrumentNamed("Harbour")}, {}}};
  FaultPlan faults_;
  FaultyLibrary faulty_{simulated_, faults_};
  RecordedLibrary recorded_{faulty_, [this](const std::string& line) { lines_.push_back(line); },
                            [this] { return now_ += 250us; }};
};

TEST_F(Recording, HasALineForEachCallWithItsTimeSinceTheBeginningAndItsLength) {
  const Microscope root = ConnectedRoot(recorded_);
  EXPECT_EQ(lines_, (std::vector<std::string>{
                        "     0.000      0.250       #0  create  Create(Microscope) -> #1",
                        "     0.001      0.250       #1  get     DeviceList -> #2",
                        "     0.001      0.250       #2  get     DeviceList.Item(0) -> #3",
                        "     0.002      0.250       #1  put     CurrentDevice = #3",
                        "     0.002      0.250       #1  get     DeviceList -> #4",
                        "     0.003      0.250       #4  get     DeviceList.Item(0) -> #5",
                        "     0.003      0.250       #5  call    DeviceList.Item(0).Connect()"}));
  now_ += 3600s;
  root.PutRemoteLED(2);
  EXPECT_EQ(lines_.back(), "  3600.004      0.250       #1  put     RemoteLED(7) = 2");
}

TEST_F(Recording, HasALineForTheNumberOfAStateAndForEachStepOfAnEnumerator) {
  const Microscope root = ConnectedRoot(recorded_);
  simulated_.bench().instruments[0].nosepiece = {{1, 4}};
  const StateValue position = root.Accessory("ZDriveDevice").StateMember("Position");
  Taken();
  EXPECT_EQ(position.Number(), 0);
  const TurretEnumerator enumerator = root.NosepieceDevice().Positions().Enumerate();
  enumerator.Next()->Code();
  enumerator.Next();
  EXPECT_EQ(Taken(),
            "     #7  number  ZDriveDevice.Position -> 0\n"
            "     #1  get     NosepieceDevice -> #8\n"
            "     #8  get     NosepieceDevice.Positions -> #9\n"
            "     #9  get     NosepieceDevice.Positions._NewEnum -> #10\n"
            "    #10  next    NosepieceDevice.Positions(1) -> #11\n"
            "    #11  get     NosepieceDevice.Positions(1).Code -> 4\n"
            "    #10  next    NosepieceDevice.Positions(2) -> nothing\n");
}

TEST_F(Recording, HasTheKindsOfValuesAndFailuresWithTheirTexts) {
  const Microscope root = ConnectedRoot(recorded_);
  faults_.Add({"put SystemName", 0, "BUS", 26, "No\r\nanswer"});
  Taken();
  EXPECT_THROW(root.PutSystemName("x"), ControllerError);
  root.XYDriveDevice().PutHandleMode(1);
  root.QueryCommand("rONR9");
  root.AccessoryDatabase().Nosepieces().Item(2).Magnification();
  const std::string lines = Taken();
  for (const char* line :
       {"     #1  put     SystemName = \"x\" ! \"BUS\" 1A \"No\\r\\nanswer\"\n",
        " put     XYDriveDevice.HandleMode = int16(1)\n",
        " call    QueryCommand(\"rONR9\") -> \"ONR9000000000000\"\n",
        " get     AccessoryDatabase.Nosepieces.Item(2).Magnification -> 4.0\n"}) {
    EXPECT_NE(lines.find(line), std::string::npos) << line << lines;
  }
}

class Replaying : public Recording {
 protected:
  // A session of a few calls, one of which fails.
  static void Work(ControllerLibrary& library, FaultPlan* faults = nullptr) {
    if (faults != nullptr) faults->Add({"put SystemName", 0, "BUS", 26, "No\r\nanswer"});
    const Microscope root = ConnectedRoot(library);
    EXPECT_THROW(root.PutSystemName("x"), ControllerError);
    EXPECT_EQ(root.AccessoryDatabase().Nosepieces().Item(2).Magnification(), 4.0);
    const TurretEnumerator enumerator = root.NosepieceDevice().Positions().Enumerate();
    while (const auto place = enumerator.Next()) place->Code();
    EXPECT_EQ(root.ZDriveDevice().Position().Number(), 0);
  }

  void WriteJournal() {
    JournalFile file(path_, {}, [](const std::string& text) { FAIL() << text; });
    for (const std::string& line : lines_) file.Write(line);
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("journal.txt");
};

TEST_F(Replaying, AnswersAsTheSessionWasAnswered) {
  Work(recorded_, &faults_);
  WriteJournal();
  ReplayedLibrary replayed(path_);
  Work(replayed);
  EXPECT_EQ(replayed.Difference(), "");
  EXPECT_EQ(replayed.Rest(), "");
}

TEST_F(Replaying, FailuresHaveSourceNumberAndText) {
  Work(recorded_, &faults_);
  WriteJournal();
  ReplayedLibrary replayed(path_);
  const Microscope root = ConnectedRoot(replayed);
  try {
    root.PutSystemName("x");
    FAIL() << "no failure";
  } catch (const ControllerError& error) {
    EXPECT_EQ(error.Source(), "BUS");
    EXPECT_EQ(error.Number(), 26);
    EXPECT_EQ(error.Description(), "No\r\nanswer");
  }
}

TEST_F(Replaying, TheFirstCallThatDiffersIsToldAndEveryLaterOneFailsLikeIt) {
  Work(recorded_, &faults_);
  WriteJournal();
  std::vector<std::string> told;
  ReplayedLibrary replayed(path_, [&](const std::string& text) { told.push_back(text); });
  const Microscope root = ConnectedRoot(replayed);
  const std::string difference = path_ + ":10: the session has #1 put SystemName = \"x\"; " +
                                 "the program called #1 put SystemName = \"y\"";
  for (const char* name : {"y", "x"}) {
    try {
      root.PutSystemName(name);
      FAIL() << "no failure";
    } catch (const ControllerError& error) {
      EXPECT_EQ(error.Source(), "Replay");
      EXPECT_EQ(error.Description(), difference);
    }
  }
  EXPECT_EQ(told, std::vector{difference});
  EXPECT_EQ(replayed.Difference(), difference);
  EXPECT_EQ(replayed.Rest(), difference);
}

TEST_F(Replaying, TheObjectThatIsCalledCounts) {
  Microscope first(recorded_.Create("Microscope"));
  Microscope second(recorded_.Create("Microscope"));
  EXPECT_EQ(second.DeviceList().Count(), 1);
  WriteJournal();
  ReplayedLibrary replayed(path_);
  const Microscope one(replayed.Create("Microscope"));
  const Microscope other(replayed.Create("Microscope"));
  EXPECT_THROW(one.DeviceList(), ControllerError);
  EXPECT_EQ(replayed.Difference(), path_ + ":5: the session has #2 get DeviceList; " +
                                       "the program called #1 get DeviceList");
}

TEST_F(Replaying, TheEndOfTheSessionIsTold) {
  const Microscope root(recorded_.Create("Microscope"));
  WriteJournal();
  ReplayedLibrary replayed(path_);
  EXPECT_NE(replayed.Rest().find("the session goes on with #0 create Create(Microscope)"),
            std::string::npos);
  ReplayedLibrary again(path_);
  const Microscope one(again.Create("Microscope"));
  EXPECT_EQ(again.Rest(), "");
  EXPECT_THROW(one.DeviceList(), ControllerError);
  EXPECT_EQ(again.Difference(),
            path_ + ":3: the session ends here; the program called #1 get DeviceList");
}

struct DamageRow {
  std::string appended;
  const char* problem;
};

TEST_F(Replaying, ADamagedLineIsToldWhereItStands) {
  for (const DamageRow& row :
       {DamageRow{"     0.1 0.1 #1 get Devi", ":4: the journal is cut off here"},
        DamageRow{"nonsense\n", ":4: no line of a journal: nonsense"}}) {
    lines_.clear();
    const Microscope root(recorded_.Create("Microscope"));
    std::filesystem::remove(path_);
    WriteJournal();
    folder_.Write("journal.txt", TempFolder::Read(path_) + row.appended);
    ReplayedLibrary replayed(path_);
    const std::uint64_t number = std::get<ObjectNumber>(ParseSessionLine(lines_[0])->result).number;
    const Microscope one(replayed.Create("Microscope"));
    EXPECT_THROW(one.DeviceList(), ControllerError);
    EXPECT_TRUE(replayed.Difference().starts_with(path_ + row.problem)) << replayed.Difference();
    EXPECT_TRUE(
        replayed.Difference().ends_with("called #" + std::to_string(number) + " get DeviceList"));
  }
}

TEST_F(Replaying, ObjectsMayOutliveTheLibrary) {
  const Microscope root = ConnectedRoot(recorded_);
  root.PutRemoteLED(2);
  WriteJournal();
  std::optional<ReplayedLibrary> replayed(path_);
  const Microscope one = ConnectedRoot(*replayed);
  replayed.reset();
  one.PutRemoteLED(2);
}

// A state whose number cannot be read.
class Unreadable : public ControllerObject {
 public:
  Value Get(std::string_view member, Args) override {
    if (member.empty()) throw ControllerError("LIB", 5, "No number.");
    return std::make_shared<Unreadable>();
  }
  void Put(std::string_view, const Value&, Args) override {}
  Value Call(std::string_view, Args) override { return {}; }
};

class UnreadableLibrary : public ControllerLibrary {
 public:
  ObjectRef Create(std::string_view) override { return std::make_shared<Unreadable>(); }
};

TEST(Recorded, TellsTheFailureOfAStatesNumber) {
  UnreadableLibrary library;
  std::vector<std::string> lines;
  RecordedLibrary recorded(
      library, [&](const std::string& line) { lines.push_back(line); },
      [] { return std::chrono::nanoseconds(0); });
  const StateValue state(recorded.Create("Microscope")->Get("State"));
  EXPECT_THROW(state.Number(), ControllerError);
  EXPECT_EQ(lines.back(),
            "     0.000      0.000       #2  number  State ! \"LIB\" 5 \"No number.\"");
}

TEST(Recorded, MeasuresWithAClockThatGoesOn) {
  const auto before = RecordedLibrary::SteadyTime();
  EXPECT_GT(before.count(), 0);
  EXPECT_GE(RecordedLibrary::SteadyTime(), before);
}

}  // namespace
}  // namespace mortane::controller::test
