// On every bench: what loading changed is marked, what a Send writes is marked, and every control
// gets its dot when it is edited and loses it when the value is put back.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QPointer>
#include <QRadioButton>
#include <QStandardItemModel>
#include <functional>
#include <random>

#include "AppRig.h"
#include "ShownMarks.h"
#include "app/ItemPlaces.h"
#include "drawings/TurretDrawing.h"
#include "gui/support/PageActs.h"
#include "record/SentItems.h"
#include "record/WrittenItems.h"
#include "support/RandomModel.h"
#include "support/Sample.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/ContainerPage.h"
#include "widgets/LatePage.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

using Keys = std::vector<std::string>;

// Tells what the window was told.
class WatchedForm : public MortaneMainForm {
 public:
  using MortaneMainForm::MortaneMainForm;

  Keys told;

 protected:
  void ShowPending(const std::vector<ItemChange>& changes) override {
    told.clear();
    for (const ItemChange& change : changes) told.push_back(KeyText(change.to.key));
    std::sort(told.begin(), told.end());
    MortaneMainForm::ShowPending(changes);
  }
};

using WatchedRig = BasicAppRig<WatchedForm, MainPages>;

std::vector<std::string> ArgumentsFor(const std::string& bench) {
  const Bench made = benches::Named(bench);
  return {made.instruments.size() == 1 ? "/SIM" : made.instruments.back().name};
}

class PendingOn : public testing::TestWithParam<std::string> {
 protected:
  PendingOn() : rig(benches::Named(GetParam()), ArgumentsFor(GetParam())) {
    rig.prompts.AcceptAnyBox();
    rig.Start();
    Look();
  }

  // As after any input of a person.
  void Look() {
    QTest::keyClick(rig.form.get(), Qt::Key_Shift);
    QApplication::processEvents();
  }
  std::set<std::string> Marks() {
    Look();
    return ShownMarks(*rig.form);
  }
  // A Send of the model as it is, and the items that it wrote with another value.
  Keys Send() {
    const NumbersBefore before(rig.instrument());
    rig.journal.Clear();
    GetK70().Send();
    return Compared(WrittenItems(rig.journal.Lines(), before));
  }
  Keys Told() const { return Compared(rig.form->told); }

  // A Send commands every buzzer, and the model has the value of one or two of them: where the
  // others differ, only a call to the controller would tell.
  static Keys Compared(Keys keys) {
    if (GetParam() == "Pair" || GetParam() == "DeckRemote") {
      std::erase(keys, "CONTROL OTHER/Buzzer CODE");
    }
    return keys;
  }

  WatchedRig rig;
};

// What loading changes on each bench, by the names of the controls.
struct LoadedRow {
  const char* bench;
  std::vector<std::string> controls;
};
const std::vector<LoadedRow>& Loaded() {
  static const std::vector<LoadedRow> rows{
      {"Outpost", {"chkEscape_0"}},  // the body has no escape in its firmware
      {"Attic", {"optFocusCompensation_1", "place_1", "TextName"}},
  };
  return rows;
}

TEST_P(PendingOn, OnlyWhatLoadingChangedIsMarked) {
  MakeLoadedPages(*rig.form);
  std::set<std::string> controls;
  for (const std::string& line : Marks()) {
    const std::size_t end = line.find(": not sent");
    if (end != std::string::npos)
      controls.insert(line.substr(line.find(' ') + 1, end - line.find(' ') - 1));
  }
  std::set<std::string> expected;
  for (const LoadedRow& row : Loaded()) {
    if (GetParam() == row.bench) expected.insert(row.controls.begin(), row.controls.end());
  }
  EXPECT_EQ(controls, expected);
}

TEST_P(PendingOn, WhatASendWritesIsTold) {
  const Keys sent = Send();
  EXPECT_EQ(Told(), sent);
}

TEST_P(PendingOn, WhatASendWritesOfAnyModelIsTold) {
  std::mt19937 random(7);
  MakeRandom(GetK70(), random);
  Look();
  const Keys sent = Send();
  EXPECT_EQ(Told(), sent);
  EXPECT_FALSE(sent.empty());
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PageDrill);

INSTANTIATE_TEST_SUITE_P(Benches, PendingOn, ::testing::ValuesIn(benches::Names()),
                         [](const auto& row) { return row.param; });

