// Where controls have the dot of what is not sent.
#include <QCheckBox>
#include <QRadioButton>

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/NotSentMark.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

template <class Control>
Control* Marked(Control* control) {
  MarkNotSent(*control, u"was"_s);
  return control;
}

TextField* Field() {
  auto* field = new TextField;
  field->SetPending(u"was"_s);
  return field;
}

TabStrip* Tabs() {
  auto* tabs = new TabStrip;
  tabs->SetTabs({{}, {}});
  tabs->SetTabPending(1, true);
  return tabs;
}

SectionOption* Section() {
  auto* option = new SectionOption({}, nullptr);
  option->SetPending(true);
  return option;
}

PageButton* Page() {
  auto* page = new PageButton(IconName::System, {});
  page->SetPending(true);
  return page;
}

struct DotRow {
  const char* what;
  QWidget* control;
  QSize size;
  QPointF centre;
};

TEST(DotPlace, IsBesideOrAboveWhatTheDotBelongsTo) {
  for (const DotRow& row : {
           DotRow{"field", Field(), {100, 30}, {93, 15}},
           DotRow{"combo", Marked(new ComboBox), {100, 30}, {67, 15}},
           DotRow{"switch", Marked(new CheckToggle), {100, 26}, {40, 5}},
           DotRow{"check box", Marked(new QCheckBox), {100, 26}, {21, 5}},
           DotRow{"option", Marked(new QRadioButton), {100, 26}, {21, 5}},
           DotRow{"tab", Tabs(), {112, 32}, {91, 14.5}},
           DotRow{"section", Section(), {100, 34}, {57, 17}},
           DotRow{"page", Page(), {104, 78}, {72, 15}},
       }) {
    const QImage picture = test::PictureOf(*row.control, row.size, test::Use::Rest);
    const bool isOnRail = row.size.height() == 78;
    const QColor color =
        isOnRail ? ToneColor(Tone::RailPending) : test::TellablePalette().color(QPalette::Link);
    // Its edges may be a pixel further at one side.
    const QPointF centre = QRectF(test::AreaOf(picture, color)).center();
    EXPECT_NEAR(centre.x(), row.centre.x(), 0.5) << row.what;
    EXPECT_NEAR(centre.y(), row.centre.y(), 0.5) << row.what;
    delete row.control;
  }
}

}  // namespace
}  // namespace mortane
