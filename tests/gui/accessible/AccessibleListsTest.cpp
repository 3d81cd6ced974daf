// Lists, tab strips and combo boxes as a screen reader meets them.
#include <QAbstractItemView>

#include "gui/support/AccessibleTree.h"
#include "gui/support/TestWindow.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane {
namespace {

using test::AccessibleOf;
using Items = std::vector<int>;
using Texts = std::vector<std::string>;
namespace told = test::told;

QAccessibleInterface& InterfaceOf(QObject* object) {
  return *QAccessible::queryAccessibleInterface(object);
}

Texts ItemNames(QObject* object) {
  const QAccessibleInterface& control = InterfaceOf(object);
  Texts names;
  for (int i = 0; i < control.childCount(); ++i) {
    names.push_back(control.child(i)->text(QAccessible::Name).toStdString());
  }
  return names;
}

void Press(QAccessibleInterface* item) {
  item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
}

class AccessibleItemsTest : public testing::Test {
 protected:
  AccessibleItemsTest() {
    field = window.Add<TextField>();
    list = window.Add<ListBox>();
    strip = window.Add<TabStrip>();
    combo = window.Add<ComboBox>();
    list->setAccessibleName("Objectives");
    list->SetColumns({{"Type"}, {"Mag."}, {"Name"}});
    list->addCells({"Oil", "100x", "Plan A 100x"});
    list->addCells({});
    list->addCells({"Dry", "", "Plan F"});
    strip->setAccessibleName("Address");
    strip->SetNumberedTabs(3);
    combo->setAccessibleName("Condenser");
    combo->addRow("");
    combo->addRow("Ph 1");
    combo->addRow("Ph 2");
    window.widget().resize(400, 500);
    window.Show();
    field->setFocus();
  }

