// The function code of each switch position of one controller unit.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// In what the controller units with switches differ.
struct SwitchUnit {
  std::int32_t number;  // by which the controller's switch functions know it
  std::int16_t count;   // of positions, from 1; at most 16
  // Names a position in the list of differences; the line of one that could not be written.
  std::string (*label)(std::int16_t position);
  std::string (*failedLine)(std::int16_t position, std::int16_t code);
};

// Part of the configuration unit of one of them, which gives it the microscope for each operation
// and asks first whether the controller unit is present. All codes are 0 at first. The controller
// names positions and codes by one character each.
class SwitchCodes {
 public:
  // The unit must live as long.
  explicit SwitchCodes(const SwitchUnit& unit) : unit_(unit) {}

  // -1 for a position outside 1 to the count; nothing is stored there.
  std::int16_t Code(std::int16_t position) const;
  void Code(std::int16_t position, std::int16_t code);
  // Raises a bounds failure for a position outside.
  void StoreChecked(std::int32_t position, std::int16_t code);
  void Clear() { codes_.fill(0); }

  // Raises what the library raises; the codes read before that stay.
  void Read(const ConnectedMicroscope& microscope);
  // Appends a line for each code that differs. Raises what the library raises.
  void ListDifferences(const ConnectedMicroscope& microscope, std::string& lines) const;
  // Writes the codes that differ and goes on after each failure; appends the lines of those.
  void Write(const ConnectedMicroscope& microscope, std::string& failures) const;

  // Appends an element for each position.
  void WriteDom(DomDocument& document, DomNode parent) const;

 private:
  bool Has(std::int32_t position) const { return position >= 1 && position <= unit_.count; }
  std::int32_t Held(const ConnectedMicroscope& microscope, std::int16_t position) const;

  const SwitchUnit& unit_;
  std::array<std::int16_t, 16> codes_{};
};

}  // namespace mortane
