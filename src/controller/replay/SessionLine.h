// One call of a session as a line of its journal, and back.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controller/replay/SessionValue.h"

namespace mortane::controller {

struct SessionFailure {
  std::string source;
  std::int32_t number = 0;
  std::string description;

  bool operator==(const SessionFailure&) const = default;
};

// The call without its answer: "#34 put NosepieceDevice.Positions(3).Code = 14". In front of the
// path stand the object that is called and the use: create, get, put, call, next for a step of an
// enumerator, number for the reading of a state value's default member.
struct SessionLine {
  std::string call;
  SessionValue result;
  std::optional<SessionFailure> failure;

  bool operator==(const SessionLine&) const = default;
};

struct LineTimes {
  std::chrono::nanoseconds sinceBeginning{};
  std::chrono::nanoseconds duration{};
};

// What the columns are. The reader passes over a line of this text.
inline constexpr std::string_view kColumnHeads = "   seconds         ms   object  use     call";

// The line without its end:
//      0.164     12.502      #34  put     NosepieceDevice.Positions(3).Code = 14
//      0.181      0.950      #40  get     ZDriveDevice.Position ! "LIB" 80004005 "It is blocked."
// A result of nothing has an arrow only behind what was read, not behind what was commanded.
std::string FormatSessionLine(const LineTimes& times, const SessionLine& line);

// Nothing for a text of another form.
std::optional<SessionLine> ParseSessionLine(std::string_view text);

// "DeviceList.Item(1).Name" has the steps DeviceList, Item with the argument 1, and Name. The class
// of a creation is an argument that is a text.
struct PathStep {
  std::string name;
  std::vector<SessionValue> args;

  bool operator==(const PathStep&) const = default;
};

// A call taken apart.
struct SessionCall {
  std::string use;
  std::vector<PathStep> path;
  std::optional<SessionValue> written;
};

// Nothing for a text of another form.
std::optional<SessionCall> ParseSessionCall(std::string_view call);

}  // namespace mortane::controller
