#include "platform/NamedMutex.h"

#include <gtest/gtest.h>

#include <string>

#include "support/UniqueName.h"

namespace mortane {
namespace {

using Opened = NamedMutex::Opened;

TEST(NamedMutex, IsFirstUnderAFreeName) {
  const test::UniqueName unique;
  NamedMutex mutex;
  EXPECT_FALSE(mutex.IsOpen());
  EXPECT_EQ(mutex.Open(unique.Text()), Opened::First);
  EXPECT_TRUE(mutex.IsOpen());
}

TEST(NamedMutex, ExcludesAnotherHolderInTheSameProcess) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  NamedMutex holder;
  ASSERT_EQ(holder.Open(name), Opened::First);
  NamedMutex loser;
  EXPECT_EQ(loser.Open(name), Opened::AlreadyExisted);
  EXPECT_TRUE(loser.IsOpen());
}

TEST(NamedMutex, FreesTheNameWhenItCloses) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  NamedMutex holder;
  ASSERT_EQ(holder.Open(name), Opened::First);
  holder.Close();
  EXPECT_FALSE(holder.IsOpen());
  NamedMutex next;
  EXPECT_EQ(next.Open(name), Opened::First);
}

TEST(NamedMutex, FreesTheNameWhenItIsDestroyed) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  {
    NamedMutex first;
    EXPECT_EQ(first.Open(name), Opened::First);
  }
  EXPECT_EQ(NamedMutex().Open(name), Opened::First);
}

TEST(NamedMutex, OpenedTwiceClosesFirst) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  NamedMutex mutex;
  ASSERT_EQ(mutex.Open(name), Opened::First);
  EXPECT_EQ(mutex.Open(name), Opened::First);
  EXPECT_EQ(mutex.Open(name + "-other"), Opened::First);
  EXPECT_EQ(NamedMutex().Open(name), Opened::First) << "the first name is free again";
}

TEST(NamedMutex, HoldsNamesApart) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  NamedMutex one;
  NamedMutex two;
  EXPECT_EQ(one.Open(name + "-31"), Opened::First);
  EXPECT_EQ(two.Open(name + "-3132"), Opened::First);
}

TEST(NamedMutex, HoldsScopesApart) {
  const test::UniqueName unique;
  const std::string scope = NamedMutex::Scope();
  NamedMutex one;
  NamedMutex two;
  EXPECT_EQ(one.Open(unique.Text()), Opened::First);
  NamedMutex::SetScope(unique.Text() + "-");
  EXPECT_EQ(two.Open(unique.Text()), Opened::First);
  NamedMutex::SetScope(scope);
  EXPECT_EQ(two.Open(unique.Text()), Opened::AlreadyExisted);
}

TEST(NamedMutex, TakesNamesThatNoFileCouldHave) {
  const test::UniqueName unique;
  const std::string& name = unique.Text();
  NamedMutex slash;
  NamedMutex escaped;
  EXPECT_EQ(slash.Open(name + "/../x y\xC2\xB5%"), Opened::First);
  EXPECT_EQ(escaped.Open(name + "%2F..%2Fx y\xC2\xB5%"), Opened::First);
  EXPECT_EQ(NamedMutex().Open(name + "/../x y\xC2\xB5%"), Opened::AlreadyExisted);
}

TEST(NamedMutex, CanBeOwnedAgainByItsOwner) {
  const test::UniqueName unique;
  NamedMutex mutex;
  ASSERT_EQ(mutex.Open(unique.Text()), Opened::First);
  mutex.Lock(-1);
  mutex.Lock(-1);
  mutex.Unlock();
  mutex.Unlock();
}

TEST(NamedMutex, DoesNothingWhenClosed) {
  NamedMutex mutex;
  mutex.Lock(-1);
  mutex.Unlock();
  mutex.Close();
  EXPECT_FALSE(mutex.IsOpen());
}

}  // namespace
}  // namespace mortane
