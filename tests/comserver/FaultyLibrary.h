// By which tests find the windows of the library that does what no library should.
#pragma once

namespace mortane::comserver {

inline constexpr const wchar_t* kFaultyBoxTitle = L"Mortane test: a library asks";
inline constexpr const wchar_t* kFaultyWindowTitle = L"Mortane test: a library shows";

}  // namespace mortane::comserver
