// Every kind of item that a settings file may hold: where it stands and what its positions are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mortane {

// In the order of a settings file. A cube's or objective's code and name are two kinds, as a file
// has them in two attributes.
enum class ItemKind : std::size_t {
  SystemName,
  ObjectiveAddress,
  ObjectiveCode,
  ObjectiveName,
  NosepieceLimit,
  CubeAddress,
  CubeCode,
  CubeName,
  ExciterName,
  DichroicName,
  BarrierName,
  CondenserAddress,
  CondenserName,
  ObservationInterlock,
  NosepieceInterlock,
  LightPathInterlock,
  ZoomInterlock,
  Offset,
  FocusCompensation,
  LowerLimit,
  FocusEscape,
  StageEscape,
  StageCompensation,
  FocusKnob,
  FocusSensitivity,
  StageKnob,
  StageSensitivity,
  Buzzer,
  BodySwitches,
  HandSwitches,
  RemoteSwitches,
  RemoteLed,
  BodySwitch,
  HandMode,
  HandSide,
  HandSwitch,
  Unknown,  // none that the program reads
};
inline constexpr std::size_t kItemKinds = static_cast<std::size_t>(ItemKind::Unknown);

// How the elements of a kind are told apart.
enum class ItemPosition { None, Number, Word };

struct ItemKindRow {
  ItemKind kind;
  std::string_view section;
  std::string_view element;  // below the section; of nested elements the path
  std::string_view attribute;
  ItemPosition position;
};

// One row a kind, at the kind's place.
const ItemKindRow& RowOf(ItemKind kind);

// The kind of an attribute, found without regard to case; Unknown when no row has it. Only the
// element of the system name is known in one spelling alone, as the reader of a file takes it.
ItemKind FindItemKind(std::string_view section, std::string_view element,
                      std::string_view attribute);

// The words that are positions of a kind, as a file spells them; empty for other kinds.
std::vector<std::string_view> PositionWords(ItemKind kind);

// A position as a written file has it: a number without blanks and fractions, a word in the
// spelling of its table. What is neither stays as it is.
std::string CanonicalPosition(ItemKind kind, std::string_view position);

}  // namespace mortane
