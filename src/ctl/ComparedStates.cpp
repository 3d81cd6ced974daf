#include "ctl/ComparedStates.h"

#include <utility>

#include "ctl/SettingsInput.h"
#include "record/SentItems.h"

namespace mortane::ctl {
namespace {

bool IsWanted(const clsK70& k70, const std::string& section) {
  for (std::size_t i = 0; i < kFileSections.size(); ++i) {
    if (kFileSections[i].element == section) return k70.FileItem(static_cast<std::int16_t>(i)) != 0;
  }
  return false;
}

// What was read from the microscope, and is unknown all the same, says nothing about a file that
// does not ask for it.
bool IsAsked(const clsK70& k70, const ItemChange& item) {
  const bool wasRead = k70.WasRead(TransferOf(item.to.kind));
  return !wasRead || (IsWanted(k70, item.to.key.section) && IsKnown(item.to));
}

Comparison CompareAsked(const clsK70& k70, const ConfigurationState& held,
                        const DomDocument& file) {
  Comparison comparison = Compare(k70, held, &file);
  std::erase_if(comparison.unknown, [&](const ItemChange& item) { return !IsAsked(k70, item); });
  return comparison;
}

}  // namespace

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
  comparison_ = CompareAsked(k70, *held_, file_);
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
  Comparison left = CompareAsked(link.k70(), held, file_);
  static_cast<void>(link.prompts().TakeLines());
  return left;
}

Outcome ComparedStates::OutcomeOfComparison() const {
  if (!result_.unread.empty()) return Outcome::Failed;
  return result_.IsSame() ? Outcome::Done : Outcome::Different;
}

}  // namespace mortane::ctl
