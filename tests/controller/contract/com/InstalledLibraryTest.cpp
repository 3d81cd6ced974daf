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
  EXPECT_EQ(FailureOf([] { OpenInstalledLibrary(); }),
            "Mortane:80040154: {6B0F4E54-0000-4C0B-9D11-3E8A705C2100}: not registered");
}

}  // namespace
}  // namespace mortane::controller::test
