// Every section of every page of the window, in windows and fonts of many sizes.
#include <gtest/gtest.h>

#include <QFrame>
#include <QRadioButton>
#include <QScrollArea>
#include <array>

#include "AppRig.h"
#include "gui/support/FontScope.h"
#include "gui/support/PageLayout.h"
#include "support/Sample.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"

namespace mortane::test {
namespace {

struct WindowFace {
  double points;
  QSize window;  // grows to the least that its font needs
  Tried tried = Tried::Always;
};

constexpr std::array kFaces{
    WindowFace{9, {800, 500}},
    WindowFace{12, {800, 500}, Tried::WithAllCases},
    WindowFace{18, {800, 500}},
    WindowFace{12, {1024, 640}},
    WindowFace{18, {1024, 640}, Tried::WithAllCases},
    WindowFace{18, {1152, 740}},
    WindowFace{9, {2560, 1400}},
    WindowFace{18, {2560, 1400}, Tried::WithAllCases},
};

void PrintTo(const WindowFace& face, std::ostream* stream) {
  *stream << face.points << " pt, " << face.window.width() << " x " << face.window.height();
}

// The controls of the page that the Tab key comes to, from its page button on.
QWidgetList StopsOf(MortaneMainForm& form, PageButton& button) {
  constexpr int kMost = 100;
  QWidgetList stops;
  button.setFocus();
  while (stops.size() < kMost) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* stop = QApplication::focusWidget();
    if (!form.FrameControl->isAncestorOf(stop)) return stops;
    stops << stop;
  }
  ADD_FAILURE() << "the Tab key never leaves the page";
  return stops;
}

// What the control is scrolled with.
const QWidget* ScrolledWith(const QWidget* control) {
  while (control->parentWidget() != nullptr) {
    if (qobject_cast<const QScrollArea*>(control->parentWidget()->parentWidget()) != nullptr) break;
    control = control->parentWidget();
  }
  return control;
}

// One line for each stop that stands above the one before it and no further right.
std::vector<std::string> StepsBack(const QWidgetList& stops) {
  std::vector<std::string> steps;
  for (int i = 1; i < stops.size(); ++i) {
    const QWidget* content = ScrolledWith(stops[i]);
    if (content != ScrolledWith(stops[i - 1])) continue;
    const auto areaOf = [content](const QWidget* stop) {
      return QRect(stop->mapTo(content, QPoint()), stop->size());
    };
    const QRect before = areaOf(stops[i - 1]);
    const QRect after = areaOf(stops[i]);
    if (after.bottom() > before.top() || after.left() >= before.right()) continue;
    steps.push_back(stops[i - 1]->objectName().toStdString() + " to " +
                    stops[i]->objectName().toStdString());
  }
  return steps;
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

TEST_P(WindowFaces, LeadTheTabKeyDownwardsAndToTheRight) {
  const FontScope font(FontOf(GetParam().points));
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  rig.form->activateWindow();
  rig.form->resize(GetParam().window);
  for (std::size_t i = 0; i < kPageCount; ++i) {
    rig.form->optMenu[i]->setChecked(true);
    ForEachSection(*rig.form, [&](int section) {
      ComeToRest();
      const QWidgetList stops = StopsOf(*rig.form, *rig.form->ImageButton[i]);
      EXPECT_FALSE(stops.isEmpty());
      EXPECT_EQ(StepsBack(stops), std::vector<std::string>())
          << "page " << i << ", section " << section;
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, WindowFaces, testing::ValuesIn(RowsToTry(kFaces)));

}  // namespace
}  // namespace mortane::test
