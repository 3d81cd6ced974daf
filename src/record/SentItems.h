// Which items a Send can write to the connected microscope.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string_view>

#include "record/ConfigurationItems.h"
#include "record/ItemNames.h"

namespace mortane {

class clsK70;

// The row of the transfers that reads and writes the items of a kind; empty for a kind that is
// never sent.
std::string_view TransferOf(ItemKind kind);

// An entry of the file that repeats another one: what follows the zoom and the light path stands a
// second time among what follows the nosepiece.
bool IsRepetition(const ConfigurationItem& item);

// Whether a Send writes the item where its value differs, as far as the model tells: nothing is
// asked of the controller, and a record of the user counts as there.
bool IsWrittenWhereItDiffers(const clsK70& k70, const ConfigurationItem& item);

// Whether the controller has a number for what the item belongs to: the limits are held as one
// number and the escapes as another, and neither is written while one of them has no place in it.
bool CanBeSent(const clsK70& k70, ItemKind kind);

// What the connected microscope has. Asks the controller for its records of the user, once and
// only when they are needed.
class SentItems {
 public:
  explicit SentItems(const clsK70& k70) : k70_(k70) {}

  // Whether the microscope has what the item is about; nothing when the controller does not say.
  std::optional<bool> IsFitted(const ConfigurationItem& item);

  // The same, and the row of the transfers is one that a Send runs through now.
  std::optional<bool> IsSent(const ConfigurationItem& item);

 private:
  using Codes = std::optional<std::set<std::int32_t>>;

  std::optional<bool> HasOption(CodeList list, std::int32_t code);
  const Codes& OptionsOf(CodeList list);
  Codes ReadOptions(CodeList list) const;

  const clsK70& k70_;
  std::array<std::optional<Codes>, kCodeLists> options_;
};

}  // namespace mortane
