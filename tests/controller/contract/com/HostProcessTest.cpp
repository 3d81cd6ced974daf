// The host of libraries of 32 bits: its life, a library that misbehaves in it, and another program
// in its place.
#include "controller/com/HostProcess.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

#include "comserver/FaultyLibrary.h"
#include "controller/FiberIlluminator.h"
#include "controller/SimulatedRig.h"
#include "controller/com/ComObject.h"
#include "controller/contract/MemberRows.h"
#include "controller/contract/com/ComBackEnd.h"
#include "controller/contract/com/Variable.h"
#include "hub/clsK70.h"
#include "platform/windows/Wide.h"
#include "support/ScriptedPrompts.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using comserver::Handle;
using comserver::HostedProcess;
using comserver::HostFiles;
using comserver::RegisteredLibrary;

using mortane::test::TempFolder;

using Clock = std::chrono::steady_clock;

constexpr DWORD kEndMs = 10000;
constexpr HostLimits kShort{2000, 1000};

// The system's numbers for a process that is gone: "unavailable", "call failed", "disconnected".
bool IsLoss(const std::string& failure) {
  for (const char* number : {"Mortane:800706BA: ", "Mortane:800706BE: ", "Mortane:80010108: "}) {
    if (failure.starts_with(number)) return true;
  }
  return false;
}

std::string NameOfFiles(const testing::TestParamInfo<HostFiles>& info) {
  return info.param.are32 ? "Host32" : "Host64";
}

class HostWith : public testing::TestWithParam<HostFiles> {
 protected:
  std::unique_ptr<HostedBackEnd> Make(const std::string& bench = "Quay") const {
    return std::make_unique<HostedBackEnd>(GetParam(), bench);
  }
};

// ---- its life

using HostLife = HostWith;
INSTANTIATE_TEST_SUITE_P(Each, HostLife, testing::ValuesIn(comserver::AllHostFiles()), NameOfFiles);

TEST_P(HostLife, IsOneProcessForAllClassesOfTheBitsThatItIsMadeFor) {
  const auto backEnd = Make();
  const HostedProcess process = backEnd->Process();
  EXPECT_NE(process.Id(), GetCurrentProcessId());
  EXPECT_EQ(process.Is32Bit(), GetParam().are32);
  const Microscope root = ConnectedRoot(backEnd->Library());
  const FiberServer fiber(backEnd->Library().Create("FiberServer"));
  EXPECT_EQ(backEnd->Process().Id(), process.Id());
}

TEST_P(HostLife, EndsWithTheLibrary) {
  auto backEnd = Make();
  const HostedProcess process = backEnd->Process();
  EXPECT_FALSE(process.EndsWithin(200));
  backEnd.reset();
  EXPECT_TRUE(process.EndsWithin(0));
}

TEST_P(HostLife, StaysWhenItsLastObjectIsGone) {
  const auto backEnd = Make();
  const DWORD before = backEnd->Process().Id();
  {
    // The last one goes with the block.
    const Microscope root = ConnectedRoot(backEnd->Library());
  }
  EXPECT_EQ(backEnd->Process().Id(), before);
}

TEST_P(HostLife, FailsEveryMemberWithoutDelayWhenItIsKilled) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  std::vector<std::pair<std::string, std::function<void()>>> uses;
  for (const auto& rows : {RootRows(), DeviceRows(), DriveRows(), SettingsRows(), DatabaseRows()}) {
    for (const MemberRow& row : rows) uses.emplace_back(row.line, row.take(root));
  }
  backEnd->Process().Kill();
  const Clock::time_point start = Clock::now();
  for (const auto& [line, use] : uses) {
    const std::string failure = FailureOf(use);
    EXPECT_TRUE(IsLoss(failure)) << line << ": " << failure;
  }
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(10));
}

TEST_P(HostLife, FailsACallThatItWasServingWhenItIsKilled) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const DeviceEntry entry = root.DeviceList().Item(0);
  entry.PutAsyncMode(true);
  root.ZDriveDevice().PutPosition(12000 + 30000 * 20);  // half a minute
  const HostedProcess process = backEnd->Process();
  const Clock::time_point start = Clock::now();
  std::thread killer([&] {
    Sleep(300);
    process.Kill();
  });
  const std::string failure = FailureOf([&] { entry.WaitMove(); });
  killer.join();
  EXPECT_TRUE(IsLoss(failure)) << failure;
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(10));
}

