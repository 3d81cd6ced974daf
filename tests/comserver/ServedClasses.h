// The classes that the test server offers, and how COM knows them.
#pragma once

#include <objbase.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace mortane::comserver {

// The last one is the tests' own: it tells what the server holds, and changes its bench.
inline constexpr std::array<std::string_view, 4> kClassNames{"Microscope", "FiberServer",
                                                             "FiberRemote", "TestControl"};
inline constexpr std::size_t kTestControl = 3;

// The identifiers of one server's classes differ in their last byte. A registered server has
// identifiers of its kind; a process that a test starts is given others, so that tests which run at
// the same time do not meet.
struct ClassFamily {
  GUID base;

  CLSID ClassId(std::size_t place) const;
};

inline constexpr ClassFamily kInProcessFamily{
    {0x6B0F4E52, 0x52A4, 0x4C0B, {0x9D, 0x11, 0x3E, 0x8A, 0x70, 0x5C, 0x21, 0x00}}};
inline constexpr ClassFamily kOwnProcessFamily{
    {0x6B0F4E53, 0x52A4, 0x4C0B, {0x9D, 0x11, 0x3E, 0x8A, 0x70, 0x5C, 0x21, 0x00}}};

// Identifiers that the library's classes have besides their usual ones, as a text in braces: a test
// names them for the process that loads the library.
inline constexpr const wchar_t* kFamilyVariable = L"MORTANE_SERVER_FAMILY";
ClassFamily FamilyOfEnvironment();

// Before the class's name in the ProgIDs of a registered server.
inline constexpr std::wstring_view kInProcessPrefix = L"MortaneTest.InProcess.";
inline constexpr std::wstring_view kOwnProcessPrefix = L"MortaneTest.OwnProcess.";

std::wstring ProgId(std::wstring_view prefix, std::size_t place);
std::wstring GuidText(const GUID& guid);

// A server process that is told a family sets the event of this name once its classes can be
// created.
std::wstring ReadyEventName(const ClassFamily& family);

}  // namespace mortane::comserver
