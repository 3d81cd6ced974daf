// The microscope object's own small members, its device name lock and its life.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "common/Failure.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "support/RefusedMutex.h"
#include "support/Rig.h"

namespace mortane::test {
namespace {

TEST(MicroscopeObject, StartsUnconnectedWithNothingMounted) {
  Rig rig("Quay");
  EXPECT_EQ(rig.k70.lConnectDevice, -1);
  EXPECT_EQ(rig.k70.curType, 0);
  for (std::int32_t i = 0; i <= 6; ++i) EXPECT_FALSE(rig.k70.Controller(i));
  for (std::int32_t i = 1; i <= 14; ++i) EXPECT_EQ(rig.k70.IsMounted(i), 0);
}

TEST(MicroscopeObject, CreationListsTheDevicesOnce) {
  RigLibrary library(benches::Named("Quay"));
  clsK70 k70(library.library, library.prompts);
  EXPECT_EQ(library.journal.CallCount(), 0U) << "its units can be given away before that";
  k70.Initialize();
  ASSERT_EQ(library.journal.Lines().size(), 1U);
  EXPECT_EQ(library.journal.Lines()[0], "DeviceList.Count -> 1");
}

TEST(MicroscopeObject, AFailedCreationShowsTheNumberAndGoesOn) {
  RigLibrary library(benches::Named("Quay"));
  library.faults.Add({"DeviceList.Count", 1});
  library.prompts.ExpectBox("*** clsK70_Initialize Error!!(80004005)", box::kOk, Answer::Ok);
  clsK70 k70(library.library, library.prompts);
  k70.Initialize();
  EXPECT_EQ(k70.lConnectDevice, -1);
  EXPECT_TRUE(k70.Connect(0));
}

TEST(MicroscopeObject, WithoutARootEveryUseFailsInItsOwnWay) {
  RigLibrary library(benches::Named("Quay"));
  library.faults.Add({"Create(Microscope)"});
  library.prompts.ExpectBox("*** clsK70_Initialize Error!!(80004005)", box::kOk, Answer::Ok);
  clsK70 k70(library.library, library.prompts);
  k70.Initialize();
  library.prompts.ExpectBox("*** DeviceCount Error!!(5B)", box::kOk, Answer::Ok);
  EXPECT_EQ(k70.DeviceCount(), 0);
  EXPECT_FALSE(k70.Connect(0));
  library.prompts.ExpectBox("*** DbNosepiece.ReadDB Error!!(5B)", box::kOk, Answer::Ok);
  library.prompts.ExpectBox("System Name", box::kCritical, Answer::Ok);
  k70.Receive();
}

TEST(MicroscopeObject, IndicesBelowAndAboveTheAccessoriesAnswerNotMounted) {
  Rig rig("Quay");
  rig.Connect();
  EXPECT_EQ(rig.k70.IsMounted(1), 2);
  EXPECT_EQ(rig.k70.IsMounted(14), 2);
  EXPECT_EQ(rig.k70.IsMounted(0), 0);
  EXPECT_EQ(rig.k70.IsMounted(15), 0);
}

TEST(MicroscopeObject, IndicesBelowAndAboveTheControllersAnswerFalse) {
  Rig rig("DeckRemote");
  rig.Connect();
  EXPECT_TRUE(rig.k70.Controller(6));
  EXPECT_FALSE(rig.k70.Controller(-1));
  EXPECT_FALSE(rig.k70.Controller(7));
}

TEST(MicroscopeObject, HasInterlocksWhereOneOfTheThreeUnitsHasOne) {
  std::string (*const reads[])(clsK70&) = {
      [](clsK70& k70) { return k70.ILObservation.ReadSdk(); },
      [](clsK70& k70) { return k70.ILOther.ReadSdk(); },
      [](clsK70& k70) { return k70.ILOffset.ReadSdk(); },
  };
  for (const auto& read : reads) {
    Rig rig("Harbour");
    rig.Connect();
    EXPECT_FALSE(rig.k70.IsInterlockEnable()) << "nothing is known before a Receive";
    EXPECT_EQ(read(rig.k70), "");
    EXPECT_TRUE(rig.k70.IsInterlockEnable());
  }
}

TEST(MicroscopeObject, FileItemsKeepWhatIsStored) {
  Rig rig("Quay");
  for (std::int16_t i = 0; i <= 9; ++i) {
    EXPECT_EQ(rig.k70.FileItem(i), 0);
    rig.k70.FileItem(i, -1);
    EXPECT_EQ(rig.k70.FileItem(i), -1);
  }
}

TEST(MicroscopeObject, FileItemsOutsideZeroToNineReadZeroAndStoreNothing) {
  Rig rig("Quay");
  for (const std::int16_t pos : {std::int16_t{-1}, std::int16_t{10}, std::int16_t{32767}}) {
    rig.k70.FileItem(pos, -1);
    EXPECT_EQ(rig.k70.FileItem(pos), 0) << pos;
    for (std::int16_t i = 0; i <= 9; ++i) EXPECT_EQ(rig.k70.FileItem(i), 0) << pos << ' ' << i;
  }
}

TEST(DeviceLock, TheSameNameTwiceInARowSucceedsTwice) {
  Rig rig("Quay");
  EXPECT_TRUE(rig.k70.CreateConnectionName("901"));
  EXPECT_TRUE(rig.k70.CreateConnectionName("901"));
}

TEST(DeviceLock, AnotherNameLetsGoOfTheFirst) {
  Rig rig("Quay");
  clsMutex other;
  ASSERT_TRUE(rig.k70.CreateConnectionName("902"));
  ASSERT_TRUE(rig.k70.CreateConnectionName("903"));
  EXPECT_TRUE(other.Create("MortaneConnection-393032"));
}

TEST(DeviceLock, TheNameIsMadeOfTheHexadecimalCodesOfTheIndex) {
  Rig rig("Quay");
  clsMutex other;
  ASSERT_TRUE(other.Create("MortaneConnection-393132"));  // 9, 1, 2
  EXPECT_FALSE(rig.k70.CreateConnectionName("912"));
  EXPECT_TRUE(rig.k70.CreateConnectionName("913"));
}

// Notes the names that it is opened with.
class NotedMutex : public NamedMutex {
 public:
  explicit NotedMutex(std::vector<std::string>& names) : notes_(names) {}
  Opened Open(std::string_view name) override {
    notes_.emplace_back(name);
    return NamedMutex::Open(name);
  }