  TestWindow window;
  TextField* field = nullptr;
  ListBox* list = nullptr;
  TabStrip* strip = nullptr;
  ComboBox* combo = nullptr;
};

TEST_F(AccessibleItemsTest, ARowIsToldWithAllItsColumnsAndTheirHeaders) {
  EXPECT_EQ(ItemNames(list),
            (Texts{"Type Oil, Mag. 100x, Name Plan A 100x", "Blank", "Type Dry, Name Plan F"}));
}

TEST_F(AccessibleItemsTest, ARowWithoutHeadersIsToldAsItStands) {
  ListBox plain;
  plain.addRow("Plan A");
  plain.addRow("   ");
  EXPECT_EQ(ItemNames(&plain), (Texts{"Plan A", "Blank"}));
}

TEST_F(AccessibleItemsTest, ControlsKeepTheirNamesAndTellWhatIsChosen) {
  EXPECT_EQ(AccessibleOf(*list), told::List("Objectives", ""));
  EXPECT_EQ(AccessibleOf(*strip), told::Tabs("Address", "1"));
  EXPECT_EQ(AccessibleOf(*combo), told::Combo("Condenser", ""));
  list->setIndex(2);
  strip->setIndex(1);
  combo->setIndex(2);
  EXPECT_EQ(AccessibleOf(*list), told::List("Objectives", "Type Dry, Name Plan F"));
  EXPECT_EQ(AccessibleOf(*strip), told::Tabs("Address", "2"));
  EXPECT_EQ(AccessibleOf(*combo), told::Combo("Condenser", "Ph 2"));
  list->setIndex(1);
  EXPECT_EQ(AccessibleOf(*list), told::List("Objectives", "Blank"));
}

TEST_F(AccessibleItemsTest, AListIsNamedByItsLabel) {
  auto* plain = window.Add<ListBox>();
  window.Add<QLabel>("Please Click")->setBuddy(plain);
  EXPECT_EQ(AccessibleOf(*plain).name, "Please Click");
}

TEST_F(AccessibleItemsTest, ItemsBearTheirRoles) {
  EXPECT_EQ(InterfaceOf(list).child(0)->role(), QAccessible::ListItem);
  EXPECT_EQ(InterfaceOf(strip).child(0)->role(), QAccessible::PageTab);
  EXPECT_EQ(InterfaceOf(combo).child(0)->role(), QAccessible::ListItem);
}

TEST_F(AccessibleItemsTest, ItemsKnowTheirPlaceInTheTree) {
  for (QWidget* control : std::initializer_list<QWidget*>{list, strip, combo}) {
    const QAccessibleInterface& owner = InterfaceOf(control);
    for (int i = 0; i < 3; ++i) {
      QAccessibleInterface* item = owner.child(i);
      EXPECT_EQ(owner.indexOfChild(item), i);
      EXPECT_EQ(owner.child(i), item) << "made once";
      EXPECT_EQ(item->parent(), &owner);
      EXPECT_EQ(item->childCount(), 0);
      EXPECT_EQ(item->child(0), nullptr);
      EXPECT_EQ(item->childAt(0, 0), nullptr);
      EXPECT_EQ(item->indexOfChild(&owner), -1);
      EXPECT_EQ(item->object(), nullptr);
      EXPECT_EQ(item->window(), owner.window());
      EXPECT_EQ(item->text(QAccessible::Value), "");
      EXPECT_EQ(item->textInterface(), nullptr);
      EXPECT_TRUE(item->isValid());
    }
    EXPECT_EQ(owner.childCount(), 3);
    EXPECT_EQ(owner.child(-1), nullptr);
    EXPECT_EQ(owner.child(3), nullptr);
  }
  EXPECT_EQ(InterfaceOf(list).indexOfChild(InterfaceOf(strip).child(0)), -1);
  EXPECT_EQ(InterfaceOf(list).indexOfChild(&InterfaceOf(strip)), -1);
}

TEST_F(AccessibleItemsTest, AnItemThatIsGoneIsNotValid) {
  const QAccessibleInterface* last = InterfaceOf(list).child(2);
  list->clearRows();
  EXPECT_FALSE(last->isValid());
  EXPECT_EQ(InterfaceOf(list).childCount(), 0);
  EXPECT_EQ(InterfaceOf(list).child(2), nullptr);
  for (int i = 0; i < 4; ++i) list->addRow("more");
  EXPECT_EQ(InterfaceOf(list).child(3)->text(QAccessible::Name), "Type more");
  EXPECT_TRUE(last->isValid());
}

TEST_F(AccessibleItemsTest, TheChosenItemIsSelectedAndHasTheFocusOfItsControl) {
  list->setIndex(0);
  strip->setIndex(2);
  combo->setIndex(1);
  const std::vector<std::pair<QWidget*, int>> chosen{{list, 0}, {strip, 2}, {combo, 1}};
  for (const auto& [control, index] : chosen) {
    const QAccessibleInterface& owner = InterfaceOf(control);
    EXPECT_EQ(owner.focusChild(), nullptr);
    EXPECT_FALSE(owner.child(index)->state().focused);
    control->setFocus();
    EXPECT_EQ(owner.focusChild(), owner.child(index));
    for (int i = 0; i < 3; ++i) {
      const QAccessible::State state = owner.child(i)->state();
      EXPECT_TRUE(state.selectable);
      EXPECT_TRUE(state.focusable);
      EXPECT_EQ(state.selected, i == index);
      EXPECT_EQ(state.focused, i == index);
      EXPECT_FALSE(state.checkable);
      EXPECT_FALSE(state.disabled);
    }
  }
}

TEST_F(AccessibleItemsTest, ItemsAreDisabledWithTheirControl) {
  strip->setTabEnabled(1, false);
  EXPECT_FALSE(InterfaceOf(strip).child(0)->state().disabled);
  EXPECT_TRUE(InterfaceOf(strip).child(1)->state().disabled);
  strip->setEnabled(false);
  EXPECT_TRUE(InterfaceOf(strip).child(0)->state().disabled);
  list->setEnabled(false);
  EXPECT_TRUE(InterfaceOf(list).child(0)->state().disabled);
}

TEST_F(AccessibleItemsTest, AMarkedRowTellsWhetherItIsChecked) {
  list->SetRowChecked(0, true);
  list->SetRowChecked(1, false);
  EXPECT_TRUE(InterfaceOf(list).child(0)->state().checkable);
  EXPECT_TRUE(InterfaceOf(list).child(0)->state().checked);
  EXPECT_TRUE(InterfaceOf(list).child(1)->state().checkable);
  EXPECT_FALSE(InterfaceOf(list).child(1)->state().checked);
  EXPECT_FALSE(InterfaceOf(list).child(2)->state().checkable);
}

TEST_F(AccessibleItemsTest, ItemsStandWhereTheyArePainted) {
  const QRect row = InterfaceOf(list).child(1)->rect();
  const QRect painted = list->visualItemRect(list->topLevelItem(1));
  EXPECT_EQ(row.topLeft(), list->viewport()->mapToGlobal(painted.topLeft()));
  EXPECT_EQ(row.size(), painted.size());
  EXPECT_EQ(InterfaceOf(list).childAt(row.center().x(), row.center().y()),
            InterfaceOf(list).child(1));
  EXPECT_EQ(InterfaceOf(list).childAt(row.center().x(), row.center().y() - row.height()),
            InterfaceOf(list).child(0));
  EXPECT_EQ(InterfaceOf(list).childAt(row.center().x(), row.bottom() + 3 * row.height()), nullptr);
  const QRect tab = InterfaceOf(strip).child(2)->rect();
  EXPECT_EQ(tab.topLeft(), strip->mapToGlobal(strip->tabRect(2).topLeft()));
  EXPECT_EQ(InterfaceOf(strip).childAt(tab.center().x(), tab.center().y()),
            InterfaceOf(strip).child(2));
}

TEST_F(AccessibleItemsTest, ARowThatIsScrolledAwayIsOffTheScreen) {
  for (int i = 0; i < 60; ++i) list->addRow("more");
  EXPECT_FALSE(InterfaceOf(list).child(0)->state().offscreen);
  EXPECT_TRUE(InterfaceOf(list).child(60)->state().offscreen);
  EXPECT_FALSE(InterfaceOf(list).child(60)->state().invisible);
  list->hide();
  EXPECT_TRUE(InterfaceOf(list).child(0)->state().invisible);
}

TEST_F(AccessibleItemsTest, PressingARowClicksIt) {
  for (int i = 0; i < 60; ++i) list->addRow("more");
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  EXPECT_EQ(InterfaceOf(list).child(0)->actionInterface()->actionNames(), QStringList("Press"));
  Press(InterfaceOf(list).child(60));
  EXPECT_EQ(list->index(), 60);
  EXPECT_EQ(Indices(clicks), Items{60});
  EXPECT_TRUE(list->hasFocus());
  InterfaceOf(list).child(0)->actionInterface()->doAction("Other");
  QApplication::processEvents();
  EXPECT_EQ(list->index(), 60);
}

TEST_F(AccessibleItemsTest, PressingATabClicksIt) {
  QSignalSpy clicks(strip, &TabStrip::chosen);
  Press(InterfaceOf(strip).child(2));
  EXPECT_EQ(Indices(clicks), Items{2});
  EXPECT_TRUE(strip->hasFocus());
}

TEST_F(AccessibleItemsTest, PressingAnItemOfAComboBoxChoosesIt) {
  QSignalSpy choices(combo, &ComboBox::chosen);
  Press(InterfaceOf(combo).child(2));
  EXPECT_EQ(combo->index(), 2);
  EXPECT_EQ(Indices(choices), Items{2});
  Press(InterfaceOf(combo).child(2));
  EXPECT_EQ(choices.size(), 2) << "a choice of the item on show is one too";
  combo->showPopup();
  Press(InterfaceOf(combo).child(1));
  EXPECT_EQ(combo->index(), 1);
  EXPECT_FALSE(combo->view()->isVisible());
}

TEST_F(AccessibleItemsTest, PressingIsNoneWhileATextIsRefusedOrTheControlDisabled) {
  field->SetCheck([](const QString&) { return false; });
  Press(InterfaceOf(list).child(2));
  EXPECT_EQ(list->index(), -1);
  EXPECT_TRUE(field->hasFocus());
  field->SetCheck([](const QString&) { return true; });
  list->setEnabled(false);
  Press(InterfaceOf(list).child(2));
  EXPECT_EQ(list->index(), -1);
}

TEST_F(AccessibleItemsTest, AComboBoxOpensItsList) {
  QAccessibleInterface& box = InterfaceOf(combo);
  EXPECT_EQ(box.actionInterface()->actionNames(), (QStringList{"ShowMenu", "SetFocus"}));
  EXPECT_TRUE(box.state().expandable);
  EXPECT_TRUE(box.state().collapsed);
  EXPECT_TRUE(box.state().hasPopup);
  box.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  QApplication::processEvents();
  EXPECT_TRUE(combo->hasFocus());
  EXPECT_TRUE(box.state().collapsed);
  box.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  QApplication::processEvents();
  EXPECT_TRUE(combo->view()->isVisible());
  EXPECT_TRUE(box.state().expanded);
  EXPECT_FALSE(box.state().collapsed);
  EXPECT_EQ(box.child(1)->rect().topLeft(),
            combo->view()->viewport()->mapToGlobal(
                combo->view()->visualRect(combo->model()->index(1, 0)).topLeft()));
  combo->hidePopup();
  combo->setEnabled(false);
  box.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  QApplication::processEvents();
  EXPECT_FALSE(combo->view()->isVisible());
}

TEST_F(AccessibleItemsTest, TheChoiceOfAComboBoxCanBeReadAsText) {
  combo->setIndex(1);
  QAccessibleTextInterface* text = InterfaceOf(combo).textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(0, text->characterCount()), "Ph 1");
  EXPECT_EQ(InterfaceOf(list).textInterface(), nullptr);
}

TEST_F(AccessibleItemsTest, ItemsGoWithTheirControl) {
  auto* gone = new ListBox;
  gone->addRow("one");
  const QAccessible::Id id = QAccessible::uniqueId(InterfaceOf(gone).child(0));
  EXPECT_NE(QAccessible::accessibleInterface(id), nullptr);
  delete gone;
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

}  // namespace
}  // namespace mortane
