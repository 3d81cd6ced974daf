#include "app/PendingMarks.h"

#include <QAbstractButton>
#include <algorithm>
#include <optional>
#include <set>

#include "common/Text.h"
#include "drawings/TurretDrawing.h"
#include "record/ItemWords.h"
#include "widgets/ContainerPage.h"
#include "widgets/ListBox.h"
#include "widgets/NotSentMark.h"
#include "widgets/OptionGroup.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// The control itself, or what is chosen in it.
constexpr int kOwn = -1;

using Marks = std::map<int, QString>;

std::optional<QString> At(const Marks& marks, int place) {
  const auto found = marks.find(place);
  return found == marks.end() ? std::nullopt : std::optional(found->second);
}

void MarkRows(ListBox& list, const Marks& marks) {
  for (int row = 0; row < list.rowCount(); ++row) {
    std::optional<QString> was = At(marks, row);
    if (!was && row == list.index()) was = At(marks, kOwn);
    list.SetRowPending(row, was);
  }
}

// The buttons are numbered from 0 or 1.
void MarkOptions(OptionGroup& group, const Marks& marks) {
  for (int i = 0; i <= group.count(); ++i) {
    QAbstractButton* button = group.button(i);
    if (button == nullptr) continue;
    if (auto* section = qobject_cast<SectionOption*>(button)) {
      section->SetPending(At(marks, i).has_value());
    } else {
      MarkNotSent(*button, i == group.selected() ? At(marks, kOwn) : std::nullopt);
    }
  }
}

void MarkPlaces(TurretDrawing& turret, const Marks& marks) {
  turret.SetPending(QMap<int, QString>(marks));
}

void MarkTabs(TabStrip& tabs, const Marks& marks) {
  for (int i = 0; i < tabs.count(); ++i) tabs.SetTabPending(i, At(marks, i).has_value());
}

void MarkField(TextField& field, const Marks& marks) {
  field.SetPending(At(marks, kOwn));
}

void MarkWidget(QWidget& control, const Marks& marks) {
  MarkNotSent(control, At(marks, kOwn));
}

template <typename Control, typename Done>
bool As(QObject& control, Done&& done) {
  auto* as = qobject_cast<Control*>(&control);
  if (as == nullptr) return false;
  done(*as);
  return true;
}

// Each kind of control has dots of its own.
void Mark(QObject& control, const Marks& marks) {
  const auto with = [&marks](auto&& mark) { return [&](auto& as) { mark(as, marks); }; };
  As<ListBox>(control, with(MarkRows)) || As<OptionGroup>(control, with(MarkOptions)) ||
      As<TurretDrawing>(control, with(MarkPlaces)) || As<TabStrip>(control, with(MarkTabs)) ||
      As<TextField>(control, with(MarkField)) || As<QWidget>(control, with(MarkWidget));
}

int ChosenIn(const QObject& chooser) {
  if (const auto* tabs = qobject_cast<const TabStrip*>(&chooser)) return tabs->index();
  const auto* options = qobject_cast<const OptionGroup*>(&chooser);
  return options == nullptr ? kOwn : options->selected();
}

void Choose(QObject& chooser, int choice) {
  if (ChosenIn(chooser) == choice) return;
  As<TabStrip>(chooser, [choice](TabStrip& tabs) { tabs.Choose(choice); }) ||
      As<OptionGroup>(chooser, [choice](OptionGroup& options) { options.select(choice); });
}

void Focus(QWidget* control) {
  if (control != nullptr && control->isVisible()) control->setFocus(Qt::OtherFocusReason);
}

QAbstractButton* TabStopOf(const OptionGroup& group) {
  for (int i = 0; i <= group.count(); ++i) {
    QAbstractButton* button = group.button(i);
    if (button != nullptr && button->focusPolicy() != Qt::NoFocus) return button;
  }
  return nullptr;
}

void GoIn(QObject& control, int place) {
  As<TurretDrawing>(control,
                    [place](TurretDrawing& turret) {
                      QAbstractButton* button = turret.place(turret.placeOf(place));
                      if (button == nullptr) return;
                      Focus(button);
                      button->click();
                    }) ||
      As<ListBox>(control,
                  [place](ListBox& list) {
                    Focus(&list);
                    if (place != kOwn) list.setIndex(place);
                  }) ||
      As<OptionGroup>(control, [](OptionGroup& group) { Focus(TabStopOf(group)); }) ||
      As<QWidget>(control, [](QWidget& widget) { Focus(&widget); });
}

ContainerPage* ContainerOf(const QObject& subPage) {
  for (QObject* page = subPage.parent(); page != nullptr; page = page->parent()) {
    if (auto* container = qobject_cast<ContainerPage*>(page)) return container;
  }
  return nullptr;
}

// The page that stands for itself, or the late one once it is made.
QWidget* MadeOf(QObject* subPage) {
  const auto* late = qobject_cast<LatePage*>(subPage);
  return late == nullptr ? static_cast<QWidget*>(subPage) : late->made();
}

bool IsFor(const ItemPlace& place, const ItemChange& change) {
  return place.kind == change.to.kind &&
         (place.position.empty() || place.position == change.to.key.position);
}

// What the microscope has, in words; none for a part that is the same on both sides.
std::optional<QString> Was(const ItemPlace& place, const ItemChange& change,
                           const ItemNames& before) {
  if (place.part == kWholeValue) {
    return QString::fromStdString(RightTrim(ValueInWords(change.from, before)));
  }
  const std::vector<ValuePart> from = PartsOf(change.from, before);
  const std::vector<ValuePart> to = PartsOf(change.to, before);
  const auto part = static_cast<std::size_t>(place.part);
  if (part >= from.size() || part >= to.size() || from[part].value == to[part].value) return {};
  return QString::fromStdString(RightTrim(from[part].words));
}

