#include "gui/support/PageDrill.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <algorithm>
#include <tuple>
#include <utility>

#include "gui/support/LatePages.h"
#include "gui/support/PageActs.h"
#include "support/Sample.h"
#include "widgets/Card.h"
#include "widgets/TextField.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

std::string CaptionOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    return label->text().toStdString();
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
    return button->text().toStdString();
  }
  if (const auto* card = qobject_cast<const Card*>(&control)) {
    return card->caption().toStdString();
  }
  if (const auto* frame = qobject_cast<const InnerFrame*>(&control)) {
    return frame->caption().toStdString();
  }
  return control.accessibleName().toStdString();
}

// Gives the control the focus, and a text field a text that is no number.
void BeginEdit(QWidget& control) {
  control.setFocus();
  if (auto* field = qobject_cast<TextField*>(&control)) TypeInto(*field, u"abc"_s);
}

// Each of the boxes so far, if there are any, is one that the page's loading may show.
void ExpectLoadBoxesOnly(const ScriptedPrompts& prompts, const std::string& loadBox) {
  for (const ScriptedPrompts::Box& shown : prompts.Boxes()) {
    EXPECT_TRUE(!loadBox.empty() && shown.text.starts_with(loadBox)) << shown.text;
  }
}

}  // namespace

// A drill over an empty table would pass without checking anything.
void PageDrill::SetUp() {
  const PageDrillData& data = GetParam();
  const auto expect = [&](DrillTable table, const char* name, bool isEmpty) {
    const bool isWithout =
        std::find(data.without.begin(), data.without.end(), table) != data.without.end();
    ASSERT_EQ(isEmpty, isWithout) << data.name << ": " << name;
  };
  expect(DrillTable::Controls, "controls", data.controls.empty());
  expect(DrillTable::Shown, "shown", data.shown.empty());
  expect(DrillTable::Edits, "edits", data.edits.empty());
  expect(DrillTable::Refused, "refused", data.refused.empty());
  expect(DrillTable::Enabling, "enabling", data.enabling.empty());
  ASSERT_FALSE(data.tabOrder.empty()) << data.name;
  ASSERT_FALSE(data.accessible.empty()) << data.name;
}

std::unique_ptr<PageWindow> PageDrill::MakeRig(Link link) {
  return GetParam().make.Rig(benches::Named(GetParam().bench), link);
}

std::unique_ptr<PageWindow> PageDrill::MakeRig(Bench bench) {
  return GetParam().make.Rig(std::move(bench), Link::Received);
}

std::vector<std::string> PageDrill::EditedValues(PageWindow& rig) {
  std::vector<std::string> values;
  for (const PageEdit& edit : GetParam().edits) values.push_back(edit.value(rig.microscope()));
  for (const RefusedText& row : GetParam().refused) values.push_back(row.value(rig.microscope()));
  return values;
}

Page& PageDrill::ShowOn(PageWindow& rig) {
  Page& page = rig.Show(GetParam().make(rig.microscope()));
  if (GetParam().prepare) GetParam().prepare(rig);
  return page;
}

TEST_P(PageDrill, BearsTheGivenControlsWithTheirCaptions) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  MakeAllPages(ShowOn(rig));
  for (const GivenControl& given : GetParam().controls) {
    EXPECT_EQ(CaptionOf(rig.Find(given.name)), given.text) << given.name;
  }
}

TEST_P(PageDrill, ShowsTheUnit) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  Page& page = ShowOn(rig);
  MakeAllPages(page);
  for (const ShownValue& row : GetParam().shown) {
    row.change(rig.microscope());
    const std::string before = row.value(rig.microscope());
    page.LoadData();
    if (GetParam().prepare) GetParam().prepare(rig);
    EXPECT_EQ(Shown(rig.Find(row.control)), row.shown) << row.control;
    EXPECT_EQ(row.value(rig.microscope()), before) << row.control << ": showing changes nothing";
  }
}

TEST_P(PageDrill, AnEditReachesTheUnitAtOnce) {
  for (const PageEdit& edit : GetParam().edits) {
    const auto made = MakeRig();
    PageWindow& rig = *made;
    ShowOn(rig);
    EXPECT_NE(edit.value(rig.microscope()), edit.expected) << edit.control << ": the edit is none";
    Enter(rig.Find(edit.control), QString::fromStdString(edit.entered));
    EXPECT_EQ(edit.value(rig.microscope()), edit.expected) << edit.control << " " << edit.entered;
  }
}

TEST_P(PageDrill, RefusesABadTextAndKeepsTheFocus) {
  for (const RefusedText& row : GetParam().refused) {
    const auto made = MakeRig();
    PageWindow& rig = *made;
    ShowOn(rig);
    const std::string before = row.value(rig.microscope());
    auto& field = rig.Find<TextField>(row.control);
    rig.prompts.ExpectBox(row.message, box::kOk);
    Enter(field, QString::fromStdString(row.entered));
    EXPECT_TRUE(field.hasFocus()) << row.control << " " << row.entered;
    EXPECT_EQ(field.text().toStdString(), row.entered);
    EXPECT_EQ(row.value(rig.microscope()), before) << row.control << " " << row.entered;
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << row.control << " " << row.entered;
  }
}

