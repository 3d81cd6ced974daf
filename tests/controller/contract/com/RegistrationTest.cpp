// The test server in the system's list of classes, where the system loads or starts it itself.
#include <filesystem>

#include "comserver/ServerHost.h"
#include "controller/SimulatedRig.h"
#include "controller/contract/BackEnd.h"
#include "controller/contract/com/Variable.h"
#include "controller/simulator/BenchFile.h"
#include "platform/windows/Wide.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using comserver::ClassesOf;
using comserver::Handle;
using comserver::ServerFile;
using comserver::ServerProcess;

using mortane::test::TempFolder;

constexpr DWORD kRunMs = 30000;

// The exit code of a program that is run to its end.
DWORD RunToEnd(const std::wstring& command) {
  std::wstring line = command;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process) == FALSE) {
    return GetLastError();
  }
  const Handle thread(process.hThread);
  const Handle running(process.hProcess);
  WaitForSingleObject(running.get(), kRunMs);
  DWORD code = 0;
  GetExitCodeProcess(running.get(), &code);
  return code;
}

std::vector<ComClass> Named(std::wstring_view prefix) {
  std::vector<ComClass> classes;
  for (std::size_t place = 0; place < comserver::kClassNames.size(); ++place) {
    classes.push_back(
        {std::string(comserver::kClassNames[place]), ToUtf8(comserver::ProgId(prefix, place))});
  }
  return classes;
}

bool IsUnknown(ComLibrary& library) {
  return FailureOf([&] { library.Create("Microscope"); }).starts_with("Mortane:800401F3: ");
}

TEST(Registration, OfTheLibraryLetsTheSystemLoadIt) {
  ComLibrary library(Named(comserver::kInProcessPrefix));
  const std::wstring command = L"regsvr32 /s \"" + ServerFile(L"mortane_test_library.dll") + L"\"";
  ASSERT_EQ(RunToEnd(command), 0U);
  library.Create("TestControl")->Call("UseBench", {std::string("Crowd")});
  EXPECT_EQ(NewRoot(library).DeviceList().Item(1).Name(), "Alpha");
  EXPECT_EQ(RunToEnd(command + L" /u"), 0U);
  EXPECT_TRUE(IsUnknown(library));
}

TEST(Registration, OfTheProgramLetsTheSystemStartIt) {
  ComLibrary library(Named(comserver::kOwnProcessPrefix));
  const std::wstring program = L"\"" + ServerFile(L"mortane_test_server.exe") + L"\"";
  ASSERT_EQ(RunToEnd(program + L" /RegServer"), 0U);
  {
    const ObjectRef control = library.Create("TestControl");
    const Microscope root = NewRoot(library);
    EXPECT_EQ(root.DeviceList().Item(0).Name(), "Lab 2 East");
    EXPECT_NE(std::get<std::int32_t>(control->Get("ProcessId")),
              static_cast<std::int32_t>(GetCurrentProcessId()));
  }
  EXPECT_EQ(RunToEnd(program + L" /UnregServer"), 0U);
  EXPECT_TRUE(IsUnknown(library));
}

TEST(Registration, IsNeededForNothingElse) {
  EXPECT_EQ(RunToEnd(L"\"" + ServerFile(L"mortane_test_server.exe") + L"\""), 2U);
  EXPECT_EQ(
      RunToEnd(L"\"" + ServerFile(L"mortane_test_server.exe") + L"\" -Embedding -Family {no}"), 2U);
}

TEST(ServerBench, IsTheNamedOneOfTheEnvironment) {
  const Variable bench(L"MORTANE_SERVER_BENCH", L"Crowd");
  const ServerProcess server;
  ComLibrary library(ClassesOf(server.Family()));
  EXPECT_EQ(NewRoot(library).DeviceList().Count(), 5);
}

TEST(ServerBench, IsAFileThatFollowsEveryChange) {
  const TempFolder folder;
  const std::string path = folder.Path("bench.xml");
  WriteBenchFile(path, benches::Named("Harbour"));
  const Variable bench(L"MORTANE_SERVER_BENCH", ToWide(path));
  const ServerProcess server;
  ComLibrary library(ClassesOf(server.Family()));
  const Microscope root = ConnectedRoot(library, 1);
  EXPECT_EQ(root.DeviceList().Item(1).Name(), "Harbour");
  root.PutSystemName("Quai");
  EXPECT_EQ(ReadBenchFile(path).instruments[1].name, "Quai");
}

}  // namespace
}  // namespace mortane::controller::test
