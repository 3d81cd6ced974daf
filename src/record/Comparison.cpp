#include "record/Comparison.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

#include "common/Failure.h"
#include "common/Text.h"
#include "controller/ControllerNumbers.h"
#include "drives/clsControlOther.h"
#include "hub/clsK70.h"
#include "interlocks/Interlock.h"
#include "interlocks/OtherAccessories.h"
#include "model/FileWords.h"
#include "record/ItemIndex.h"
#include "record/ModelItems.h"
#include "record/SentItems.h"

namespace mortane {
namespace {

constexpr std::string_view kBuzzerOn = "False";
constexpr std::string_view kBuzzerOff = "True";
constexpr std::string_view kBuzzersDiffer = "2";
constexpr std::string_view kInterlockIsOn = "True";
constexpr std::string_view kInterlockIsOff = "False";

// The buzzers that a Send commands: those of body, hub and hand controller where there is a body or
// a hub, and a remote's, which answers to the hub's number.
std::vector<std::int32_t> CommandedBuzzers(const clsK70& k70) {
  struct Row {
    std::int32_t unit;
    std::int32_t code;
  };
  std::vector<std::int32_t> codes;
  if (k70.Controller(controllerunit::kBody) || k70.Controller(controllerunit::kHub)) {
    for (const Row& row :
         {Row{controllerunit::kBody, buzzer::kBody}, Row{controllerunit::kHub, buzzer::kHub},
          Row{controllerunit::kHandController, buzzer::kHandController}}) {
      if (k70.Controller(row.unit)) codes.push_back(row.code);
    }
  }
  if (k70.Controller(controllerunit::kRemote)) codes.push_back(buzzer::kHub);
  return codes;
}

ConfigurationItem BuzzerItem(ConfigurationItem item, bool on, bool off) {
  item.exact.clear();
  if (on && off) {
    item.value = kUnknownWord;
    item.exact = kBuzzersDiffer;
  } else {
    item.value = on ? kBuzzerOn : kBuzzerOff;
  }
  return item;
}

// What all buzzers together are that a Send commands; the model has the value of one or two of
// them. Raises what the controller raises.
ConfigurationItem HeldBuzzer(const clsK70& k70, const ConfigurationItem& wanted) {
  bool on = false;
  bool off = false;
  for (const std::int32_t code : CommandedBuzzers(k70)) {
    (k70.Mic.BuzzerEnabled(code) == 1 ? on : off) = true;
  }
  return BuzzerItem(wanted, on, off);
}

// Of what follows light path and zoom a Receive reads less than a Send writes. Raises what the
// controller raises.
bool HoldsUnread(const clsK70& k70, const ConfigurationItem& wanted) {
  const bool lightPath = wanted.kind == ItemKind::LightPathInterlock;
  if (!lightPath && wanted.kind != ItemKind::ZoomInterlock) return false;
  const std::int32_t cause = lightPath ? trigger::kLightPath : trigger::kOpticalZoom;
  for (const OtherAccessory& row : kOtherAccessories) {
    if (row.word != wanted.key.position) continue;
    const std::int32_t state = ReadInterlock(k70, row.number, cause);
    return wanted.value == (state == kInterlockOn ? kInterlockIsOn : kInterlockIsOff);
  }
  return false;
}

// A file leaves out what does not follow nosepiece, light path and zoom for all that is known.
// After a failed read these are unknown as everything else that was not read, and stand where a
// file has them.
std::vector<ConfigurationItem> WithUnreadFollowers(const clsK70& k70,
                                                   std::vector<ConfigurationItem> items) {
  if (k70.WasRead(TransferOf(ItemKind::NosepieceInterlock))) return items;
  std::vector<ConfigurationItem> unread;
  const ItemIndex index(items);
  for (const ItemKind kind :
       {ItemKind::NosepieceInterlock, ItemKind::LightPathInterlock, ItemKind::ZoomInterlock}) {
    const ItemKindRow& row = RowOf(kind);
    for (const std::string_view word : PositionWords(kind)) {
      const ItemKey key{std::string(row.section), std::string(row.element), std::string(word),
                        std::string(row.attribute)};
      if (index.Find(key) == nullptr) {
        unread.push_back({key, kind, std::string(kUnknownWord), {}});
      }
    }
  }
  const auto offsets = std::find_if(items.begin(), items.end(), [](const ConfigurationItem& item) {
    return item.kind == ItemKind::Offset;
  });
  items.insert(offsets, unread.begin(), unread.end());
  return items;
}

class Comparer {
 public:
  Comparer(const clsK70& k70, const ConfigurationState& held)
      : k70_(k70), held_(held.items), sent_(k70) {}

  Comparison Run(const DomDocument* file) {
    for (const ConfigurationItem& item : WithUnreadFollowers(k70_, ItemsOf(k70_))) Add(item);
    if (file != nullptr) {
      const std::vector<ConfigurationItem> items = ItemsOf(*file);
      const ItemIndex index(items);
      for (const ConfigurationItem& item : items) {
        if (index.Counts(item)) AddIfMissing(item);
      }
    }
    return std::move(comparison_);
  }