TEST_P(HostLife, BeginsAgainWithTheDeviceListAndReachesNoDeviceBeforeItIsToldTo) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const DWORD before = backEnd->Process().Id();
  backEnd->Process().Kill();
  EXPECT_TRUE(IsLoss(FailureOf([&] { root.BuzzerOn(1); })));
  EXPECT_TRUE(IsLoss(FailureOf([&] { root.BuzzerOn(1); })));
  const DeviceList list = root.DeviceList();
  EXPECT_NE(backEnd->Process().Id(), before);
  EXPECT_EQ(FailureOf([&] { root.BuzzerOn(1); }), "Simulator:80004005: No current device.");
  root.PutCurrentDevice(list.Item(0));
  list.Item(0).Connect();
  EXPECT_EQ(FailureOf([&] { root.BuzzerOn(1); }), "");
}

TEST_P(HostLife, LeavesTheModelAliveWhichConnectsAgain) {
  const auto backEnd = Make();
  ScriptedPrompts prompts;
  prompts.AcceptAnyBox();
  clsK70 k70(backEnd->Library(), prompts);
  k70.Initialize();
  EXPECT_TRUE(k70.Connect(0));
  EXPECT_TRUE(k70.Receive());
  backEnd->Process().Kill();
  EXPECT_FALSE(k70.Receive());
  EXPECT_FALSE(k70.Send());
  k70.Disconnect();
  EXPECT_TRUE(k70.Connect(0));
  EXPECT_TRUE(k70.Receive());
  EXPECT_EQ(k70.SystemName, "Lab 2 East");
}

// ---- a library that misbehaves

class FaultyLibrary : public testing::TestWithParam<HostFiles> {
 protected:
  FaultyLibrary() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~FaultyLibrary() override {
    host.reset();
    CoUninitialize();
  }

  ObjectRef Make(const std::wstring& fault = L"", std::size_t place = 0) {
    const Variable variable(L"MORTANE_FAULTY", fault);
    const std::string id = ToUtf8(comserver::GuidText(registered.Family().ClassId(place)));
    return MakeComObject(host->Create(id), ids);
  }
  std::int32_t Number(ObjectRef object, std::string_view member) {
    return std::get<std::int32_t>(object->Get(member));
  }

  RegisteredLibrary registered{GetParam(), L"mortane_faulty_library.dll"};
  MemberIds ids;
  std::unique_ptr<HostProcess> host = std::make_unique<HostProcess>(GetParam().Host(), kShort);
};

INSTANTIATE_TEST_SUITE_P(Each, FaultyLibrary, testing::ValuesIn(comserver::AllHostFiles()),
                         NameOfFiles);

TEST_P(FaultyLibrary, FailsTheCreationAloneAndTheNextOneIsMade) {
  struct Row {
    const wchar_t* fault;
    std::string failure;
  };
  for (const Row& row : {
           Row{L"fails", "Mortane:80041234: "},
           Row{L"hangs", "Mortane:8001011F: mortane-host32.exe did not answer within 1 seconds"},
           Row{L"ends", "Mortane:80010007: mortane-host32.exe ended with code 5"},
           Row{L"crashes", "Mortane:80010007: mortane-host32.exe ended with code C0000005"},
           Row{L"aborts", "Mortane:80010007: mortane-host32.exe ended with code 3"},
       }) {
    host = std::make_unique<HostProcess>(GetParam().Host(), kShort);
    const std::string failure = FailureOf([&] { Make(row.fault); });
    EXPECT_TRUE(failure.starts_with(row.failure)) << ToUtf8(row.fault) << ": " << failure;
    EXPECT_EQ(Number(Make(L"", 1), "Number"), 7) << ToUtf8(row.fault);
  }
}

TEST_P(FaultyLibrary, ThatThrowsFailsTheCreation) {
  const std::string failure = FailureOf([&] { Make(L"throws"); });
  EXPECT_TRUE(failure.starts_with("Mortane:80010007: mortane-host32.exe ended with code "))
      << failure;
  EXPECT_EQ(Number(Make(L"", 1), "Number"), 7);
}

TEST_P(FaultyLibrary, ThatPrintsAndReadsIsNotInBetween) {
  const ObjectRef object = Make(L"prints");
  EXPECT_EQ(Number(object, "Number"), 7);
  EXPECT_EQ(Number(Make(L"", 1), "ProcessId"), Number(object, "ProcessId"));
}

TEST_P(FaultyLibrary, ThatEndsItsProcessOrCrashesFailsTheCall) {
  for (const char* member : {"End", "Crash", "Throw"}) {
    const ObjectRef object = Make();
    const Clock::time_point start = Clock::now();
    EXPECT_NE(FailureOf([&] { object->Call(member, {std::int32_t{5}}); }), "") << member;
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(20)) << member;
    EXPECT_EQ(Number(Make(L"", 1), "Number"), 7) << member;
  }
}

TEST_P(FaultyLibrary, ThatIsSlowIsWaitedForInACall) {
  constexpr std::int32_t kMoreThanHalfAMinuteMs = 31000;
  const ObjectRef object = Make();
  EXPECT_EQ(std::get<std::int32_t>(object->Call("Sleep", {kMoreThanHalfAMinuteMs})),
            kMoreThanHalfAMinuteMs);
}

