// The contract of a configuration unit: one area of the microscope's configuration, which is
// transferred between the controller, the model and a settings file.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Reports are lines joined with AppendLine; an empty report means that all went well. A failure of
// the controller never leaves an operation: it becomes a line of its report.
//
// parent       The connected microscope, through which the unit reaches the controller at each use.
// kElement     The name of the unit's element, or of each of its elements, in a settings file.
// ReadSdk      Makes every value unknown, then reads it from the controller. After a failure what
//              was read so far stays. Reports what failed.
// ModifySdk    Compares with the controller and writes nothing. Appends a line to `list` for each
//              item that differs. Reports what failed.
// WriteSdk     Writes what differs from the controller and goes on after each failure. Reports the
//              items that failed; nothing that was written is taken back.
// ReadDom      Takes the unit's data from one element. Reports what could not be used, which leaves
//              the unit as it was. Data that no conversion can take may raise a Failure.
// WriteDom     Appends the unit's element or elements to the section. May raise a Failure.
template <typename Unit>
concept TransferredUnit = requires(Unit unit, const Unit constUnit, std::string& list) {
  requires std::same_as<decltype(Unit::parent), ConnectedMicroscope&>;
  { unit.ReadSdk() } -> std::same_as<std::string>;
  { constUnit.ModifySdk(list) } -> std::same_as<std::string>;
  { constUnit.WriteSdk() } -> std::same_as<std::string>;
};

template <typename Unit>
concept StoredUnit = requires(Unit unit, const Unit constUnit, DomDocument& file, DomNode node) {
  { Unit::kElement } -> std::convertible_to<std::string_view>;
  { unit.ReadDom(std::as_const(node)) } -> std::same_as<std::string>;
  { constUnit.WriteDom(file, node) } -> std::same_as<void>;
};

template <typename Unit>
concept ConfigurationUnit = TransferredUnit<Unit> && StoredUnit<Unit>;

// A unit that tells whether it holds anything that concerns the connected microscope.
template <typename Unit>
concept EnabledUnit = ConfigurationUnit<Unit> && requires(const Unit unit) {
  { unit.IsEnable() } -> std::same_as<bool>;
};

}  // namespace mortane
