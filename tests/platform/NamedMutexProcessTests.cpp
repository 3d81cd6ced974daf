// Two processes and one name.
#include <gtest/gtest.h>

#include <string>

#include "platform/NamedMutex.h"
#include "support/SecondProcess.h"
#include "support/UniqueName.h"

namespace mortane {
namespace {

using Opened = NamedMutex::Opened;
using test::SecondProcess;
using test::Words;

const SecondProcess::Part kOpen{"open", [](const SecondProcess::Side&, const Words& words) {
                                  return static_cast<int>(NamedMutex().Open(words.at(0)));
                                }};

int OpenElsewhere(const std::string& name) {
  return SecondProcess(kOpen, {name}).Wait();
}

const SecondProcess::Part kHold{"hold", [](const SecondProcess::Side& test, const Words& words) {
                                  NamedMutex mutex;
                                  if (mutex.Open(words.at(0)) != Opened::First) return 1;
                                  test.Tell();
                                  test.AwaitTest();
                                  return 0;
                                }};

const SecondProcess::Part kOwn{"own", [](const SecondProcess::Side& test, const Words& words) {
                                 NamedMutex mutex;
                                 mutex.Open(words.at(0));
                                 mutex.Lock(-1);
                                 test.Tell();
                                 test.AwaitTest();
                                 mutex.Unlock();
                                 test.Tell();
                                 test.AwaitTest();
                                 return 0;
                               }};

TEST(NamedMutexOfTwoProcesses, ExcludesTheSecondProcess) {
  const test::UniqueName unique;
  // The second one has characters that neither a file nor an 8-bit code page could hold.
  for (const std::string& name : {unique.Text(), unique.Text() + "-\xC3\xA4 \xE6\x97\xA5/:"}) {
    NamedMutex holder;
    ASSERT_EQ(holder.Open(name), Opened::First);
    EXPECT_EQ(OpenElsewhere(name), static_cast<int>(Opened::AlreadyExisted)) << name;
    holder.Close();
    EXPECT_EQ(OpenElsewhere(name), static_cast<int>(Opened::First)) << name;
  }
}

TEST(NamedMutexOfTwoProcesses, TellsApartWhatAnotherScopeOrAnotherCaseHas) {
  const test::UniqueName unique;
  NamedMutex holder;
  ASSERT_EQ(holder.Open(unique.Text() + "a"), Opened::First);
  EXPECT_EQ(OpenElsewhere(unique.Text() + "A"), static_cast<int>(Opened::First));
  const std::string scope = NamedMutex::Scope();
  NamedMutex::SetScope(scope + "other-");
  EXPECT_EQ(OpenElsewhere(unique.Text() + "a"), static_cast<int>(Opened::First));
  NamedMutex::SetScope(scope);
}

TEST(NamedMutexOfTwoProcesses, IsFreeOnceItsHolderHasEnded) {
  const test::UniqueName unique;
  SecondProcess holder(kHold, {unique.Text()});
  holder.Await();
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::AlreadyExisted);
  holder.Tell();
  EXPECT_EQ(holder.Wait(), 0);
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::First);
}

TEST(NamedMutexOfTwoProcesses, IsFreeOnceItsHolderWasKilled) {
  const test::UniqueName unique;
  SecondProcess holder(kHold, {unique.Text()});
  holder.Await();
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::AlreadyExisted);
  holder.Kill();
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::First);
}

TEST(NamedMutexOfTwoProcesses, IsOwnedApartFromTheName) {
  const test::UniqueName unique;
  NamedMutex holder;
  ASSERT_EQ(holder.Open(unique.Text()), Opened::First);
  SecondProcess other(kOwn, {unique.Text()});
  other.Await();
  holder.Lock(0);  // in vain, and back at once
  other.Tell();
  other.Await();
  holder.Lock(-1);
  other.Tell();
  EXPECT_EQ(other.Wait(), 0);
}

// A wait without a limit would never end if the killed process still owned the mutex.
TEST(NamedMutexOfTwoProcesses, IsOwnedByTheNextOnceItsOwnerWasKilled) {
  const test::UniqueName unique;
  NamedMutex holder;
  ASSERT_EQ(holder.Open(unique.Text()), Opened::First);
  SecondProcess owner(kOwn, {unique.Text()});
  owner.Await();
  owner.Kill();
  holder.Lock(-1);
  SecondProcess next(kOwn, {unique.Text()});
  holder.Unlock();
  next.Await();
}

}  // namespace
}  // namespace mortane
