// A connected microscope beside a settings file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ctl/MicroscopeLink.h"
#include "ctl/Outcome.h"
#include "ctl/Results.h"

namespace mortane::ctl {

// Receives, takes the file into the model and compares. Afterwards a Send would write the changes.
// The file is borrowed.
class ComparedStates {
 public:
  ComparedStates(MicroscopeLink& link, const DomDocument& file, const std::string& fileName,
                 std::vector<std::size_t> sections);

  const ComparisonResult& Result() const { return result_; }
  const Comparison& Items() const { return comparison_; }
  // What the microscope held, as a settings file.
  const DomDocument& Held() const { return heldDocument_; }
  // The names that belong to the codes of each.
  const ItemNames& NamesOfMicroscope() const { return held_->names; }
  const ItemNames& NamesOfFile() const { return wanted_->names; }

  // The same file beside what the microscope holds after a further Receive.
  Comparison CompareAgain(MicroscopeLink& link) const;

  // Failed when not all of the microscope could be read.
  Outcome OutcomeOfComparison() const;

 private:
  const DomDocument& file_;
  std::string fileName_;
  std::vector<std::size_t> sections_;
  DomDocument heldDocument_;
  std::optional<ConfigurationState> held_;
  std::optional<ConfigurationState> wanted_;
  Comparison comparison_;
  ComparisonResult result_;
};

}  // namespace mortane::ctl
