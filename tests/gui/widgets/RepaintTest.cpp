// What a control shows anew is painted at once; what room and which focus each control takes.
#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/CommandKey.h"
#include "widgets/ListBox.h"
#include "widgets/NotSentMark.h"
#include "widgets/PageButton.h"
#include "widgets/ProgressLine.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

template <class Control>
void ExpectPainted(const char* what, Control* control, const std::function<void(Control&)>& act) {
  QWidget window;
  control->setParent(&window);
  control->resize(control->sizeHint().expandedTo({40, 20}));
  window.resize(300, 100);
  window.show();
  QApplication::processEvents();
  test::PaintCount paints(*control);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  // The first paintings of a window come one by one.
  do {
    paints.count = 0;
    QApplication::processEvents();
  } while (paints.count > 0);
  act(*control);
  QApplication::processEvents();
  EXPECT_GT(paints.count, 0) << what;
}

TEST(Repaint, FollowsEachChangeOfAFace) {
  ExpectPainted<CheckToggle>("unknown", new CheckToggle, [](auto& c) { c.SetUnknown(); });
  ExpectPainted<CheckToggle>("not sent", new CheckToggle, [](auto& c) { MarkNotSent(c, u"ON"_s); });
  ExpectPainted<CommandKey>("main", new CommandKey(IconName::Send, u"Send"_s),
                            [](auto& c) { c.setMain(true); });
  ExpectPainted<PageButton>("selected", new PageButton(IconName::System, u"System"_s),
                            [](auto& c) { c.SetSelected(true); });
  ExpectPainted<PageButton>("not sent", new PageButton(IconName::System, u"System"_s),
                            [](auto& c) { c.SetPending(true); });
  ExpectPainted<SectionOption>("not sent", new SectionOption(u"One"_s, nullptr),
                               [](auto& c) { c.SetPending(true); });
  ExpectPainted<SectionOption>("an end", new SectionOption(u"One"_s, nullptr),
                               [](auto& c) { c.SetEnds(true, true); });
  ExpectPainted<TextField>("not sent", new TextField, [](auto& c) { c.SetPending(u"was"_s); });
  ExpectPainted<TextField>("refused", new TextField, [](auto& c) {
    c.SetCheck([](const QString&) { return false; });
    c.Commit();
  });
  ExpectPainted<ProgressLine>("progress", new ProgressLine, [](auto& c) { c.setProgress(1, 2); });
  auto* strip = new TabStrip;
  strip->SetNumberedTabs(2);
  ExpectPainted<TabStrip>("not sent", strip, [](auto& c) { c.SetTabPending(0, true); });
}

// The line around the list; its rows are painted in the viewport.
TEST(Repaint, TheLineOfAListFollowsTheFocus) {
  TestWindow window;
  auto* other = window.Add<QLineEdit>();
  auto* list = window.Add<ListBox>();
  list->addRow("one");
  window.Show();
  other->setFocus();
  QApplication::processEvents();
  test::PaintCount paints(*list);
  for (const int row : {-1, 0}) {
    list->setIndex(row);
    QApplication::processEvents();
    for (QWidget* next : {static_cast<QWidget*>(list), static_cast<QWidget*>(other)}) {
      paints.count = 0;
      next->setFocus();
      QApplication::processEvents();
      EXPECT_GT(paints.count, 0) << row;
    }
  }
}

struct RoomRow {
  const char* what;
  QWidget* control;
  QSizePolicy::Policy across;
  QSizePolicy::Policy down;
  Qt::FocusPolicy focus;
  bool hovers;
};

TEST(ControlRoom, EachTakesTheRoomAndTheFocusOfItsKind) {
  using P = QSizePolicy;
  for (const RoomRow& row : {
           RoomRow{"switch", new CheckToggle, P::Fixed, P::Fixed, Qt::TabFocus, true},
           RoomRow{"key", new CommandKey(IconName::Send, {}), P::Fixed, P::Fixed, Qt::TabFocus,
                   true},
           RoomRow{"page", new PageButton(IconName::System, {}), P::Expanding, P::Maximum,
                   Qt::TabFocus, true},
           RoomRow{"section", new SectionOption({}, nullptr), P::Maximum, P::Fixed, Qt::StrongFocus,
                   true},
           RoomRow{"sections", new SectionBar, P::Maximum, P::Fixed, Qt::NoFocus, false},
           RoomRow{"field", new TextField, P::Preferred, P::Fixed, Qt::StrongFocus, false},
           RoomRow{"combo", new ComboBox, P::Preferred, P::Fixed, Qt::TabFocus, false},
           RoomRow{"progress", new ProgressLine, P::Expanding, P::Fixed, Qt::NoFocus, false},
       }) {
    EXPECT_EQ(row.control->sizePolicy().horizontalPolicy(), row.across) << row.what;
    EXPECT_EQ(row.control->sizePolicy().verticalPolicy(), row.down) << row.what;
    EXPECT_EQ(row.control->focusPolicy(), row.focus) << row.what;
    EXPECT_EQ(row.control->testAttribute(Qt::WA_Hover), row.hovers) << row.what;
    delete row.control;
  }
  EXPECT_EQ(TextField().textMargins(), QMargins(6, 0, 6, 0));
  EXPECT_EQ(ComboBox().maxVisibleItems(), 16);
  EXPECT_TRUE(ProgressLine().testAttribute(Qt::WA_TransparentForMouseEvents));
  const TabStrip strip;
  EXPECT_TRUE(strip.testAttribute(Qt::WA_Hover));
  EXPECT_FALSE(strip.drawBase());
  EXPECT_FALSE(strip.expanding());
  EXPECT_FALSE(strip.usesScrollButtons());
}

}  // namespace
}  // namespace mortane
