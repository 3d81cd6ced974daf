// A log of all calls to a controller library, for whoever looks for a fault beside an instrument.
#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "controller/Decorator.h"

namespace mortane::controller {

// Each call, also a creation, one that gives an object, a step of an enumerator and the reading of
// a state value's number, is a line as soon as it has ended: the seconds since the log began, how
// many milliseconds the call took, and the call as CallLine tells it, with the text of a failure.
//     12.345      0.512  NosepieceDevice.Positions(3).Code -> 12
// Line breaks within a call are written as "\\r" and "\\n".
class CallLog : public DecoratedLibrary {
 public:
  using Clock = std::function<std::chrono::nanoseconds()>;

  // Begins with a line that tells what the columns are.
  CallLog(ControllerLibrary& inner, std::ostream& lines, Clock clock = SteadyTime);

  static std::chrono::nanoseconds SteadyTime();

 protected:
  Value Around(const CallSite& site, const Proceed& proceed) override;
  Value AroundNumber(const std::string& path, const Proceed& proceed) override;

 private:
  template <typename LineOf, typename FailedLineOf>
  Value Timed(const Proceed& proceed, LineOf&& lineOf, FailedLineOf&& failedLineOf);
  void Write(std::chrono::nanoseconds began, const std::string& line);

  std::ostream& lines_;
  Clock clock_;
  std::chrono::nanoseconds beginning_;
};

}  // namespace mortane::controller
