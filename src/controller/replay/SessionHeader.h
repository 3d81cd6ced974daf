// The first line of a session in its journal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mortane::controller {

// The program, the system and the library of a session; what is not known is empty.
struct SessionHeader {
  std::string program;         // with its version
  std::string system;          // and its version
  std::string library;         // the class under which the system knows it
  std::string libraryVersion;  // where it tells one
  std::string session;         // differs from that of every other session
  std::int32_t part = 1;       // a journal that grows too large goes on in another file

  bool operator==(const SessionHeader&) const = default;
};

// The number of the form that the lines of a journal have; a change of the form raises it.
inline constexpr std::int32_t kJournalForm = 1;

// mortane-journal 1 program="mortane 1.0" system="Windows 10.0.19045" library="LENSMIRLib.Mic...
std::string FormatSessionHeader(const SessionHeader& header);

// Whether the line begins a session, or another part of it.
bool IsSessionHeader(std::string_view line);

// Fields that are not known are passed over. Raises a Failure for a journal of another form and for
// a line that is no header.
SessionHeader ParseSessionHeader(std::string_view line);

// The time, to the millisecond, and what tells apart two sessions of that time.
std::string NewSessionName();

}  // namespace mortane::controller
