// Which items of a settings file a Send wrote, from the journal of its calls.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "controller/simulator/Bench.h"

namespace mortane::test {

// What a microscope holds as one number for several items, or is told without being asked.
struct NumbersBefore {
  explicit NumbersBefore(const controller::Instrument& instrument);

  std::int32_t limitation;
  std::int32_t escapeMode;
  std::map<std::int32_t, std::int32_t> buzzers;  // by their codes
};

// The keys (KeyText) of the items of which the journal has a write with another value than the one
// that was held. A call that no table knows fails the test.
std::vector<std::string> WrittenItems(const std::vector<std::string>& journal,
                                      const NumbersBefore& before);

}  // namespace mortane::test
