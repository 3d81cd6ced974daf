// What a program and the host of a library of 32 bits say to each other over the host's pipes.
#pragma once

#include <cstddef>
#include <string_view>

// The host speaks first, one line: its name, a blank, its version. The program refuses another
// version than its own. A request is one line in UTF-8, "create" and the class's registered name or
// its identifier in braces. The answer is "object", a count of bytes, the end of the line and that
// many bytes of a marshalled IDispatch; or "failed" and COM's number as eight hexadecimal digits.
// The host ends when its standard input ends.
namespace mortane::controller::host {

inline constexpr std::string_view kName = "mortane-host32";
inline constexpr std::string_view kCreate = "create ";
inline constexpr std::string_view kObject = "object ";
inline constexpr std::string_view kFailed = "failed ";

inline constexpr std::size_t kMostOfLine = 4096;
inline constexpr std::size_t kMostOfObject = 65536;  // an ordinary reference has about 100 bytes

}  // namespace mortane::controller::host
