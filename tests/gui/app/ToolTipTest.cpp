// Tool tips that say why a page or one of its sections is disabled.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QTest>
#include <QToolTip>

#include "AppRig.h"
#include "condensers/CondenserSettingsCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "widgets/ContainerPage.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"

namespace mortane::test {
namespace {

std::vector<std::string> PageTips(const MortaneMainForm& form) {
  std::vector<std::string> tips;
  for (const PageButton* button : form.ImageButton) tips.push_back(button->toolTip().toStdString());
  return tips;
}

std::vector<std::string> SectionTips(const ContainerPage& page) {
  std::vector<std::string> tips;
  tips.reserve(static_cast<std::size_t>(page.sections()->count()));
  for (int i = 0; i < page.sections()->count(); ++i) {
    tips.push_back(page.sections()->option(i)->toolTip().toStdString());
  }
  return tips;
}

constexpr char kNotConnected[] = "No microscope is connected.";

TEST(PageTips, SayBeforeTheStartThatNoMicroscopeIsConnected) {
  AppRig rig(benches::Named("Harbour"));
  rig.form->Load();
  EXPECT_EQ(PageTips(*rig.form),
            (std::vector<std::string>{"", kNotConnected, kNotConnected, kNotConnected,
                                      kNotConnected, kNotConnected}));
}

TEST(PageTips, SayWhatAnEmptyInstrumentLacks) {
  AppRig rig(benches::Named("Shell"));
  rig.Start();
  std::vector<std::string> tips = PageTips(*rig.form);
  tips.resize(4);
  EXPECT_EQ(tips, (std::vector<std::string>{
                      "", "No nosepiece is mounted.", "No filter cube turret is mounted.",
                      "No condenser is mounted, or the body of the microscope is not connected."}));
}

TEST(PageTips, OfPagesThatCanBeUsedAreNone) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  for (std::size_t i = 0; i < kPageCount; ++i) {
    if (rig.form->ImageButton[i]->isEnabled()) {
      EXPECT_EQ(rig.form->ImageButton[i]->toolTip(), "") << i;
    }
  }
}

TEST(PageTips, AreShownAsTheArrowsPassOverTheirPages) {
  AppRig rig(benches::Named("Shell"));
  rig.Start();
  rig.form->ImageButton[0]->setFocus();
  QTest::keyClick(rig.form->focusWidget(), Qt::Key_Down);
  ASSERT_TRUE(QToolTip::isVisible());
  const QString wanted =
      "Objectives: No nosepiece is mounted.\n"
      "Filter Cubes: No filter cube turret is mounted.\n"
      "Condensers: No condenser is mounted, or the body of the microscope is not connected.";
  EXPECT_TRUE(QToolTip::text().startsWith(wanted)) << QToolTip::text().toStdString();
}

TEST(PageTips, AreToldAsTheDescriptionOfTheirButtons) {
  AppRig rig(benches::Named("Shell"));
  rig.Start();
  const auto* button = QAccessible::queryAccessibleInterface(rig.form->ImageButton[1]);
  EXPECT_EQ(button->text(QAccessible::Description), "No nosepiece is mounted.");
}

TEST(SectionTips, SayWhatAnEmptyInstrumentLacks) {
  AppRig rig(benches::Named("Shell"));
  rig.Start();
  rig.form->MenuConnectReceive->trigger();  // which loads disabled pages too
  EXPECT_EQ(SectionTips(*rig.form->ObjectiveSettingsCtl1),
            (std::vector<std::string>{"No nosepiece is mounted.", "",
                                      "No motorised nosepiece with limits is mounted."}));
  EXPECT_EQ(SectionTips(*rig.form->FilterQubeSettingsCtl1),
            (std::vector<std::string>{"No filter cube turret is mounted.", "", ""}));
  EXPECT_EQ(SectionTips(*rig.form->CondenserSettingsCtl1),
            (std::vector<std::string>{"No condenser is mounted.", ""}));
}

TEST(SectionTips, OfSectionsThatCanBeUsedAreNone) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  EXPECT_EQ(SectionTips(*rig.form->ObjectiveSettingsCtl1), std::vector<std::string>(3));
  EXPECT_EQ(SectionTips(*rig.form->FilterQubeSettingsCtl1), std::vector<std::string>(3));
  EXPECT_EQ(SectionTips(*rig.form->CondenserSettingsCtl1), std::vector<std::string>(2));
}

}  // namespace
}  // namespace mortane::test