TEST_P(PageDrill, EnablesWhatTheMicroscopeHas) {
  // The rules of a bench as it is look at one page.
  std::vector<EnablingRule> rules = GetParam().enabling;
  std::stable_sort(rules.begin(), rules.end(), [](const auto& one, const auto& other) {
    const bool isChanged = one.change != nullptr;
    const bool isOtherChanged = other.change != nullptr;
    return std::tie(isChanged, one.bench) < std::tie(isOtherChanged, other.bench);
  });
  std::unique_ptr<PageWindow> made;
  std::string shown;
  for (const EnablingRule& rule : rules) {
    if (!made || rule.change || rule.bench != shown) {
      shown = rule.bench;
      made.reset();
      Bench bench = benches::Named(rule.bench);
      if (rule.change) rule.change(bench);
      made = MakeRig(std::move(bench));
      ShowOn(*made);
    }
    PageWindow& rig = *made;
    EXPECT_EQ(rig.Find(rule.control).isEnabled(), rule.enabled) << rule.control << rule.bench;
  }
}

TEST_P(PageDrill, TheTabKeyGoesThroughThePageInOrder) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  ShowOn(rig);
  EXPECT_EQ(rig.TabOrder(), GetParam().tabOrder);
}

// The field that has the focus is left by the whole click, which a refused text forbids.
TEST_P(PageDrill, NoButtonTakesTheFocusByThePressAlone) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  for (const auto* button : ShowOn(rig).findChildren<QAbstractButton*>()) {
    EXPECT_FALSE((button->focusPolicy() & Qt::ClickFocus) != 0)
        << button->objectName().toStdString() << " " << button->text().toStdString();
  }
}

TEST_P(PageDrill, AScreenReaderFindsWhatThePageShows) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  EXPECT_EQ(AccessibleTree(ShowOn(rig)), GetParam().accessible);
}

TEST_P(PageDrill, EveryStopOfTheTabKeyHasAnAccessibleName) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  ShowOn(rig);
  for (const std::string& stop : rig.TabOrder()) {
    QWidget& control = rig.Find(stop);
    const AccessibleControl told = AccessibleOf(control);
    EXPECT_NE(told.name, "") << stop;
    control.setFocus();
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&control)->state().focused) << stop;
  }
}

// The program ends a page also while a person works on it.
TEST_P(PageDrill, DisablingHidingAndDestroyingStoreNothingAndAskNothing) {
  for (const std::string& stop : GetParam().tabOrder) {
    const auto made = MakeRig();
    PageWindow& rig = *made;
    Page& page = ShowOn(rig);
    BeginEdit(rig.Find(stop));
    const std::vector<std::string> before = EditedValues(rig);
    const std::size_t boxes = rig.prompts.Boxes().size();
    page.setEnabled(false);
    page.setEnabled(true);
    BeginEdit(rig.Find(stop));
    page.hide();
    delete &page;
    EXPECT_EQ(EditedValues(rig), before) << stop;
    EXPECT_EQ(rig.prompts.Boxes().size(), boxes) << stop;
  }
}

TEST_P(PageDrill, LoadingUnderATextThatIsTypedTakesItBack) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  Page& page = ShowOn(rig);
  const std::vector<std::string> before = EditedValues(rig);
  for (const std::string& stop : GetParam().tabOrder) {
    const auto* field = qobject_cast<TextField*>(&rig.Find(stop));
    if (field == nullptr) continue;
    const QString text = field->text();
    BeginEdit(rig.Find(stop));
    ASSERT_NE(field->text(), text) << stop;
    page.LoadData();
    EXPECT_EQ(field->text(), text) << stop;
    EXPECT_EQ(EditedValues(rig), before) << stop;
    ExpectLoadBoxesOnly(rig.prompts, GetParam().loadBox);
  }
}

TEST_P(PageDrill, LoadsAndSavesWithoutAController) {
  const auto made = MakeRig(Link::None);
  PageWindow& rig = *made;
  if (!GetParam().loadBox.empty()) rig.prompts.AcceptAnyBox();
  Page& page = rig.Show(GetParam().make(rig.microscope()));
  page.LoadData();
  page.SaveData();
  ExpectLoadBoxesOnly(rig.prompts, GetParam().loadBox);
}

TEST_P(PageDrill, LoadsWhicheverCallOfTheControllerFails) {
  std::size_t calls = 0;
  {
    const auto made = MakeRig();
    PageWindow& rig = *made;
    Page& page = ShowOn(rig);
    rig.journal.Clear();
    page.LoadData();
    calls = rig.journal.CallCount();
  }
  for (const std::size_t k : SampleOf(calls, 7)) {
    const auto made = MakeRig();
    PageWindow& rig = *made;
    Page& page = ShowOn(rig);
    if (!GetParam().loadBox.empty()) rig.prompts.AcceptAnyBox();
    rig.faults.FailCall(k);
    EXPECT_NO_THROW(page.LoadData()) << "call " << k;
    EXPECT_EQ(rig.faults.Hits(), 1U) << "call " << k;
    ExpectLoadBoxesOnly(rig.prompts, GetParam().loadBox);
  }
}

TEST_P(PageDrill, SavingAsksTheControllerNothing) {
  const auto made = MakeRig();
  PageWindow& rig = *made;
  Page& page = ShowOn(rig);
  rig.journal.Clear();
  page.SaveData();
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

}  // namespace mortane::test