 private:
  std::vector<std::string>& notes_;
};

TEST(DeviceLock, CodesAreUpperCaseWithoutLeadingZeros) {
  std::vector<std::string> names;
  RigLibrary library(benches::Named("Quay"));
  clsK70 k70(library.library, library.prompts, [&] { return std::make_unique<NotedMutex>(names); });
  for (const char* name : {"1", "12", "jO", "\x05", ""})
    EXPECT_TRUE(k70.CreateConnectionName(name));
  EXPECT_EQ(names, (std::vector<std::string>{"MortaneConnection-31", "MortaneConnection-3132",
                                             "MortaneConnection-6A4F", "MortaneConnection-5",
                                             "MortaneConnection-"}));
}

TEST(DeviceLock, IsFreeAgainAfterDeleteConnectionName) {
  Rig rig("Quay");
  clsMutex other;
  ASSERT_TRUE(rig.k70.CreateConnectionName("904"));
  rig.k70.DeleteConnectionName();
  EXPECT_TRUE(other.Create("MortaneConnection-393034"));
}

TEST(DeviceLock, IsFreeAgainAfterTheModelHasGone) {
  clsMutex other;
  {
    Rig rig("Quay");
    ASSERT_TRUE(rig.k70.CreateConnectionName("905"));
    EXPECT_FALSE(other.Create("MortaneConnection-393035"));
    other.Delete();
  }
  EXPECT_TRUE(other.Create("MortaneConnection-393035"));
}

TEST(DeviceLock, ASecondCreateWithoutDeleteRaisesError55) {
  clsMutex mutex;
  ASSERT_TRUE(mutex.Create("MortaneConnection-393036"));
  try {
    mutex.Create("MortaneConnection-393036");
    FAIL() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), 55);
  }
}

TEST(DeviceLock, TheLoserHoldsItsHandleToo) {
  clsMutex winner;
  clsMutex loser;
  ASSERT_TRUE(winner.Create("MortaneConnection-393037"));
  EXPECT_FALSE(loser.Create("MortaneConnection-393037"));
  EXPECT_THROW(loser.Create("MortaneConnection-393037"), Failure);
}