// An edit by real events, and the edit that puts the value back.
struct Edit {
  std::string name;
  std::function<void()> change;
  std::function<void()> putBack;
};

bool IsUsable(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled();
}

void Commit(TextField& field, const QString& text) {
  TypeInto(field, text);
  QTest::keyClick(&field, Qt::Key_Return);
  QApplication::processEvents();
}

class EditsOfPages : public PendingOn {
 protected:
  void Show(int page, int section) {
    QTest::mouseClick(rig.form->ImageButton[static_cast<std::size_t>(page)], Qt::LeftButton);
    QApplication::processEvents();
    if (section >= 0) ClickButton(*Container(page)->sections()->option(section));
    QApplication::processEvents();
  }
  ContainerPage* Container(int page) {
    for (ContainerPage* container : rig.form->FrameControl->findChildren<ContainerPage*>()) {
      const std::array<const char*, kPageCount> names{"",
                                                      "ObjectiveSettingsCtl1",
                                                      "FilterQubeSettingsCtl1",
                                                      "CondenserSettingsCtl1",
                                                      "InterlockSettingsCtl1",
                                                      "ControlSettingsCtl1"};
      if (container->objectName() == QLatin1String(names[static_cast<std::size_t>(page)]))
        return container;
    }
    return nullptr;
  }

  // Kept: the buzzer of controller unit 5 alone is compared and never commanded.
  static bool IsNeverSent(const std::string& control) {
    return GetParam() == "Deck" && control == "optBuzzer";
  }

  // Of a control that shows one of the items; nothing for one that cannot be edited and put back.
  std::optional<Edit> EditOf(QObject& control) {
    const std::string name = control.objectName().toStdString();
    if (auto* field = qobject_cast<TextField*>(&control)) return EditOfField(*field, name);
    if (auto* combo = qobject_cast<ComboBox*>(&control)) return EditOfCombo(*combo, name);
    if (auto* list = qobject_cast<ListBox*>(&control)) return EditOfList(*list, name);
    if (auto* group = qobject_cast<OptionGroup*>(&control)) return EditOfGroup(*group, name);
    if (auto* turret = qobject_cast<TurretDrawing*>(&control)) return EditOfPlace(*turret, name);
    auto* button = qobject_cast<QAbstractButton*>(&control);
    if (button == nullptr || !IsUsable(*button)) return std::nullopt;
    auto* toggle = qobject_cast<CheckToggle*>(button);
    if (toggle != nullptr && toggle->isUnknown()) return std::nullopt;
    return Edit{name, [button] { ClickButton(*button); }, [button] { ClickButton(*button); }};
  }

  // A name that was cut to the field is none that can be typed again.
  static std::optional<Edit> EditOfField(TextField& field, const std::string& name) {
    const QString before = field.text();
    const bool cut = GetParam() == "Attic" && before.startsWith("Tw");
    if (!IsUsable(field) || cut) return std::nullopt;
    const QString other = before == "1.5" ? "2.5" : "1.5";
    const bool blank = before.startsWith("---");
    return Edit{name, [&field, other] { Commit(field, other); },
                [&field, before, blank] { Commit(field, blank ? QString() : before); }};
  }

  static std::optional<Edit> EditOfCombo(ComboBox& combo, const std::string& name) {
    const int before = combo.index();
    if (!IsUsable(combo) || before < 0 || combo.count() < 2) return std::nullopt;
    const int other = before == 0 ? 1 : before - 1;
    return Edit{name, [&combo, other] { ChooseRow(combo, other); },
                [&combo, before] { ChooseRow(combo, before); }};
  }

  // A list to choose from; that of the switches has its functions elsewhere.
  std::optional<Edit> EditOfList(ListBox& list, const std::string& name) {
    if (!IsUsable(list)) return std::nullopt;
    if (name == "ListView1") return EditOfSwitch(list);
    const int before = list.index();
    if (before < 0 || list.rowCount() < 2) return std::nullopt;
    const int other = before == 0 ? 1 : before - 1;
    return Edit{name, [&list, other] { ClickRow(list, other); },
                [&list, before] { ClickRow(list, before); }};
  }

