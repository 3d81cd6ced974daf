// The steps of the wizard in windows and fonts of many sizes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>

#include "WizardRig.h"
#include "gui/support/FontScope.h"
#include "gui/support/PageLayout.h"
#include "widgets/ListBox.h"
#include "wizard/StepRail.h"

namespace mortane::test {
namespace {

struct Face {
  double fontSize;       // of the system's
  double letterSpacing;  // per cent of the font's own
  QSize window;
};

QFont FontFor(const Face& face) {
  QFont font = FontOf(QApplication::font().pointSizeF() * face.fontSize);
  font.setLetterSpacing(QFont::PercentageSpacing, face.letterSpacing);
  return font;
}

// A size that follows from a width is asked for from one parent to the next, each in a turn of the
// event loop of its own.
void ComeToRest() {
  constexpr int kLongest = 10000;  // ms
  QApplication::processEvents(QEventLoop::AllEvents, kLongest);
}

class StepFaces : public testing::TestWithParam<Face> {};

TEST_P(StepFaces, ShowEveryStepWholeAndApart) {
  const FontScope font(FontFor(GetParam()));
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  for (int step = kFirstItem; step < kEndingStep; ++step) {
    rig.form->OnItemChanged(step - kFirstItem, true);
  }
  rig.form->resize(GetParam().window);
  for (int step = 0; step < kStepCount; ++step) {
    rig.form->optMenu[static_cast<std::size_t>(step)]->setChecked(true);
    ComeToRest();
    ASSERT_EQ(rig.form->currentStep, step);
    EXPECT_EQ(LayoutFaults(*rig.form->PictureMenu->parentWidget()), Lines{}) << step;
  }
}

constexpr QSize kDesigned{1152, 740};
constexpr QSize kNarrow{1024, 640};

// All columns of a list are in sight at once, also where the selected row is bold.
TEST(StepsAsDesigned, HaveNoListThatIsWiderThanItsRoom) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  for (int step = kFirstItem; step < kEndingStep; ++step) {
    rig.form->OnItemChanged(step - kFirstItem, true);
  }
  rig.form->resize(kDesigned);
  for (int step = 0; step < kStepCount; ++step) {
    rig.form->optMenu[static_cast<std::size_t>(step)]->setChecked(true);
    ComeToRest();
    for (auto* list : rig.form->currentPage->findChildren<ListBox*>()) {
      if (!list->isVisible()) continue;
      if (list->rowCount() > 0) list->setIndex(0);
      ComeToRest();
      const std::string name = list->objectName().toStdString();
      EXPECT_EQ(list->horizontalScrollBar()->maximum(), 0) << step << ' ' << name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllFaces, StepFaces,
                         testing::Values(Face{1, 100, kDesigned}, Face{1, 100, kNarrow},
                                         Face{1.5, 100, kDesigned}, Face{1.5, 100, kNarrow},
                                         Face{2, 100, kDesigned}, Face{2, 100, kNarrow},
                                         Face{1, 120, kDesigned}, Face{1.25, 120, kNarrow}));

}  // namespace
}  // namespace mortane::test
