#include "switches/SwitchCodes.h"

#include "common/CheckedIndex.h"
#include "common/DigitCode.h"
#include "model/UnitReport.h"
#include "switches/SwitchFunctions.h"

namespace mortane {

std::int16_t SwitchCodes::Code(std::int16_t position) const {
  return Has(position) ? codes_[static_cast<std::size_t>(position - 1)] : std::int16_t{-1};
}

void SwitchCodes::Code(std::int16_t position, std::int16_t code) {
  if (Has(position)) codes_[static_cast<std::size_t>(position - 1)] = code;
}

void SwitchCodes::StoreChecked(std::int32_t position, std::int16_t code) {
  codes_[CheckedIndex(position, 1, static_cast<std::size_t>(unit_.count))] = code;
}

std::int32_t SwitchCodes::Held(const ConnectedMicroscope& microscope, std::int16_t position) const {
  return CharToDigit(
      microscope.Mic.ControllerSettings().SwitchFunction(unit_.number, DigitToChar(position)));
}

void SwitchCodes::Read(const ConnectedMicroscope& microscope) {
  for (std::int16_t position = 1; position <= unit_.count; ++position) {
    Code(position, static_cast<std::int16_t>(Held(microscope, position)));
  }
}

void SwitchCodes::ListDifferences(const ConnectedMicroscope& microscope, std::string& lines) const {
  for (std::int16_t position = 1; position <= unit_.count; ++position) {
    const std::int16_t code = Code(position);
    if (Held(microscope, position) == code) continue;
    lines =
        AppendLine(std::move(lines), unit_.label(position) + " " + std::string(ReportedName(code)));
  }
}

void SwitchCodes::Write(const ConnectedMicroscope& microscope, std::string& failures) const {
  for (std::int16_t position = 1; position <= unit_.count; ++position) {
    const std::int16_t code = Code(position);
    AppendIfFailed(failures, unit_.failedLine(position, code), [&] {
      if (Held(microscope, position) == code) return;
      microscope.Mic.ControllerSettings().SetSwitchFunction(unit_.number, DigitToChar(position),
                                                            DigitToChar(code));
    });
  }
}

void SwitchCodes::WriteDom(DomDocument& document, DomNode parent) const {
  for (std::int16_t position = 1; position <= unit_.count; ++position) {
    DomNode element = document.CreateElement("SWITCH");
    element.SetAttribute("POSITION", std::to_string(position));
    element.SetAttribute("FUNCTION", std::to_string(Code(position)));
    parent.Append(element);
  }
}

}  // namespace mortane
