// What a screen reader is told when something changes.
#include "gui/support/TestWindow.h"
#include "widgets/AccessibleChange.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

struct Change {
  QAccessible::Event type;
  const QObject* object;
  int child = -1;

  bool operator==(const Change&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Change& change) {
  return stream << std::hex << change.type << std::dec << " of child " << change.child;
}

using Changes = std::vector<Change>;
Changes changes;

class AccessibleChanges : public testing::Test {
 protected:
  void SetUp() override {
    changes.clear();
    former_ = WatchChanges([](const QAccessibleEvent& event) {
      changes.push_back({event.type(), event.object(), event.child()});
    });
  }
  void TearDown() override { WatchChanges(former_); }

  static Changes Take() { return std::exchange(changes, {}); }

  TestWindow window;

 private:
  ChangeWatcher former_ = nullptr;
};

TEST_F(AccessibleChanges, ANewValueIsTold) {
  auto* value = window.Add<ValueLabel>();
  value->setText("Plan A");
  EXPECT_EQ(Take(), (Changes{{QAccessible::ValueChanged, value}}));
  EXPECT_EQ(value->text(), "Plan A");
  value->setText("Plan A");
  EXPECT_EQ(Take(), Changes{}) << "the same again is no change";
}

TEST_F(AccessibleChanges, ThePageThatIsShownIsToldWithTheOneBefore) {
  auto* rail = window.Add<Rail>();
  rail->AddPage(IconName::System, "System");
  rail->AddPage(IconName::Objective, "Objectives");
  rail->select(0);
  Take();
  rail->select(1);
  EXPECT_EQ(Take(), (Changes{{QAccessible::StateChanged, rail->button(0)},
                             {QAccessible::StateChanged, rail->button(1)}}));
}

TEST_F(AccessibleChanges, ANewRowIsToldByItsNumberWithoutTheHeaders) {
  auto* field = window.Add<QLineEdit>();
  auto* list = window.Add<ListBox>();
  list->SetColumns({{"Type"}, {"Name"}});
  for (const char* name : {"One", "Two", "Three"}) list->addCells({name, name});
  window.Show();
  field->setFocus();
  Take();
  list->setIndex(2);
  EXPECT_EQ(Take(), (Changes{{QAccessible::Selection, list, 2}})) << "without the focus";
  list->setFocus();
  Take();
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(Take(), (Changes{{QAccessible::SelectionRemove, list, 2},
                             {QAccessible::Selection, list, 1},
                             {QAccessible::Focus, list, 1}}));
  list->setIndex(-1);
  EXPECT_EQ(Take(), (Changes{{QAccessible::SelectionRemove, list, 1}}));
}

}  // namespace
}  // namespace mortane
