// Failures of the core, their texts, and a trap that lets a sequence of calls go on after one
// failed.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace mortane {

// Immutable. `source` names who failed, `number` is the signed 32-bit error number.
class Failure : public std::exception {
 public:
  Failure(std::string source, std::int32_t number, std::string description)
      : source_(std::move(source)), number_(number), description_(std::move(description)) {}

  const std::string& Source() const noexcept { return source_; }
  std::int32_t Number() const noexcept { return number_; }
  const std::string& Description() const noexcept { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::string source_;
  std::int32_t number_;
  std::string description_;
};

// Error numbers of failures that the program itself raises; their source is "Mortane".
inline constexpr std::int32_t kOverflowError = 6;
inline constexpr std::int32_t kSubscriptError = 9;
inline constexpr std::int32_t kConversionError = 13;
inline constexpr std::int32_t kBadFileNameError = 52;
inline constexpr std::int32_t kAlreadyOpenError = 55;
inline constexpr std::int32_t kNoObjectError = 91;

[[noreturn]] void RaiseOwnFailure(std::int32_t number, std::string description);

// The index, from 0, of the entry numbered `index` in a table of `count` entries whose numbers
// begin at `first`. Raises kSubscriptError for a number outside the table.
std::size_t CheckedIndex(std::int32_t index, std::int32_t first, std::size_t count);

// A unit's line: `opening`, which ends with its bracket, then source, colon, number in
// hexadecimal and the closing bracket: "Nosepiece Limit (LIB:80004005)".
std::string FailureLine(std::string_view opening, const Failure& failure);

// The text of a failed operation of the microscope object: "*** Connect Error!!(37)".
std::string OperationError(std::string_view operation, const Failure& failure);

// Runs statements one by one and remembers that one of them failed. A later success does not clear
// the mark, only TakeFailed does.
class ErrorTrap {
 public:
  // Runs the statement; true when it raised no Failure.
  template <typename Statement>
  bool Run(Statement&& statement) {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const Failure&) {
      failed_ = true;
      return false;
    }
  }

  // True when a statement failed since the last call; clears the mark.
  bool TakeFailed() { return std::exchange(failed_, false); }

 private:
  bool failed_ = false;
};

}  // namespace mortane
