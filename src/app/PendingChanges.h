// What the model holds and the microscope does not: the edits since they were last made equal.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Outcome.h"
#include "record/Comparison.h"

namespace mortane {

// Compares the model with its own state after the last Receive or Send. Makes no call to the
// controller.
class PendingChanges {
 public:
  explicit PendingChanges(const clsK70& k70) : k70_(k70) {}

  // Right after a transfer, before any page has loaded. What a transfer with failures did not read
  // or write counts as it did before.
  void TakeReceived();
  void TakeSent(Outcome sent);
  // No microscope is connected.
  void Forget();

  // What the microscope holds, as a settings document, and its name; nullptr before a Receive.
  // After a Send with failures as before that Send.
  [[nodiscard]] const DomDocument* Held() const { return held_ ? &document_ : nullptr; }
  [[nodiscard]] const std::string& Device() const { return device_; }
  [[nodiscard]] const std::optional<ConfigurationState>& HeldState() const { return held_; }

  // In the order of the pages; `from` is what the microscope holds, unknown where that was not
  // read. Only what a Send would write. Empty while nothing was received, and for a text that no
  // settings file can hold.
  [[nodiscard]] std::vector<ItemChange> Find() const;
  // The names that belong to `from`.
  [[nodiscard]] const ItemNames& HeldNames() const;

 private:
  using Done = bool (clsK70::*)(std::string_view transfer) const;
  void Take(Done done, bool wholeDocument);

  const clsK70& k70_;
  std::optional<ConfigurationState> held_;
  ItemNames noNames_{std::vector<ConfigurationItem>()};
  DomDocument document_;
  std::string device_;
};

// The page of the main window that shows an item, by its index.
std::size_t PageOf(const ItemKey& key);

}  // namespace mortane