  // The last row, which is a push switch.
  std::optional<Edit> EditOfSwitch(ListBox& list) {
    if (list.rowCount() < 2) return std::nullopt;
    ClickRow(list, list.rowCount() - 1);
    auto* combo = list.parentWidget()->findChild<ComboBox*>("ComboFunction");
    for (QWidget* page = list.parentWidget(); combo == nullptr; page = page->parentWidget())
      combo = page->findChild<ComboBox*>("ComboFunction");
    return EditOfCombo(*combo, "ListView1[");
  }

  static std::optional<Edit> EditOfGroup(OptionGroup& group, const std::string& name) {
    QAbstractButton* chosen = group.button(group.selected());
    if (chosen == nullptr || !IsUsable(*chosen)) return std::nullopt;
    for (int i = 0; i <= group.count(); ++i) {
      QAbstractButton* other = group.button(i);
      if (other == nullptr || other == chosen || !IsUsable(*other)) continue;
      return Edit{name, [other] { ClickButton(*other); }, [chosen] { ClickButton(*chosen); }};
    }
    return std::nullopt;
  }

  // The first address, in the list from which its page chooses; the condensers have lists of their
  // own.
  std::optional<Edit> EditOfPlace(TurretDrawing& turret, const std::string&) {
    if (turret.count() == 0 || !IsUsable(*turret.place(0))) return std::nullopt;
    ListBox* list = nullptr;
    for (const char* name : {"ListItem", "List1"}) {
      auto* found = turret.parentWidget()->findChild<ListBox*>(name);
      if (found != nullptr) list = found;
    }
    if (list == nullptr) return std::nullopt;
    ClickButton(*turret.place(0));
    return EditOfList(*list, "place_1");
  }

  void TryEdits(QWidget& subPage) {
    const std::set<std::string> before = Marks();
    for (const ItemPlace& place : ItemPlaces()) {
      const QString name = QLatin1String(place.control);
      if (subPage.objectName() != QLatin1String(place.subPage.name)) continue;
      QObject* control = subPage.findChild<QObject*>(name);
      if (control == nullptr) control = subPage.findChild<QObject*>(name + "_0");
      ASSERT_NE(control, nullptr) << place.control;
      if (IsNeverSent(place.control)) continue;
      if (const std::optional<Edit> edit = EditOf(*control)) Try(*edit, subPage, before);
    }
  }

  void Try(const Edit& edit, QWidget& subPage, const std::set<std::string>& before) {
    const std::string opening = subPage.objectName().toStdString() + " " + edit.name;
    rig.journal.Clear();
    edit.change();
    const std::set<std::string> changed = Marks();
    EXPECT_TRUE(std::any_of(changed.begin(), changed.end(),
                            [&](const std::string& line) {
                              return line.starts_with(opening) &&
                                     line.find(": not sent: was ") != std::string::npos;
                            }))
        << opening << "\n"
        << testing::PrintToString(changed);
    edit.putBack();
    EXPECT_EQ(Marks(), before) << opening;
    EXPECT_EQ(rig.journal.Lines(), Keys()) << opening;
    ++tried;
  }

  int tried = 0;
};

TEST_P(EditsOfPages, AreMarkedUntilTheyArePutBack) {
  for (int page = 0; page < static_cast<int>(kPageCount); ++page) {
    if (!rig.form->ImageButton[static_cast<std::size_t>(page)]->isEnabled()) continue;
    ContainerPage* container = Container(page);
    if (container == nullptr) {
      Show(page, -1);
      TryEdits(*rig.form->findChild<QWidget*>("SystemNameCtl1"));
      continue;
    }
    for (int section = 0; section < container->sections()->count(); ++section) {
      QAbstractButton* option = container->sections()->option(section);
      Show(page, -1);
      if (!IsUsable(*option)) continue;
      Show(page, section);
      TryEdits(*container->shownSubPage());
    }
  }
  EXPECT_GT(tried, 0);
  RecordProperty("tried", tried);
}

// Every control that can be edited on some bench can be edited on one of the first four; the last
// has values that come from elsewhere.
std::vector<std::string> BenchesOfEdits() {
  if (TriesAllCases()) return benches::Names();
  return {"Quay", "Harbour", "Lantern", "DeckRemote", "Attic"};
}

INSTANTIATE_TEST_SUITE_P(Benches, EditsOfPages, ::testing::ValuesIn(BenchesOfEdits()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace mortane::test
