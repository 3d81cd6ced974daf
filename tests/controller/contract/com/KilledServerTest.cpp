// A server in a process of its own that ends, and one that is killed.
#include <chrono>
#include <thread>

#include "controller/FiberIlluminator.h"
#include "controller/SimulatedRig.h"
#include "controller/contract/MemberRows.h"
#include "controller/contract/com/ComBackEnd.h"
#include "hub/clsK70.h"
#include "support/ScriptedPrompts.h"

namespace mortane::controller::test {
namespace {

using comserver::NewFamily;
using comserver::RegisteredNames;

using Clock = std::chrono::steady_clock;
using OwnProcess = ComBackEnd<ServerProcess>;

constexpr DWORD kEndMs = 10000;

// The system's numbers for a server that is gone: "unavailable", "call failed", "disconnected".
bool IsLossOfServer(const std::string& failure) {
  for (const char* number : {"Mortane:800706BA: ", "Mortane:800706BE: ", "Mortane:80010108: "}) {
    if (failure.starts_with(number)) return failure.size() > std::string_view(number).size();
  }
  return false;
}

TEST(ServerProcess, EndsByItselfWhenItsLastObjectIsGone) {
  OwnProcess backEnd("Quay");
  {
    Microscope root = NewRoot(backEnd.Library());
    const DeviceList list = root.DeviceList();
    backEnd.ReleaseControl();
    root = Microscope();
    EXPECT_EQ(list.Count(), 1);
    EXPECT_FALSE(backEnd.host().EndsWithin(200));
  }
  EXPECT_TRUE(backEnd.host().EndsWithin(kEndMs));
}

TEST(KilledServer, FailsEveryMemberInItsOwnWayWithoutDelay) {
  OwnProcess backEnd("Quay");
  const Microscope root = ConnectedRoot(backEnd.Library());
  std::vector<std::pair<std::string, std::function<void()>>> uses;
  for (const auto& rows : {RootRows(), DeviceRows(), DriveRows(), SettingsRows(), DatabaseRows()}) {
    for (const MemberRow& row : rows) uses.emplace_back(row.line, row.take(root));
  }
  backEnd.host().Kill();
  const Clock::time_point start = Clock::now();
  for (const auto& [line, use] : uses) {
    const std::string failure = FailureOf(use);
    EXPECT_TRUE(IsLossOfServer(failure)) << line << ": " << failure;
  }
  uses.clear();
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(10));
}

TEST(KilledServer, FailsAWalkAndAStateValue) {
  OwnProcess backEnd("Quay");
  const Microscope root = ConnectedRoot(backEnd.Library());
  const TurretEnumerator walk = root.NosepieceDevice().Positions().Enumerate();
  walk.Next();
  const StateValue state = root.NosepieceDevice().Position();
  const FiberServer fiber(backEnd.Library().Create("FiberServer"));
  backEnd.host().Kill();
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { walk.Next(); })));
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { state.Number(); })));
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { state.IsReadOnly(); })));
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { fiber.IsOpen(); })));
}

TEST(KilledServer, FailsACallThatItWasServing) {
  OwnProcess backEnd("Quay");
  const Microscope root = ConnectedRoot(backEnd.Library());
  const DeviceEntry entry = root.DeviceList().Item(0);
  entry.PutAsyncMode(true);
  root.ZDriveDevice().PutPosition(12000 + 30000 * 20);  // half a minute
  const Clock::time_point start = Clock::now();
  std::thread killer([&] {
    Sleep(300);
    backEnd.host().Kill();
  });
  const std::string failure = FailureOf([&] { entry.WaitMove(); });
  killer.join();
  EXPECT_TRUE(IsLossOfServer(failure)) << failure;
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(10));
}

// Not every system forgets the classes of a process that was killed, so the names lead to others
// when the server runs again.
class RestartedServer {
 public:
  RestartedServer() { Start(); }

  std::vector<ComClass> Classes() const { return names_.Classes(); }
  void Kill() { process_.reset(); }
  void Start() {
    const comserver::ClassFamily family = NewFamily();
    names_.PointTo(family);
    process_ = std::make_unique<ServerProcess>(family);
  }

 private:
  RegisteredNames names_;
  std::unique_ptr<ServerProcess> process_;
};

TEST(KilledServer, IsFoundAgainByTheSameLibraryOnceItRuns) {
  RestartedServer server;
  ComLibrary library(server.Classes());
  const Microscope root = ConnectedRoot(library);
  server.Kill();
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { root.ControllerPresent(1); })));
  EXPECT_NE(FailureOf([&] { library.Create("Microscope"); }), "");
  server.Start();
  const Microscope again = ConnectedRoot(library);
  EXPECT_EQ(again.ControllerPresent(1), 1);
}

TEST(KilledServer, LeavesARootThatListsDevicesAgainAndReachesNoneBeforeItIsToldTo) {
  RestartedServer server;
  ComLibrary library(server.Classes());
  const Microscope root = ConnectedRoot(library);
  const NosepieceDevice nosepiece = root.NosepieceDevice();
  server.Kill();
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { root.BuzzerOn(1); })));
  server.Start();
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { root.BuzzerOn(1); })));
  const DeviceList list = root.DeviceList();
  EXPECT_EQ(list.Count(), 1);
  EXPECT_EQ(FailureOf([&] { root.BuzzerOn(1); }), "Simulator:80004005: No current device.");
  root.PutCurrentDevice(list.Item(0));
  list.Item(0).Connect();
  root.BuzzerOn(1);
  EXPECT_TRUE(IsLossOfServer(FailureOf([&] { nosepiece.PutPosition(2); })));
}

TEST(KilledServer, LeavesTheModelAliveWhichConnectsAgain) {
  RestartedServer server;
  ComLibrary library(server.Classes());
  ScriptedPrompts prompts;
  prompts.AcceptAnyBox();
  clsK70 k70(library, prompts);
  k70.Initialize();
  EXPECT_TRUE(k70.Connect(0));
  EXPECT_TRUE(k70.Receive());
  server.Kill();
  prompts.ClearRecords();
  EXPECT_FALSE(k70.Receive());
  EXPECT_FALSE(k70.Send());
  EXPECT_NE(FailureOf([&] { k70.Modify(); }), "");
  EXPECT_GE(prompts.Boxes().size(), 2U);
  k70.Disconnect();
  server.Start();
  EXPECT_TRUE(k70.Connect(0));
  EXPECT_TRUE(k70.Receive());
  EXPECT_EQ(k70.SystemName, "Lab 2 East");
}

}  // namespace
}  // namespace mortane::controller::test
