// Every section of every page of the window, in windows and fonts of many sizes.
#include <gtest/gtest.h>

#include <QRadioButton>

#include "AppRig.h"
#include "gui/support/FontScope.h"
#include "gui/support/PageLayout.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"

namespace mortane::test {
namespace {

struct WindowFace {
  double points;
  QSize window;  // grows to the least that its font needs
};

void PrintTo(const WindowFace& face, std::ostream* stream) {
  *stream << face.points << " pt, " << face.window.width() << " x " << face.window.height();
}

class WindowFaces : public testing::TestWithParam<WindowFace> {};

TEST_P(WindowFaces, ShowEverySectionWholeWithOneScrollBarAtMost) {
  const std::vector<std::string> none;
  const FontScope font(FontOf(GetParam().points));
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->resize(GetParam().window);
  for (std::size_t i = 0; i < kPageCount; ++i) {
    ASSERT_TRUE(rig.form->ImageButton[i]->isEnabled()) << i;
    rig.form->optMenu[i]->setChecked(true);
    ComeToRest();
    ForEachSection(*rig.form, [&](int section) {
      ComeToRest();
      EXPECT_EQ(FaultsOfSight(*rig.form->PictureMenu->parentWidget()), none)
          << "page " << i << ", section " << section;
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, WindowFaces,
                         testing::Values(WindowFace{9, {800, 500}}, WindowFace{12, {800, 500}},
                                         WindowFace{18, {800, 500}}, WindowFace{12, {1024, 640}},
                                         WindowFace{18, {1024, 640}}, WindowFace{18, {1152, 740}},
                                         WindowFace{9, {2560, 1400}},
                                         WindowFace{18, {2560, 1400}}));

}  // namespace
}  // namespace mortane::test
