#include "ModelWatch.h"

#include <QAbstractButton>
#include <algorithm>
#include <array>
#include <map>

#include "Acts.h"
#include "common/Failure.h"
#include "common/Text.h"
#include "drawings/TurretDrawing.h"
#include "drives/clsControlOther.h"
#include "model/OptionCodes.h"
#include "objectives/clsDbNosepiece.h"
#include "record/ConfigurationItems.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/TabStrip.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

using enum ItemKind;

constexpr int kNone = -1;

// Controls that change items which other controls show, and those whose item has no mark.
struct Also {
  ItemKind kind;
  const char* subPage;
  const char* control;
};

constexpr std::array kAlso{
    Also{FocusSensitivity, "ControlOtherCtl1", "ComboFocus"},
    Also{StageSensitivity, "ControlOtherCtl1", "ComboStage"},
    Also{FocusKnob, "ControlOtherCtl1", "CheckFocusAuto"},
    Also{StageKnob, "ControlOtherCtl1", "CheckStageAuto"},
    Also{ObjectiveCode, "ObjectiveOptionCtl1", "ListMag"},
    // A drive that follows the nosepiece is compensated relatively; of the focus drive that works
    // the other way round, too.
    Also{FocusCompensation, "InterlockOtherCtl1", "CheckNosepiece"},
    Also{StageCompensation, "InterlockOtherCtl1", "CheckNosepiece"},
    Also{NosepieceInterlock, "ControlFocusDriveCtl1", "optFocusCompensation"},
    Also{BodySwitch, "SwitchSettingCtl1", "cmdDefault"},
    Also{BodySwitch, "SwitchSettingCtl1", "cmdAllClear"},
    Also{HandSwitch, "ControlTactorSwitchCtl1", "cmdDefault"},
    Also{HandSwitch, "ControlTactorSwitchCtl1", "cmdAllClear"},
    Also{HandSwitch, "ControlTactorSwitchCtl1", "btnReadFileOpen"},
    Also{HandMode, "ControlTactorSwitchCtl1", "cmdDefault"},
    Also{HandMode, "ControlTactorSwitchCtl1", "btnReadFileOpen"},
    Also{HandSide, "ControlTactorSwitchCtl1", "btnReadFileOpen"},
    Also{HandSwitch, "TactorSwitchSettingCtl1", "cmdDefault"},
    Also{HandSwitch, "TactorSwitchSettingCtl1", "cmdAllClear"},
    Also{HandSwitch, "TactorSwitchSettingCtl1", "btnReadFileOpen"},
    Also{HandMode, "TactorSwitchSettingCtl1", "cmdDefault"},
    Also{HandMode, "TactorSwitchSettingCtl1", "btnReadFileOpen"},
    Also{HandSide, "TactorSwitchSettingCtl1", "btnReadFileOpen"},
};

// A switch that changes a knob's speed decides over the knob's mode.
bool IsOfKnobs(ItemKind kind, const std::set<QString>& names) {
  if (kind != FocusKnob && kind != StageKnob) return false;
  for (const char* page :
       {"SwitchSettingCtl1", "ControlTactorSwitchCtl1", "TactorSwitchSettingCtl1"}) {
    if (names.contains(QLatin1String(page))) return true;
  }
  return false;
}

// A page that is loaded ticks the focus drive's escape where the body's firmware has none, and
// brings compensation and interlock of a drive in step.
bool IsOfLoadedDrive(const ConfigurationItem& item, const std::set<QString>& names) {
  if (!LoadsPage(names)) return false;
  if (item.kind == FocusEscape) return item.value == "On";
  if (item.kind == FocusCompensation || item.kind == StageCompensation) return true;
  return item.kind == NosepieceInterlock && item.key.position == "FoucusStage";
}

// Kept: a page of optional items shows a mark for a name that is missing, and stores it as the name
// when it is left; each control of an optional objective or cube stores its name too.
bool IsMarkOfPage(const std::string& before, const std::string& after,
                  const std::set<QString>& names) {
  const bool stores = LoadsPage(names) || names.contains(u"ObjectiveOptionCtl1"_s) ||
                      names.contains(u"FilterOptionalQubeCtl1"_s);
  return stores && Trim(before).empty() && (after == kUnnamedMark || after == kUnnamedObjective);
}

