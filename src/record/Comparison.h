// What a Send would change on the connected microscope.
#pragma once

#include <string>
#include <vector>

#include "record/ConfigurationItems.h"
#include "record/Differences.h"
#include "record/ItemNames.h"

namespace mortane {

class clsK70;

// A configuration with the names that belong to its codes.
struct ConfigurationState {
  std::vector<ConfigurationItem> items;
  ItemNames names;
};

ConfigurationState StateOf(const clsK70& k70);
// The same from `sections`, which the model has just written.
ConfigurationState StateOf(const clsK70& k70, const DomDocument& sections);
ConfigurationState StateOf(const DomDocument& document);

// The item as one whose value could not be read.
ConfigurationItem WithUnknownValue(ConfigurationItem item);

// In the order of the file. `from` is what the microscope holds, `to` what the model would send.
struct Comparison {
  // A Send writes these with another value.
  std::vector<ItemChange> changed;
  // What the file has and this microscope has not, or does not take: its accessory, its address or
  // its controller unit is missing. A Send leaves them out.
  std::vector<ConfigurationItem> notOnMicroscope;
  // Not known on one side: what could not be read from the microscope, and what is sent together
  // with a value that is unknown. Never counted as equal.
  std::vector<ItemChange> unknown;

  bool HasDifferences() const { return !changed.empty() || !unknown.empty(); }
};

// `held` is the state right after a Receive; since then the model has taken a file or edits, and
// nothing was sent. With `file`, its items that the microscope has not are listed too; only those
// of sections that are wanted (clsK70::FileItem). Asks the controller for the few values that the
// model does not hold, and writes nothing.
Comparison Compare(const clsK70& k70, const ConfigurationState& held,
                   const DomDocument* file = nullptr);

// After a Send and a further Receive: the changes that the microscope did not take. `from` is what
// it holds instead, unknown where it could not be read again.
std::vector<ItemChange> NotTaken(const Comparison& sent, const clsK70& k70);

}  // namespace mortane
