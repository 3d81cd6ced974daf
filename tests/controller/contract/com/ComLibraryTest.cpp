// Classes, apartments, and the numbers of members.
#include "controller/com/ComLibrary.h"

#include <objbase.h>

#include <cstdlib>
#include <optional>
#include <thread>

#include "controller/SimulatedRig.h"
#include "controller/contract/com/ComBackEnd.h"

namespace mortane::controller::test {
namespace {

// A test's steps on a thread that has no apartment yet.
template <typename Steps>
void OnNewThread(Steps steps) {
  std::thread(steps).join();
}

// Nothing when the calling thread has no apartment.
std::optional<APTTYPE> Apartment() {
  APTTYPE type{};
  APTTYPEQUALIFIER qualifier{};
  if (FAILED(CoGetApartmentType(&type, &qualifier))) return {};
  return type;
}

bool IsSingleThreaded() {
  return Apartment() == APTTYPE_STA || Apartment() == APTTYPE_MAINSTA;
}

TEST(ComLibrary, EntersAnApartmentAndLeavesIt) {
  OnNewThread([] {
    EXPECT_FALSE(Apartment());
    {
      const ComLibrary library;
      EXPECT_TRUE(IsSingleThreaded());
    }
    EXPECT_FALSE(Apartment());
  });
}

TEST(ComLibrary, LeavesAnApartmentAloneThatWasThere) {
  OnNewThread([] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    {
      // Its end leaves the apartment as it was.
      const ComLibrary library;
    }
    EXPECT_TRUE(IsSingleThreaded());
    CoUninitialize();
    EXPECT_FALSE(Apartment());
  });
}

TEST(ComLibrary, IsMadeTwiceOnOneThread) {
  ComBackEnd<InProcessServer> backEnd("Quay");
  const auto classes = ClassesOf(backEnd.host().Family());
  ComLibrary second(classes);
  {
    ComLibrary first(classes);
    EXPECT_EQ(NewRoot(first).DeviceList().Count(), 1);
  }
  EXPECT_EQ(NewRoot(second).DeviceList().Count(), 1);
  EXPECT_EQ(backEnd.LiveObjects(), 0);
}

TEST(ComLibrary, IsRefusedOnAThreadOfAnotherKindWhichStaysAsItIs) {
  OnNewThread([] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const std::string failure = FailureOf([] { const ComLibrary library; });
    EXPECT_TRUE(failure.starts_with("Mortane:80010106: ")) << failure;
    EXPECT_GT(failure.size(), sizeof "Mortane:80010106: ");
    EXPECT_EQ(Apartment(), APTTYPE_MTA);
    CoUninitialize();
    EXPECT_FALSE(Apartment());
  });
}

std::string CreationFailure(std::vector<ComClass> classes, std::string_view name) {
  ComLibrary library(std::move(classes));
  return FailureOf([&] { library.Create(name); });
}

TEST(ComLibrary, FailsForAClassThatTheSystemDoesNotKnow) {
  struct Row {
    const char* registeredName;
    const char* failure;
  };
  for (const Row& row :
       {Row{"Mortane.NoSuchClass", "Mortane:800401F3: "},
        Row{"{not an identifier}", "Mortane:800401F3: "}, Row{"", "Mortane:800401F3: "},
        Row{"{6B0F4E5F-52A4-4C0B-9D11-3E8A705C2100}", "Mortane:80040154: "}}) {
    const std::string failure = CreationFailure({{"Microscope", row.registeredName}}, "Microscope");
    EXPECT_TRUE(failure.starts_with(row.failure)) << row.registeredName << ": " << failure;
    EXPECT_GT(failure.size(), std::string_view(row.failure).size());
  }
}

TEST(ComLibrary, FailsForAClassThatItDoesNotKnow) {
  EXPECT_TRUE(CreationFailure(InstalledClasses(), "Telescope").starts_with("Mortane:80040154: "));
}

TEST(InstalledClasses, AreTheLibrariesOwnUnlessTheEnvironmentNamesOthers) {
  const auto names = [] {
    std::vector<std::string> all;
    for (const ComClass& each : InstalledClasses()) all.push_back(each.name + "=" + each.progId);
    return all;
  };
  EXPECT_EQ(names(), (std::vector<std::string>{"Microscope=LENSMIRLib.Microscope",
                                               "FiberServer=RAVLINCONTROLSERVERLib.FiberServer",
                                               "FiberRemote=RAVLINCONTROLSERVERLib.FiberRemote"}));
  _putenv("MORTANE_PROGID_MICROSCOPE=Other.Microscope");
  _putenv("MORTANE_PROGID_FIBERSERVER=Other.Server");
  _putenv("MORTANE_PROGID_FIBERREMOTE={6B0F4E5F-52A4-4C0B-9D11-3E8A705C2100}");
  EXPECT_EQ(names(),
            (std::vector<std::string>{"Microscope=Other.Microscope", "FiberServer=Other.Server",
                                      "FiberRemote={6B0F4E5F-52A4-4C0B-9D11-3E8A705C2100}"}));
  _putenv("MORTANE_PROGID_MICROSCOPE=");
  _putenv("MORTANE_PROGID_FIBERSERVER=");
  _putenv("MORTANE_PROGID_FIBERREMOTE=");
}

// Reads a member of each kind of object through objects made anew.
void ReadSome(const Microscope& root) {
  root.ControllerPresent(1);
  root.NosepieceDevice().Position().Number();
  root.NosepieceDevice().Position().IsReadOnly();
  root.ZDriveDevice().Position().Number();
  root.NDFilterDevice().OffsetCode();
  root.FieldStopDevice().OffsetCode();
  const TurretEnumerator walk = root.FilterCubeDevice().Positions().Enumerate();
  while (const auto place = walk.Next()) place->Code();
}

TEST(MemberNumbers, AreAskedForOnceForEachInterfaceAndName) {
  ComBackEnd<InProcessServer> backEnd("Quay");
  const Microscope root = ConnectedRoot(backEnd.Library());
  const int before = backEnd.NameQueries();
  ReadSome(root);
  const int first = backEnd.NameQueries();
  // Six of the root, one of each turret and of the focus drive; IsReadOnly, OffsetCode and Code.
  // The two stops have one interface.
  constexpr int kMembers = 6 + 3 + 3;
  EXPECT_EQ(first - before, kMembers);
  ReadSome(root);
  const Microscope other = NewRoot(backEnd.Library());
  other.PutCurrentDevice(other.DeviceList().Item(0));
  ReadSome(other);
  EXPECT_EQ(backEnd.NameQueries(), first);
}

TEST(MemberNumbers, OfALibraryAreNotThoseOfAnother) {
  ComBackEnd<InProcessServer> backEnd("Quay");
  NewRoot(backEnd.Library()).DeviceList();
  const int before = backEnd.NameQueries();
  ComLibrary second(ClassesOf(backEnd.host().Family()));
  NewRoot(second).DeviceList();
  EXPECT_EQ(backEnd.NameQueries(), before + 1);
}

TEST(MemberNumbers, OfAnObjectInAnotherProcessAreAskedForOnceForEachObjectAndName) {
  ComBackEnd<ServerProcess> backEnd("Quay");
  const Microscope root = ConnectedRoot(backEnd.Library());
  const int before = backEnd.NameQueries();
  for (int i = 0; i < 3; ++i) root.ControllerPresent(1);
  EXPECT_EQ(backEnd.NameQueries(), before + 1);
}

}  // namespace
}  // namespace mortane::controller::test
