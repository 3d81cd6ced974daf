#include "controller/CallLog.h"

#include <iomanip>
#include <ostream>
#include <utility>

#include "common/Failure.h"
#include "controller/CallLine.h"

namespace mortane::controller {
namespace {

constexpr int kSecondsWidth = 10;
constexpr int kMillisecondsWidth = 10;
constexpr int kDecimals = 3;

// One call is one line, whatever its texts hold.
std::string OnOneLine(const std::string& text) {
  std::string line;
  line.reserve(text.size());
  for (const char character : text) {
    if (character == '\r') {
      line += "\\r";
    } else if (character == '\n') {
      line += "\\n";
    } else {
      line += character;
    }
  }
  return line;
}

}  // namespace

CallLog::CallLog(ControllerLibrary& inner, std::ostream& lines, Clock clock)
    : DecoratedLibrary(inner), lines_(lines), clock_(std::move(clock)), beginning_(clock_()) {
  lines_ << "   seconds         ms  call" << std::endl;
}

std::chrono::nanoseconds CallLog::SteadyTime() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

// Flushed, so that the last call before a crash is there.
void CallLog::Write(std::chrono::nanoseconds began, const std::string& line) {
  using Seconds = std::chrono::duration<double>;
  using Milliseconds = std::chrono::duration<double, std::milli>;
  lines_ << std::fixed << std::setprecision(kDecimals) << std::setw(kSecondsWidth)
         << Seconds(began - beginning_).count() << ' ' << std::setw(kMillisecondsWidth)
         << Milliseconds(clock_() - began).count() << "  " << OnOneLine(line) << std::endl;
}

template <typename LineOf, typename FailedLineOf>
Value CallLog::Timed(const Proceed& proceed, LineOf&& lineOf, FailedLineOf&& failedLineOf) {
  const std::chrono::nanoseconds began = clock_();
  try {
    Value result = proceed();
    Write(began, lineOf(result));
    return result;
  } catch (const Failure& failure) {
    Write(began, failedLineOf(failure) + " " + failure.Description());
    throw;
  }
}

Value CallLog::Around(const CallSite& site, const Proceed& proceed) {
  return Timed(
      proceed, [&](const Value& result) { return CallLine(site, result); },
      [&](const Failure& failure) { return FailedCallLine(site, failure); });
}

Value CallLog::AroundNumber(const std::string& path, const Proceed& proceed) {
  return Timed(
      proceed, [&](const Value& number) { return ReadLine(path, number); },
      [&](const Failure& failure) { return FailedReadLine(path, failure); });
}

}  // namespace mortane::controller
