// Which way to a library's class is taken, and what is told when none leads to it.
#include "controller/com/LibraryWays.h"

#include "comserver/ServerHost.h"
#include "controller/contract/com/ComBackEnd.h"
#include "controller/contract/com/Variable.h"
#include "platform/windows/Wide.h"

namespace mortane::controller::test {
namespace {

using comserver::AllHostFiles;
using comserver::HostFiles;
using comserver::NewFamily;
using comserver::OwnHostFiles;
using comserver::RegisteredLibrary;
using comserver::RegisteredNames;

constexpr wchar_t kVariable[] = L"MORTANE_LIBRARY";
constexpr std::size_t kControlPlace = comserver::kTestControl;

std::string Id(const comserver::ClassFamily& family) {
  return ToUtf8(comserver::GuidText(family.ClassId(kControlPlace)));
}

// In which process a class's object is made; a failure as its text.
std::string Process(const std::string& className, LibraryWays ways,
                    const std::wstring& host = OwnHostFiles().Host()) {
  ComLibrary library({{"TestControl", className}}, ways, host);
  std::int32_t id = 0;
  const std::string failure = FailureOf(
      [&] { id = std::get<std::int32_t>(library.Create("TestControl")->Get("ProcessId")); });
  if (!failure.empty()) return failure;
  return id == static_cast<std::int32_t>(GetCurrentProcessId()) ? "own" : "other";
}

std::string Text(const char* where, HRESULT result) {
  return std::string(where) + ": " + SystemMessage(static_cast<unsigned long>(result));
}

const char* const kOwn = "in this program's process";
const char* const kServer = "in a registered server's process";
const char* const kHost = "in mortane-host32.exe";

TEST(LibraryWays, AreTheEnvironments) {
  EXPECT_EQ(WaysOfEnvironment(), LibraryWays::kAny);
  {
    const Variable variable(kVariable, L"inprocess");
    EXPECT_EQ(WaysOfEnvironment(), LibraryWays::kInProcess);
  }
  {
    const Variable variable(kVariable, L"host32");
    EXPECT_EQ(WaysOfEnvironment(), LibraryWays::kHost32);
  }
  for (const wchar_t* wrong : {L"Host32", L"host", L"host32 ", L"localserver"}) {
    const Variable variable(kVariable, wrong);
    EXPECT_EQ(FailureOf([] { WaysOfEnvironment(); }),
              "Mortane:80070057: MORTANE_LIBRARY is \"" + ToUtf8(wrong) +
                  "\", which is neither \"inprocess\" nor \"host32\"");
  }
}

TEST(LibraryWays, LeadToTheProgramsOwnProcessFirst) {
  const RegisteredLibrary registered(OwnHostFiles(), L"mortane_test_library.dll");
  const std::string id = Id(registered.Family());
  EXPECT_EQ(Process(id, LibraryWays::kAny), "own");
  EXPECT_EQ(Process(id, LibraryWays::kInProcess), "own");
  EXPECT_EQ(Process(id, LibraryWays::kHost32), "other");
  const std::string name = ToUtf8(registered.Name(kControlPlace));
  EXPECT_EQ(Process(name, LibraryWays::kAny), "own");
  EXPECT_EQ(Process(name, LibraryWays::kHost32), "other");
}

TEST(LibraryWays, LeadToARegisteredServerWithoutTheHost) {
  const comserver::ServerProcess server;
  const std::string id = Id(server.Family());
  EXPECT_EQ(Process(id, LibraryWays::kAny, L"no-such-host.exe"), "other");
  EXPECT_EQ(Process(id, LibraryWays::kInProcess),
            "Mortane:80040154: " + Text(kOwn, REGDB_E_CLASSNOTREG));
  EXPECT_EQ(Process(id, LibraryWays::kHost32),
            "Mortane:80040154: " + Text(kHost, REGDB_E_CLASSNOTREG));
}

TEST(LibraryWays, AreAllToldWhenNoneLeadsToTheClass) {
  const std::string id = Id(NewFamily());
  const std::string both = Text(kOwn, REGDB_E_CLASSNOTREG) + " (80040154)\r\n" +
                           Text(kServer, REGDB_E_CLASSNOTREG) + " (80040154)\r\n";
  EXPECT_EQ(Process(id, LibraryWays::kAny),
            "Mortane:80040154: " + both + Text(kHost, REGDB_E_CLASSNOTREG));
  const HRESULT missing = HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(Process(id, LibraryWays::kAny, comserver::ServerFile(L"no-such-host.exe")),
            "Mortane:80070002: " + both + Text(kHost, missing));
}

TEST(LibraryWays, TryNothingForANameThatNobodyKnows) {
  for (const LibraryWays ways : {LibraryWays::kAny, LibraryWays::kInProcess}) {
    EXPECT_EQ(Process("Mortane.NoSuchClass", ways, L"no-such-host.exe"),
              "Mortane:800401F3: " + SystemMessage(static_cast<unsigned long>(CO_E_CLASSSTRING)));
  }
}

TEST(LibraryWays, RaiseTheFailureThatSaysMoreThanThatAClassIsNotRegistered) {
  const Variable fault(L"MORTANE_FAULTY", L"fails");
  const RegisteredLibrary registered(OwnHostFiles(), L"mortane_faulty_library.dll");
  const std::string id = ToUtf8(comserver::GuidText(registered.Family().ClassId(0)));
  EXPECT_EQ(Process(id, LibraryWays::kAny),
            "Mortane:80041234: " + Text(kServer, REGDB_E_CLASSNOTREG) + " (80040154)\r\n" +
                Text(kOwn, static_cast<HRESULT>(0x80041234)));
}

// A broken entry is no class that is not registered: the host is left alone.
TEST(LibraryWays, LeaveTheHostAloneForALibraryOf64BitsThatCannotBeLoaded) {
  const HostFiles nowhere{L"C:\\no-such-folder\\", false};
  const RegisteredLibrary registered(nowhere, L"mortane_test_library.dll");
  const std::string failure = Process(Id(registered.Family()), LibraryWays::kAny);
  EXPECT_EQ(failure.find(kHost), std::string::npos) << failure;
  EXPECT_NE(failure.find(kOwn), std::string::npos) << failure;
}

TEST(LibraryWays, LeadToTheHostForALibraryOf32BitsByItsNameAsByItsIdentifier) {
  for (const HostFiles& files : AllHostFiles()) {
    const RegisteredLibrary registered(files, L"mortane_test_library.dll");
    const std::string name = ToUtf8(registered.Name(kControlPlace));
    EXPECT_EQ(Process(name, files.Ways(), files.Host()), "other");
    EXPECT_EQ(Process(Id(registered.Family()), files.Ways(), files.Host()), "other");
  }
}

}  // namespace
}  // namespace mortane::controller::test