 private:
  ConfigurationItem HeldItem(const ConfigurationItem& wanted) const {
    const ConfigurationItem* held = held_.Find(wanted.key);
    return held == nullptr ? WithUnknownValue(wanted) : *held;
  }

  void Add(const ConfigurationItem& wanted) {
    if (TransferOf(wanted.kind).empty() || IsRepetition(wanted)) return;
    ConfigurationItem held = HeldItem(wanted);
    const bool wasRead = k70_.WasRead(TransferOf(wanted.kind));
    const bool bothKnown = IsKnown(held) && IsKnown(wanted);
    const bool asks = wanted.kind == ItemKind::Buzzer;
    if (wasRead && bothKnown && !asks && HaveSameValue(held, wanted)) return;
    const std::optional<bool> fitted = sent_.IsFitted(wanted);
    if (fitted == false) return;
    if (!fitted || !wasRead || !IsKnown(wanted)) {
      comparison_.unknown.push_back({std::move(held), wanted});
    } else if (k70_.IsSent(TransferOf(wanted.kind))) {
      AddSent(std::move(held), wanted);
    }
  }

  void AddSent(ConfigurationItem held, ConfigurationItem wanted) {
    if (!CanBeSent(k70_, wanted.kind)) {
      comparison_.unknown.push_back({std::move(held), std::move(wanted)});
      return;
    }
    try {
      if (wanted.kind == ItemKind::Buzzer) {
        AddBuzzer(wanted);
      } else if (IsKnown(held) || !HoldsUnread(k70_, wanted)) {
        comparison_.changed.push_back({std::move(held), std::move(wanted)});
      }
    } catch (const Failure&) {
      comparison_.unknown.push_back({WithUnknownValue(wanted), std::move(wanted)});
    }
  }

  void AddBuzzer(const ConfigurationItem& wanted) {
    ConfigurationItem held = HeldBuzzer(k70_, wanted);
    const bool wantsOn = k70_.COther.curBuzzer == 0;
    ConfigurationItem sent = BuzzerItem(wanted, wantsOn, !wantsOn);
    if (!HaveSameValue(held, sent)) {
      comparison_.changed.push_back({std::move(held), std::move(sent)});
    }
  }

  // Of an item of the file that a Send cannot write.
  void AddIfMissing(const ConfigurationItem& item) {
    if (!IsWanted(item.key.section) || !IsKnown(item) || IsRepetition(item)) return;
    const ConfigurationItem* held = held_.Find(item.key);
    if (held != nullptr && RightTrim(held->value) == RightTrim(item.value)) return;
    if (sent_.IsSent(item) == false) comparison_.notOnMicroscope.push_back(item);
  }

  // A section that the program does not know is nowhere to be left out.
  bool IsWanted(const std::string& section) const {
    for (std::size_t i = 0; i < kFileSections.size(); ++i) {
      if (kFileSections[i].element == section) {
        return k70_.FileItem(static_cast<std::int16_t>(i)) != 0;
      }
    }
    return true;
  }

  const clsK70& k70_;
  ItemIndex held_;
  SentItems sent_;
  Comparison comparison_;
};

// What the microscope holds of a change after a further Receive; unknown when it does not say.
class HeldAfterwards {
 public:
  explicit HeldAfterwards(const clsK70& k70) : k70_(k70), items_(ItemsOf(k70)), index_(items_) {}

  ConfigurationItem Of(const ConfigurationItem& sent) const {
    try {
      if (sent.kind == ItemKind::Buzzer) return HeldBuzzer(k70_, sent);
      const ConfigurationItem* now = index_.Find(sent.key);
      if (now != nullptr && IsKnown(*now) && k70_.WasRead(TransferOf(sent.kind))) return *now;
      if (HoldsUnread(k70_, sent)) return sent;
    } catch (const Failure&) {
      return WithUnknownValue(sent);
    }
    return WithUnknownValue(sent);
  }

 private:
  const clsK70& k70_;
  std::vector<ConfigurationItem> items_;
  ItemIndex index_;
};

}  // namespace

ConfigurationItem WithUnknownValue(ConfigurationItem item) {
  item.value = kUnknownWord;
  item.exact.clear();
  return item;
}

ConfigurationState StateOf(const clsK70& k70) {
  return {ItemsOf(k70), ItemNames(k70)};
}

ConfigurationState StateOf(const clsK70& k70, const DomDocument& sections) {
  return {ItemsOf(k70, sections), ItemNames(k70)};
}

ConfigurationState StateOf(const DomDocument& document) {
  std::vector<ConfigurationItem> items = ItemsOf(document);
  ItemNames names(items);
  return {std::move(items), std::move(names)};
}

Comparison Compare(const clsK70& k70, const ConfigurationState& held, const DomDocument* file) {
  return Comparer(k70, held).Run(file);
}

std::vector<ItemChange> NotTaken(const Comparison& sent, const clsK70& k70) {
  const HeldAfterwards held(k70);
  std::vector<ItemChange> notTaken;
  for (const ItemChange& change : sent.changed) {
    ConfigurationItem now = held.Of(change.to);
    if (!HaveSameValue(now, change.to)) notTaken.push_back({std::move(now), change.to});
  }
  return notTaken;
}

}  // namespace mortane
