#include "app/PendingChanges.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/Failure.h"
#include "common/Text.h"
#include "hub/SettingsFile.h"
#include "hub/clsK70.h"
#include "record/ItemIndex.h"
#include "record/ModelItems.h"
#include "record/SentItems.h"

namespace mortane {
namespace {

// In the order of the file's sections: the last three stand on the page of the controls.
constexpr std::array<std::size_t, kFileSections.size()> kPages{0, 1, 2, 3, 4, 5, 5, 5};

}  // namespace

std::size_t PageOf(const ItemKey& key) {
  for (std::size_t i = 0; i < kFileSections.size(); ++i) {
    if (kFileSections[i].element == key.section) return kPages[i];
  }
  return 0;
}

void PendingChanges::TakeReceived() {
  Take(&clsK70::WasRead, true);
}

void PendingChanges::TakeSent(Outcome sent) {
  Take(&clsK70::WasSent, sent == Outcome::Complete);
}

void PendingChanges::Forget() {
  held_.reset();
  device_.clear();
}

void PendingChanges::Take(Done done, bool wholeDocument) {
  try {
    DomDocument sections;
    k70_.WriteSections(sections);
    ConfigurationState now = StateOf(k70_, sections);
    if (held_) {
      const ItemIndex before(held_->items);
      for (ConfigurationItem& item : now.items) {
        if ((k70_.*done)(TransferOf(item.kind))) continue;
        if (const ConfigurationItem* former = before.Find(item.key)) item = *former;
      }
    }
    held_ = std::move(now);
    if (!wholeDocument) return;
    document_ = std::move(sections);
    device_ = FirstCharacters(k70_.SystemName, kSystemNameLength);
  } catch (const Failure&) {
    held_.reset();
  }
}

std::vector<ItemChange> PendingChanges::Find() const {
  if (!held_) return {};
  std::vector<ItemChange> changes;
  try {
    Differences differences = DifferencesOf(held_->items, ItemsOf(k70_));
    changes = std::move(differences.changed);
    // What follows nosepiece, light path and zoom has an entry only while it is known.
    for (ConfigurationItem& item : differences.onlySecond) {
      changes.push_back({WithUnknownValue(item), std::move(item)});
    }
  } catch (const Failure&) {
    return {};
  }
  std::erase_if(changes, [this](const ItemChange& change) {
    return !IsWrittenWhereItDiffers(k70_, change.to);
  });
  std::stable_sort(changes.begin(), changes.end(), [](const ItemChange& a, const ItemChange& b) {
    return PageOf(a.to.key) < PageOf(b.to.key);
  });
  return changes;
}

const ItemNames& PendingChanges::HeldNames() const {
  return held_ ? held_->names : noNames_;
}

}  // namespace mortane
