// The kernel objects behind a name.
#include <gtest/gtest.h>
#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <string>

#include "platform/NamedMutex.h"
#include "platform/windows/Handle.h"
#include "support/UniqueName.h"
#include "support/Utf8Path.h"

namespace mortane {
namespace {

using Opened = NamedMutex::Opened;

// The name in the session of the user, and that of the machine.
constexpr const char* kNamespaces[] = {"Local\\", "Global\\"};

std::wstring ObjectName(const std::string& space, const std::string& name) {
  return test::PathOf(space + NamedMutex::Scope() + name).native();
}

bool Stands(const std::wstring& name) {
  return Handle(OpenMutexW(SYNCHRONIZE, FALSE, name.c_str())).IsOpen();
}

TEST(NamedMutexObjects, StandForTheSessionAndForTheMachine) {
  const test::UniqueName unique;
  NamedMutex mutex;
  ASSERT_EQ(mutex.Open(unique.Text()), Opened::First);
  for (const char* space : kNamespaces) EXPECT_TRUE(Stands(ObjectName(space, unique.Text())));
  mutex.Close();
  for (const char* space : kNamespaces) EXPECT_FALSE(Stands(ObjectName(space, unique.Text())));
}

// A program of another make takes the plain name, one in another user's session the machine's.
TEST(NamedMutexObjects, AreEachEnoughToExclude) {
  const test::UniqueName unique;
  for (const char* space : kNamespaces) {
    const std::wstring name = ObjectName(space, unique.Text());
    const Handle other(CreateMutexW(nullptr, FALSE, name.c_str()));
    ASSERT_TRUE(other.IsOpen());
    NamedMutex mutex;
    EXPECT_EQ(mutex.Open(unique.Text()), Opened::AlreadyExisted) << space;
    EXPECT_TRUE(mutex.IsOpen());
  }
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::First);
}

std::string AccessTo(const std::wstring& name) {
  const Handle mutex(OpenMutexW(READ_CONTROL, FALSE, name.c_str()));
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (GetSecurityInfo(mutex.Get(), SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                      nullptr, nullptr, &descriptor) != ERROR_SUCCESS) {
    return "unknown";
  }
  wchar_t* text = nullptr;
  ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                       DACL_SECURITY_INFORMATION, &text, nullptr);
  const std::string access = test::Utf8Of(text);
  LocalFree(text);
  LocalFree(descriptor);
  return access;
}

TEST(NamedMutexObjects, CanBeOpenedByEveryone) {
  const test::UniqueName unique;
  NamedMutex mutex;
  ASSERT_EQ(mutex.Open(unique.Text()), Opened::First);
  for (const char* space : kNamespaces) {
    const std::string access = AccessTo(ObjectName(space, unique.Text()));
    EXPECT_NE(access.find("(A;;0x100001;;;WD)"), std::string::npos) << access;
  }
}

TEST(NamedMutexObjects, AreKeptByAnObjectThatCameSecond) {
  const test::UniqueName unique;
  NamedMutex holder;
  NamedMutex loser;
  ASSERT_EQ(holder.Open(unique.Text()), Opened::First);
  ASSERT_EQ(loser.Open(unique.Text()), Opened::AlreadyExisted);
  holder.Close();
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::AlreadyExisted);
  loser.Close();
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::First);
}

TEST(NamedMutex, FailsUnderANameThatTheSystemRefuses) {
  const test::UniqueName unique;
  for (const std::string& name : {unique.Text() + "\\31", "Global\\" + unique.Text()}) {
    NamedMutex mutex;
    EXPECT_EQ(mutex.Open(name), Opened::Failed) << name;
    EXPECT_FALSE(mutex.IsOpen());
  }
}

TEST(NamedMutex, FailsUnderANameThatAnotherKindOfObjectHas) {
  const test::UniqueName unique;
  for (const char* space : kNamespaces) {
    const std::wstring name = ObjectName(space, unique.Text());
    const Handle event(CreateEventW(nullptr, FALSE, FALSE, name.c_str()));
    ASSERT_TRUE(event.IsOpen());
    EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::Failed) << space;
  }
}

TEST(NamedMutex, ThatFailedHasLetGoOfTheNameItHad) {
  const test::UniqueName unique;
  NamedMutex mutex;
  ASSERT_EQ(mutex.Open(unique.Text()), Opened::First);
  EXPECT_EQ(mutex.Open("\\"), Opened::Failed);
  EXPECT_FALSE(mutex.IsOpen());
  EXPECT_EQ(NamedMutex().Open(unique.Text()), Opened::First);
}

}  // namespace
}  // namespace mortane
