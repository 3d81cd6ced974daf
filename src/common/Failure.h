// Failures of the core: what raises them and what they tell.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
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

}  // namespace mortane
