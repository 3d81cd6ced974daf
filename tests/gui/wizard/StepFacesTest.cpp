// The steps of the wizard in windows and fonts of many sizes.
#include <gtest/gtest.h>

#include <QApplication>
#include <array>

#include "WizardRig.h"
#include "gui/support/FontScope.h"
#include "gui/support/PageLayout.h"
#include "support/Sample.h"
#include "widgets/ListBox.h"
#include "wizard/StepRail.h"

namespace mortane::test {
namespace {

struct Face {
  double fontSize;       // of the system's
  double letterSpacing;  // per cent of the font's own
  QSize window;          // grows to the least that its font needs
  Tried tried = Tried::Always;
};

QFont FontFor(const Face& face) {
  QFont font = FontOf(QApplication::font().pointSizeF() * face.fontSize);
  font.setLetterSpacing(QFont::PercentageSpacing, face.letterSpacing);
  return font;
}

// A selected row is bold, and wider for it.
void SelectFirstRows(QWidget& window) {
  for (auto* list : window.findChildren<ListBox*>()) {
    if (list->isVisible() && list->rowCount() > 0) list->setIndex(0);
  }
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
    ForEachSection(*rig.form, [&](int section) {
      SelectFirstRows(*rig.form);
      ComeToRest();
      EXPECT_EQ(FaultsOfSight(*rig.form->PictureMenu->parentWidget()), Lines{})
          << step << ' ' << section;
    });
  }
}

constexpr QSize kDesigned{1152, 740};
constexpr QSize kNarrow{1024, 640};
constexpr QSize kSmall{800, 500};

constexpr std::array kFaces{
    Face{1, 100, kDesigned},
    Face{1, 100, kNarrow, Tried::WithAllCases},
    Face{1.5, 100, kDesigned, Tried::WithAllCases},
    Face{1.5, 100, kNarrow},
    Face{2, 100, kDesigned},
    Face{2, 100, kNarrow, Tried::WithAllCases},
    Face{1, 120, kDesigned, Tried::WithAllCases},
    Face{1.25, 120, kNarrow},
    Face{1, 100, kSmall},
    Face{1.33, 100, kSmall, Tried::WithAllCases},
    Face{2, 100, kSmall},
};

INSTANTIATE_TEST_SUITE_P(AllFaces, StepFaces, testing::ValuesIn(RowsToTry(kFaces)));

}  // namespace
}  // namespace mortane::test