int ChosenIn(const QObject* object) {
  if (const auto* tabs = qobject_cast<const TabStrip*>(object)) return tabs->index();
  if (const auto* options = qobject_cast<const OptionGroup*>(object)) return options->selected();
  if (const auto* list = qobject_cast<const ListBox*>(object)) return list->index();
  if (const auto* turret = qobject_cast<const TurretDrawing*>(object)) return turret->index();
  return kNone;
}

bool IsWorked(const QObject* control, const std::set<const QObject*>& worked) {
  if (const auto* group = qobject_cast<const OptionGroup*>(control)) {
    for (int i = 0; i <= group->count(); ++i) {
      if (worked.contains(group->button(i))) return true;
    }
    return false;
  }
  return worked.contains(control);
}

// Buttons of an array have its name with their index.
bool HasName(const std::set<QString>& names, QLatin1StringView name) {
  const auto found = names.lower_bound(QString(name));
  return found != names.end() && (*found == name || found->startsWith(name + "_"_L1));
}

std::map<ItemKey, ConfigurationItem> ByKey(const std::string& text) {
  DomDocument document;
  document.LoadText(text);
  std::map<ItemKey, ConfigurationItem> items;
  for (ConfigurationItem& item : ItemsOf(document)) items.emplace(item.key, std::move(item));
  return items;
}

}  // namespace

ModelWatch::ModelWatch(const QWidget& window, const clsK70& k70) : window_(window), k70_(k70) {
  for (const ItemPlace& place : ItemPlaces()) {
    for (const char* name : {place.subPage.name, place.subPage.inWizard}) {
      if (name != nullptr)
        targets_.push_back({&place, name, nullptr, {}, nullptr, false, kNone, kNone, false});
    }
  }
  document_ = Document();
  rest_ = RestNow();
}

// Pages are made when they are first shown. What was worked has the name of its page; a page that
// is asked for by no name may be any.
void ModelWatch::FindPages(const std::set<QString>& names, MayChange allowed) {
  for (Target& target : targets_) {
    const QLatin1String name(target.name);
    if (target.page != nullptr || (allowed == MayChange::ControlsOnly && !names.contains(name))) {
      continue;
    }
    target.page = window_.findChild<QWidget*>(name);
    if (target.page != nullptr) FindControls(target);
  }
}

void ModelWatch::FindControls(Target& target) {
  const ItemPlace& place = *target.place;
  const QLatin1String control(place.control);
  if (QObject* one = target.page->findChild<QObject*>(control)) {
    target.controls.emplace_back(one);
  } else {
    target.isArray = true;
    for (int i = 0;; ++i) {
      QObject* element = target.page->findChild<QObject*>(u"%1_%2"_s.arg(control).arg(i));
      if (element == nullptr) break;
      target.controls.emplace_back(element);
    }
  }
  if (place.chooser != nullptr) {
    target.chooser = target.page->findChild<QObject*>(QLatin1String(place.chooser));
  }
}

std::string ModelWatch::Document() const {
  DomDocument document;
  try {
    k70_.WriteSections(document);
    return document.ToText();
  } catch (const Failure&) {  // a text that XML cannot hold
    return {};
  }
}

ModelWatch::Rest ModelWatch::RestNow() const {
  return {k70_.lConnectDevice, k70_.COther.curFiberSwEnable, k70_.COther.curFiberLED};
}

void ModelWatch::NoteChoices() {
  for (Target& target : targets_) {
    target.chosenBefore = ChosenIn(target.chooser);
    target.noted = !target.controls.empty();
    target.selectedBefore = target.controls.empty() ? kNone : ChosenIn(target.controls.front());
  }
}

bool ModelWatch::HasChanged() const {
  return rest_ != RestNow() || document_ != Document();
}

