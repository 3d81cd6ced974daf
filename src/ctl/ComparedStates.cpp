#include "ctl/ComparedStates.h"

#include <utility>

#include "ctl/SettingsInput.h"

namespace mortane::ctl {

ComparedStates::ComparedStates(MicroscopeLink& link, const DomDocument& file,
                               const std::string& fileName, std::vector<std::size_t> sections)
    : file_(file), fileName_(NameOfFile(fileName)), sections_(std::move(sections)) {
  clsK70& k70 = link.k70();
  result_.device = link.Name();
  result_.files = {fileName};
  result_.unread = link.Receive();
  held_ = StateOf(k70);
  k70.WriteSections(heldDocument_);
  result_.refused = TakeSections(k70, link.prompts(), file_, fileName_, sections_);
  comparison_ = Compare(k70, *held_, &file_);
  wanted_ = StateOf(k70);
  result_.changed = NamesOf(comparison_.changed, held_->names, wanted_->names);
  result_.unknown = NamesOf(comparison_.unknown, held_->names, wanted_->names);
  result_.notOnMicroscope = NamesOf(comparison_.notOnMicroscope, wanted_->names);
  // Failures of the few values that the comparison asks for show as values that are not known.
  static_cast<void>(link.prompts().TakeLines());
}

Comparison ComparedStates::CompareAgain(MicroscopeLink& link) const {
  const ConfigurationState held = StateOf(link.k70());
  static_cast<void>(TakeSections(link.k70(), link.prompts(), file_, fileName_, sections_));
  Comparison left = Compare(link.k70(), held);
  static_cast<void>(link.prompts().TakeLines());
  return left;
}

Outcome ComparedStates::OutcomeOfComparison() const {
  if (!result_.unread.empty()) return Outcome::Failed;
  return result_.IsSame() ? Outcome::Done : Outcome::Different;
}

}  // namespace mortane::ctl