// The window of that title, once it is there.
HWND AwaitWindow(const wchar_t* title) {
  for (int i = 0; i < 200; ++i) {
    if (const HWND window = FindWindowW(nullptr, title)) return window;
    Sleep(50);
  }
  return nullptr;
}

TEST_P(FaultyLibrary, ThatAsksInABoxIsAnsweredThereAndTheCallReturns) {
  const ObjectRef object = Make();
  std::thread person(
      [] { PostMessageW(AwaitWindow(comserver::kFaultyBoxTitle), WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(std::get<std::int32_t>(object->Call("AskInBox")), std::int32_t{IDCANCEL});
  person.join();
}

TEST_P(FaultyLibrary, ThatAsksWhileAnObjectIsMadeIsEndedWhenNobodyAnswers) {
  EXPECT_TRUE(FailureOf([&] { Make(L"asks"); }).starts_with("Mortane:8001011F: "));
  EXPECT_EQ(FindWindowW(nullptr, comserver::kFaultyBoxTitle), nullptr);
}

TEST_P(FaultyLibrary, ThatShowsAWindowOfItsOwnHasItAnswer) {
  const ObjectRef object = Make();
  object->Call("ShowWindow");
  const HWND window = AwaitWindow(comserver::kFaultyWindowTitle);
  ASSERT_NE(window, nullptr);
  DWORD_PTR ignored = 0;
  EXPECT_NE(SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kEndMs, &ignored), 0);
  host.reset();
  EXPECT_FALSE(IsWindow(window));
}

// ---- another program in its place

class OtherHost : public testing::Test {
 protected:
  OtherHost() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~OtherHost() override { CoUninitialize(); }

  static std::string Failure(const std::wstring& file) {
    return FailureOf([&] { HostProcess(file, kShort).Create("Mortane.NoSuchClass"); });
  }

  const std::wstring other = comserver::ServerFile(L"mortane_other_host.exe");
};

TEST_F(OtherHost, ThatIsNotThereIsTold) {
  EXPECT_TRUE(
      Failure(comserver::ServerFile(L"no-such-host.exe")).starts_with("Mortane:80070002: "));
}

TEST_F(OtherHost, ThatIsNoProgramIsTold) {
  const TempFolder folder;
  const std::string path = folder.Write("mortane-host32.exe", "no program");
  EXPECT_TRUE(Failure(ToWide(path)).starts_with("Mortane:800700C1: "));
}

TEST_F(OtherHost, UnderAnotherNameWorks) {
  const TempFolder folder;
  const std::wstring renamed = ToWide(folder.Path("ho st \xC3\xBC.exe"));
  ASSERT_NE(CopyFileW(comserver::OwnHostFiles().Host().c_str(), renamed.c_str(), TRUE), FALSE);
  EXPECT_TRUE(Failure(renamed).starts_with("Mortane:800401F3: "));
}

TEST_F(OtherHost, IsRefusedByWhatItSays) {
  struct Row {
    const wchar_t* said;
    const char* failure;
  };
  const std::wstring flood(8000, L'x');
  const std::wstring mine = L"mortane-host32 " + ToWide(MORTANE_VERSION) + L"|";
  for (const Row& row :
       {Row{L"", "8001011F: mortane_other_host.exe did not answer within 2 seconds"},
        Row{L"mortane-host32 0.9.0|",
            "80010110: mortane_other_host.exe has version 0.9.0, this program has version "},
        Row{L"Usage: other|", "80080005: mortane_other_host.exe is not the program of that name"},
        Row{flood.c_str(), "80080005: mortane_other_host.exe is not the program of that name"},
        Row{mine.c_str(), "8001011F: mortane_other_host.exe did not answer within 1 sec"}}) {
    const Variable variable(L"MORTANE_OTHER_HOST", row.said);
    const std::string failure = Failure(other);
    EXPECT_TRUE(failure.starts_with("Mortane:" + std::string(row.failure)))
        << ToUtf8(row.said) << ": " << failure;
  }
}

TEST_F(OtherHost, ThatAnswersWronglyIsRefused) {
  for (const wchar_t* answer :
       {L"object|", L"object x|", L"object 99999999|", L"object -1|", L"failed|", L"failed 8000|x|",
        L"failed xyz|", L"|", L"object 8|12345678"}) {
    const Variable variable(L"MORTANE_OTHER_HOST", L"mortane-host32 " + ToWide(MORTANE_VERSION) +
                                                       L"|" + std::wstring(answer));
    const Clock::time_point start = Clock::now();
    EXPECT_NE(Failure(other), "") << ToUtf8(answer);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
  }
}

}  // namespace
}  // namespace mortane::controller::test