using LatePages = QList<LatePage*>;

QObject* FindSubPage(const QWidget& window, const LatePages& latePages, const SubPageName& names) {
  for (const char* name : {names.name, names.inWizard}) {
    if (name == nullptr) continue;
    for (LatePage* late : latePages) {
      if (late->name() == QLatin1String(name)) return late;
    }
    if (auto* page = window.findChild<QWidget*>(QLatin1String(name))) return page;
  }
  return nullptr;
}

}  // namespace

void PendingMarks::FindTargets() {
  const LatePages latePages = window_.findChildren<LatePage*>();
  for (const ItemPlace& place : ItemPlaces()) {
    const bool known =
        !targets_.empty() && targets_.back().place->subPage.name == place.subPage.name;
    QObject* subPage =
        known ? targets_.back().subPage.data() : FindSubPage(window_, latePages, place.subPage);
    if (subPage != nullptr) targets_.push_back({&place, subPage, false, {}, nullptr});
  }
}

void PendingMarks::FindControls(Target& target) {
  const QWidget* page = target.subPage == nullptr ? nullptr : MadeOf(target.subPage);
  if (target.isSearched || page == nullptr) return;
  target.isSearched = true;
  const ItemPlace& place = *target.place;
  const QLatin1String name(place.control);
  if (QObject* control = page->findChild<QObject*>(name)) {
    target.controls.emplace_back(control);
  } else {
    target.isArray = true;
    for (int i = 0;; ++i) {
      QObject* element = page->findChild<QObject*>(u"%1_%2"_s.arg(name).arg(i));
      if (element == nullptr) break;
      target.controls.emplace_back(element);
    }
  }
  if (place.chooser != nullptr) {
    target.chooser = page->findChild<QObject*>(QLatin1String(place.chooser));
  }
}

// The first change at a place gives its words.
void PendingMarks::Add(const Target& target, const ItemChange& change, const ItemNames& before,
                       MarksOfControls& marks) const {
  const ItemPlace& place = *target.place;
  const std::string& position = change.to.key.position;
  if (place.chooser != nullptr) {
    if (target.chooser == nullptr) return;
    const int choice = place.choice(position);
    marks[target.chooser].try_emplace(choice);
    if (ChosenIn(*target.chooser) != choice) return;
  }
  const std::optional<QString> was = Was(place, change, before);
  if (!was) return;
  int where = place.place == nullptr ? kOwn : place.place(position);
  if (place.place != nullptr && where < 0) return;
  std::size_t element = 0;
  if (target.isArray) {
    element = static_cast<std::size_t>(where);
    where = kOwn;
  }
  if (element >= target.controls.size()) return;
  if (QObject* control = target.controls[element]) marks[control].try_emplace(where, *was);
}

void PendingMarks::Show(const std::vector<ItemChange>& changes, const ItemNames& before) {
  if (targets_.empty()) FindTargets();
  MarksOfControls marks;
  marked_.clear();
  for (Target& target : targets_) {
    FindControls(target);
    for (const QPointer<QObject>& control : target.controls) {
      if (control != nullptr) marks.try_emplace(control.data());
    }
    if (target.chooser != nullptr) marks.try_emplace(target.chooser.data());
  }
  for (const ItemChange& change : changes) {
    for (const Target& target : targets_) {
      if (!IsFor(*target.place, change) || target.subPage == nullptr) continue;
      Add(target, change, before, marks);
      if (marked_.empty() || marked_.back() != target.subPage) marked_.push_back(target.subPage);
    }
  }
  for (const auto& [control, ofControl] : marks) Mark(*control, ofControl);
  ShowSections();
}

void PendingMarks::ShowSections() {
  std::set<const QObject*> seen;
  for (const Target& target : targets_) {
    if (target.subPage == nullptr || !seen.insert(target.subPage).second) continue;
    ContainerPage* container = ContainerOf(*target.subPage);
    if (container == nullptr) continue;
    const bool pending = std::find(marked_.begin(), marked_.end(), target.subPage) != marked_.end();
    container->sections()->SetOptionPending(container->SectionOf(*target.subPage), pending);
  }
}

bool PendingMarks::IsOnPage(const QWidget& page) const {
  return std::any_of(marked_.begin(), marked_.end(), [&page](const QPointer<QObject>& subPage) {
    const QObject* at = subPage;
    while (at != nullptr && at != &page) at = at->parent();
    return at != nullptr;
  });
}

void PendingMarks::GoTo(const ItemChange& change, const ItemNames& before) {
  const std::string& position = change.to.key.position;
  for (Target& target : targets_) {
    const ItemPlace& place = *target.place;
    if (target.subPage == nullptr || !IsFor(place, change) || !Was(place, change, before)) continue;
    if (ContainerPage* container = ContainerOf(*target.subPage)) {
      if (!container->OpenSection(container->SectionOf(*target.subPage))) return;
    }
    FindControls(target);
    if (target.chooser != nullptr) Choose(*target.chooser, place.choice(position));
    const int where = place.place == nullptr ? kOwn : place.place(position);
    const auto element = static_cast<std::size_t>(target.isArray ? where : 0);
    if (element >= target.controls.size() || target.controls[element] == nullptr) return;
    return GoIn(*target.controls[element], target.isArray ? kOwn : where);
  }
}

}  // namespace mortane
