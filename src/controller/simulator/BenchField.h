// Which attribute of a bench file holds a field of a record.
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

// The fields of each kind of record, for reading and for writing.
template <typename Record>
inline constexpr auto kBenchFields = nullptr;

}  // namespace mortane::controller
