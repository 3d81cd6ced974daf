#include "app/PageArea.h"

#include "gui/support/TestWindow.h"
#include "widgets/Page.h"

namespace mortane::test {
namespace {

TEST(PageArea, AHiddenPageKeepsNoFocusInAWindowThatIsNotActive) {
  TestWindow window;
  auto* area = window.Add<PageArea>();
  auto* first = new Page;
  auto* second = new Page;
  area->Add(first);
  area->Add(second);
  auto* field = new QLineEdit(first);
  area->Show(first);
  window.Show();
  field->setFocus();
  ASSERT_EQ(window.widget().focusWidget(), field);
  TestWindow other;
  other.Show();
  ASSERT_FALSE(window.widget().isActiveWindow());
  area->Show(second);
  EXPECT_EQ(window.widget().focusWidget(), nullptr);
}

}  // namespace
}  // namespace mortane::test
