// Turns the failures of a configuration unit's operations into the lines of their reports.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "common/ErrorTrap.h"
#include "common/Failure.h"
#include "common/FailureText.h"
#include "common/Text.h"

namespace mortane {

// Runs the statement. Returns the unit's line when it fails, an empty text otherwise.
template <typename Statement>
std::string FailureOf(std::string_view opening, Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return {};
  } catch (const Failure& failure) {
    return FailureLine(opening, failure);
  }
}

// Runs the writing of one item. Returns the item's line when it fails, an empty text otherwise.
template <typename Statement>
std::string LineIfFailed(std::string_view line, Statement&& statement) {
  ErrorTrap trap;
  return trap.Run(std::forward<Statement>(statement)) ? std::string() : std::string(line);
}

// The same, and appends the item's line to `lines`.
template <typename Statement>
void AppendIfFailed(std::string& lines, std::string_view line, Statement&& statement) {
  lines = AppendLine(std::move(lines), LineIfFailed(line, std::forward<Statement>(statement)));
}

// Runs `collect` with a text for its lines, and appends the lines to `list`, also after a failure.
// Returns the failure's line.
template <typename Collect>
std::string CollectDifferences(std::string& list, std::string_view opening, Collect&& collect) {
  std::string lines;
  std::string failure = FailureOf(opening, [&] { std::forward<Collect>(collect)(lines); });
  list = AppendLine(std::move(list), lines);
  return failure;
}

// The same, but the lines join `list` only when all could be compared.
template <typename Collect>
std::string CollectWhenComplete(std::string& list, std::string_view opening, Collect&& collect) {
  std::string lines;
  std::string failure = FailureOf(opening, [&] { std::forward<Collect>(collect)(lines); });
  if (failure.empty()) list = AppendLine(std::move(list), lines);
  return failure;
}

// The lines of a write that goes on after a failure.
class WriteReport {
 public:
  // `opening` begins the line of a failure that belongs to no item.
  explicit WriteReport(std::string_view opening) : opening_(opening) {}

  void Add(std::string_view line) { lines_ = AppendLine(std::move(lines_), line); }

  // Runs a step that adds the lines of its items itself. A failure that leaves the step becomes the
  // unit's line, once for all steps: otherwise a lost controller would fill the screen.
  template <typename Step>
  void Run(Step&& step) {
    const std::string failure = FailureOf(opening_, std::forward<Step>(step));
    if (!failure.empty() && !std::exchange(failed_, true)) Add(failure);
  }

  const std::string& Lines() const { return lines_; }

 private:
  std::string_view opening_;
  std::string lines_;
  bool failed_ = false;
};

// "Nosepiece[" and 3 give "Nosepiece[3]".
inline std::string ItemLine(std::string_view label, std::int32_t number) {
  return std::string(label) + std::to_string(number) + "]";
}

}  // namespace mortane
