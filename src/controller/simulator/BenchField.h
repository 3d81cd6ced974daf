// The attribute of a bench file that stands for a field of a record.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace mortane::controller {

template <typename Record>
struct BenchField {
  std::string_view attribute;
  std::variant<std::int16_t Record::*, std::int32_t Record::*, bool Record::*, double Record::*,
               std::string Record::*, std::optional<std::int32_t> Record::*,
               std::optional<std::string> Record::*>
      member;
};

// The fields of each kind of record: one table for both directions.
template <typename Record>
inline constexpr auto kBenchFields = nullptr;

}  // namespace mortane::controller
