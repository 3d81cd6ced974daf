// The fields of buzzers and switches by the codes that the library has for them.
#pragma once

#include <array>
#include <cstdint>

#include "controller/ControllerNumbers.h"
#include "controller/simulator/InstrumentData.h"

namespace mortane::controller {

template <typename Data>
struct CodeRow {
  std::int32_t code;
  std::int32_t Data::*field;
};

inline constexpr std::array kBuzzerRows{
    CodeRow<BuzzerData>{buzzer::kBody, &BuzzerData::body},
    CodeRow<BuzzerData>{buzzer::kHub, &BuzzerData::hub},
    CodeRow<BuzzerData>{buzzer::kHandController, &BuzzerData::handController},
    CodeRow<BuzzerData>{buzzer::kUnit5, &BuzzerData::unit5},
};

inline constexpr std::array kSwitchRows{
    CodeRow<SwitchData>{switchunit::kBody, &SwitchData::body},
    CodeRow<SwitchData>{switchunit::kHandController, &SwitchData::handController},
    CodeRow<SwitchData>{switchunit::kRemote, &SwitchData::remote},
};

// Null for a code that has no row.
template <typename Data, std::size_t Count>
std::int32_t* FieldOfCode(const std::array<CodeRow<Data>, Count>& rows, Data& data,
                          std::int32_t code) {
  for (const CodeRow<Data>& row : rows) {
    if (row.code == code) return &(data.*row.field);
  }
  return nullptr;
}

}  // namespace mortane::controller
