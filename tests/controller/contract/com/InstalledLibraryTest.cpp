#include "controller/InstalledLibrary.h"

#include "comserver/ServerHost.h"
#include "controller/SimulatedRig.h"
#include "controller/contract/BackEnd.h"
#include "controller/contract/com/Variable.h"
#include "platform/windows/Wide.h"

namespace mortane::controller::test {
namespace {

constexpr wchar_t kVariable[] = L"MORTANE_PROGID_MICROSCOPE";

TEST(InstalledLibrary, IsOfTheClassThatTheEnvironmentNames) {
  const comserver::InProcessServer server;
  const std::string progId = comserver::ClassesOf(server.Family()).front().progId;
  const Variable name(kVariable, ToWide(progId));
  const std::unique_ptr<ControllerLibrary> library = OpenInstalledLibrary();
  ASSERT_NE(library, nullptr);
  EXPECT_EQ(NewRoot(*library).DeviceList().Item(0).Name(), "Lab 2 East");
}

TEST(InstalledLibrary, ThatNobodyRegisteredIsToldByItsName) {
  EXPECT_EQ(FailureOf([] { OpenInstalledLibrary(); }),
            "Mortane:800401F3: LENSMIRLib.Microscope: not registered");
  const Variable name(kVariable, L"{6B0F4E54-0000-4C0B-9D11-3E8A705C2100}");
  const std::string reason = SystemMessage(static_cast<unsigned long>(REGDB_E_CLASSNOTREG));
  EXPECT_EQ(FailureOf([] { OpenInstalledLibrary(); }),
            "Mortane:80040154: {6B0F4E54-0000-4C0B-9D11-3E8A705C2100}:\r\n"
            "in this program's process: " +
                reason + " (80040154)\r\nin a registered server's process: " + reason +
                " (80040154)\r\nin mortane-host32.exe: " + reason);
}

TEST(InstalledLibrary, IsLookedForInTheWayThatTheEnvironmentNamesAlone) {
  const Variable name(kVariable, L"{6B0F4E54-0000-4C0B-9D11-3E8A705C2100}");
  const Variable way(L"MORTANE_LIBRARY", L"host32");
  EXPECT_EQ(FailureOf([] { OpenInstalledLibrary(); }),
            "Mortane:80040154: {6B0F4E54-0000-4C0B-9D11-3E8A705C2100}:\r\nin mortane-host32.exe: " +
                SystemMessage(static_cast<unsigned long>(REGDB_E_CLASSNOTREG)));
}

TEST(InstalledLibrary, IsRefusedForAWayThatDoesNotExist) {
  const Variable way(L"MORTANE_LIBRARY", L"surrogate");
  EXPECT_TRUE(FailureOf([] { OpenInstalledLibrary(); }).starts_with("Mortane:80070057: "));
}

}  // namespace
}  // namespace mortane::controller::test