std::vector<std::string> ModelWatch::ChangesOfRest(const Rest& now,
                                                   const std::set<QString>& names) const {
  std::vector<std::string> changes;
  if (now.device != rest_.device) changes.emplace_back("the connected device");
  if (now.fiberSwitch != rest_.fiberSwitch && !HasName(names, "optFiber_Switch"_L1)) {
    changes.emplace_back("the fiber remote's switches");
  }
  if (now.fiberLed != rest_.fiberLed && !HasName(names, "optFiber_LED"_L1)) {
    changes.emplace_back("the fiber remote's LED");
  }
  return changes;
}

std::vector<std::string> ModelWatch::TakeUnexplained(const std::set<const QObject*>& worked,
                                                     const std::set<QString>& names,
                                                     MayChange allowed) {
  const Rest rest = RestNow();
  std::string document = Document();
  std::vector<std::string> changes;
  if (allowed != MayChange::Everything) changes = ChangesOfRest(rest, names);
  rest_ = rest;
  document_.swap(document);
  FindPages(names, allowed);  // for what is chosen there before the next act
  const bool same = document == document_ || document.empty() || document_.empty();
  if (same || allowed == MayChange::Everything) return changes;
  const auto before = ByKey(document);
  const auto after = ByKey(document_);
  const auto look = [&](const auto& items, const auto& others) {
    for (const auto& [key, item] : items) {
      const auto other = others.find(key);
      if (other != others.end() && other->second == item) continue;
      const ConfigurationItem& now = after.contains(key) ? after.at(key) : item;
      if (IsExplained(now, worked, names, allowed)) continue;
      if (before.contains(key) && IsMarkOfPage(before.at(key).value, now.value, names)) continue;
      changes.push_back(KeyText(key) + " from \"" +
                        (before.contains(key) ? before.at(key).value : "-") + "\" to \"" +
                        (after.contains(key) ? after.at(key).value : "-") + "\"");
    }
  };
  look(after, before);
  for (const auto& [key, item] : before) {
    if (!after.contains(key) && !IsExplained(item, worked, names, allowed)) {
      changes.push_back(KeyText(key) + " is gone");
    }
  }
  return changes;
}

bool ModelWatch::IsExplained(const ConfigurationItem& item, const std::set<const QObject*>& worked,
                             const std::set<QString>& names, MayChange allowed) const {
  for (const Target& target : targets_) {
    if (target.place->kind != item.kind || target.page == nullptr) continue;
    if (allowed == MayChange::ShownPage && target.page->parentWidget()->isVisible()) return true;
    if (IsOf(target, item, worked)) return true;
  }
  if (IsOfKnobs(item.kind, names) || IsOfLoadedDrive(item, names)) return true;
  return std::any_of(kAlso.begin(), kAlso.end(), [&](const Also& also) {
    return also.kind == item.kind && names.contains(QLatin1String(also.subPage)) &&
           HasName(names, QLatin1StringView(also.control));
  });
}

// A field, an option or a box is worked itself; lists and turrets say which item the rest of their
// page edits.
bool ModelWatch::IsOf(const Target& target, const ConfigurationItem& item,
                      const std::set<const QObject*>& worked) const {
  const ItemPlace& place = *target.place;
  const std::string& position = item.key.position;
  if (!place.position.empty() && place.position != position) return false;
  if (place.chooser != nullptr && target.chosenBefore != place.choice(position) &&
      target.chosenBefore != kNone) {
    return false;
  }
  const int where = place.place == nullptr ? kNone : place.place(position);
  if (place.place == nullptr || target.isArray) {
    const auto element = static_cast<std::size_t>(target.isArray ? where : 0);
    return element < target.controls.size() && IsWorked(target.controls[element], worked);
  }
  if (!worked.contains(target.page)) return false;
  const QObject* control = target.controls.empty() ? nullptr : target.controls.front().data();
  const auto* turret = qobject_cast<const TurretDrawing*>(control);
  const int row = turret == nullptr ? where : turret->placeOf(where);
  return !target.noted || row == target.selectedBefore || row == ChosenIn(control);
}

}  // namespace mortane::test