// A thread of its own, because a mutex of Windows belongs to a thread.
std::chrono::steady_clock::duration TimeToLock(clsMutex& mutex, int milliseconds) {
  std::chrono::steady_clock::duration time{};
  std::thread([&] {
    const auto start = std::chrono::steady_clock::now();
    mutex.LockMutex(milliseconds);
    time = std::chrono::steady_clock::now() - start;
    mutex.UnlockMutex();
  }).join();
  return time;
}

TEST(DeviceLock, CanBeOwnedWhicheverCameFirstToTheName) {
  using std::chrono::milliseconds;
  using std::chrono::seconds;
  clsMutex first;
  clsMutex second;
  ASSERT_TRUE(first.Create("MortaneConnection-393038"));
  ASSERT_FALSE(second.Create("MortaneConnection-393038"));
  second.LockMutex(-1);
  EXPECT_GE(TimeToLock(first, 60), milliseconds(40)) << "the system's clock has coarse steps";
  second.UnlockMutex();
  EXPECT_LT(TimeToLock(first, 20000), seconds(10));
}

TEST(DeviceLock, WithoutANameIsNeitherOwnedNorWaitedFor) {
  clsMutex mutex;
  mutex.LockMutex(-1);
  mutex.UnlockMutex();
  mutex.Delete();
  EXPECT_TRUE(mutex.Create("MortaneConnection-393039"));
}

TEST(DeviceLock, ANameThatTheSystemRefusesRaisesError52WithTheName) {
  clsMutex mutex(MakeRefusedMutex());
  for (int attempt = 0; attempt < 2; ++attempt) {  // nothing is held after the first one
    try {
      mutex.Create("MortaneConnection-31");
      FAIL() << "nothing was raised";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Source(), "Mortane");
      EXPECT_EQ(failure.Number(), 52);
      EXPECT_EQ(failure.Description(), "The system refuses the device name MortaneConnection-31.");
    }
  }
}

TEST(DeviceLock, ANameThatTheSystemRefusesGoesToTheCaller) {
  RigLibrary library(benches::Named("Quay"));
  clsK70 k70(library.library, library.prompts, MakeRefusedMutex);
  EXPECT_THROW(k70.CreateConnectionName("1"), Failure);
  EXPECT_NO_THROW(k70.DeleteConnectionName());
}

TEST(MicroscopeObject, DisconnectsInSilenceWhenItGoes) {
  RigLibrary library(benches::Named("Quay"));
  {
    clsK70 k70(library.library, library.prompts);
    k70.Initialize();
    ASSERT_TRUE(k70.Connect(0));
    library.journal.Clear();
    library.faults.Add({"DeviceList.Item.Disconnect"});
  }
  ASSERT_EQ(library.journal.Lines().size(), 1U);
  EXPECT_EQ(library.journal.Lines()[0], "DeviceList.Item(0).Disconnect() ! LIB:80004005");
}

TEST(MicroscopeObject, AsksNothingWhenItGoesUnconnected) {
  RigLibrary library(benches::Named("Quay"));
  {
    clsK70 k70(library.library, library.prompts);
    k70.Initialize();
    library.journal.Clear();
  }
  EXPECT_TRUE(library.journal.Lines().empty());
}

TEST(MicroscopeObject, TheOneInstanceAsksTheLibraryOnFirstUseAndStays) {
  RigLibrary library(benches::Named("Quay"));
  clsK70& provided = ProvideK70(library.library, library.prompts);
  EXPECT_EQ(library.journal.CallCount(), 0U);
  clsK70& first = GetK70();
  EXPECT_EQ(&first, &provided);
  const std::size_t calls = library.journal.CallCount();
  EXPECT_GT(calls, 0U);
  EXPECT_EQ(&GetK70(), &first);
  EXPECT_EQ(library.journal.CallCount(), calls);
  ReleaseK70();
}

TEST(MicroscopeObject, ThereIsNoSecondInstanceAfterTheFirstIsReleased) {
  RigLibrary library(benches::Named("Quay"));
  ProvideK70(library.library, library.prompts);
  ReleaseK70();
  try {
    GetK70();
    ADD_FAILURE() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), 91);
    EXPECT_EQ(failure.Description(), "There is no microscope object.");
  }
  EXPECT_EQ(library.journal.CallCount(), 0U);
}

}  // namespace
}  // namespace mortane::test
