// Buttons, values, pictures and groups as a screen reader meets them.
#include "drawings/MicroscopeDrawing.h"
#include "drawings/TurretDrawing.h"
#include "drives/CaptionedFrame.h"
#include "gui/support/AccessibleTree.h"
#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"
#include "widgets/PageButton.h"
#include "widgets/PageHeader.h"
#include "widgets/Rail.h"
#include "widgets/SectionBar.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

using test::AccessibleOf;
using test::AccessibleTree;
namespace told = test::told;

QAccessibleInterface& InterfaceOf(QObject* object) {
  return *QAccessible::queryAccessibleInterface(object);
}

void Toggle(QObject* object) {
  InterfaceOf(object).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QApplication::processEvents();
}

TEST(AccessibleRail, TellsThePageThatIsShown) {
  Rail rail;
  rail.AddPage(IconName::System, "System");
  rail.AddPage(IconName::Objective, "Objectives");
  rail.show();
  using Tree = std::vector<test::AccessibleControl>;
  EXPECT_EQ(AccessibleTree(rail),
            (Tree{told::Group("Pages"), told::NotChosen("System"), told::NotChosen("Objectives")}));
  rail.select(1);
  EXPECT_EQ(AccessibleTree(rail),
            (Tree{told::Group("Pages"), told::NotChosen("System"), told::Chosen("Objectives")}));
}

TEST(AccessibleRail, APageCanBeChosen) {
  Rail rail;
  rail.AddPage(IconName::System, "System");
  rail.AddPage(IconName::Objective, "Objectives");
  rail.show();
  rail.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&rail));
  Toggle(rail.button(1));
  EXPECT_EQ(rail.selected(), 1);
  EXPECT_TRUE(rail.button(1)->hasFocus());
}

TEST(AccessibleSections, AreExclusiveOptionsOfANamedGroup) {
  SectionBar bar;
  bar.setAccessibleName("Objectives");
  bar.AddOption("Nosepiece");
  bar.AddOption("Limit Control");
  bar.select(1);
  bar.show();
  EXPECT_EQ(AccessibleTree(bar), (std::vector<test::AccessibleControl>{
                                     told::Group("Objectives"), told::NotChosen("Nosepiece"),
                                     told::Chosen("Limit Control")}));
}

class AccessibleAction : public testing::Test {
 protected:
  void SetUp() override {
    field = window.Add<TextField>();
    bar = window.Add<SectionBar>();
    toggle = window.Add<CheckToggle>();
    bar->AddOption("One");
    bar->AddOption("Two");
    field->SetCheck([this](const QString&) { return accepted; });
    window.Show();
    field->setFocus();
  }

  bool accepted = true;
  TestWindow window;
  TextField* field = nullptr;
  SectionBar* bar = nullptr;
  CheckToggle* toggle = nullptr;
};

TEST_F(AccessibleAction, DoesWhatAClickDoes) {
  QSignalSpy clicks(bar, &SectionBar::selectionChanged);
  EXPECT_EQ(InterfaceOf(bar->option(1)).actionInterface()->actionNames(),
            (QStringList{"Toggle", "SetFocus"}));
  Toggle(bar->option(1));
  EXPECT_EQ(bar->selected(), 1);
  EXPECT_EQ(clicks.size(), 1);
  EXPECT_TRUE(bar->option(1)->hasFocus());
}

TEST_F(AccessibleAction, IsNoneWhileATextIsRefused) {
  accepted = false;
  Toggle(bar->option(1));
  EXPECT_EQ(bar->selected(), -1);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(AccessibleAction, MovesTheFocusAloneWhereNoMoreIsAsked) {
  InterfaceOf(bar->option(0))
      .actionInterface()
      ->doAction(QAccessibleActionInterface::setFocusAction());
  QApplication::processEvents();
  EXPECT_TRUE(bar->option(0)->hasFocus());
  EXPECT_EQ(bar->selected(), -1);
}

TEST_F(AccessibleAction, WorksAToggle) {
  EXPECT_EQ(InterfaceOf(toggle).actionInterface()->actionNames(),
            (QStringList{"Toggle", "SetFocus"}));
  Toggle(toggle);
  EXPECT_TRUE(toggle->isChecked());
  EXPECT_TRUE(toggle->hasFocus());
  field->setFocus();
  InterfaceOf(toggle).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  QApplication::processEvents();
  EXPECT_TRUE(toggle->hasFocus());
  EXPECT_TRUE(toggle->isChecked());
  accepted = false;
  field->setFocus();
  Toggle(toggle);
  EXPECT_TRUE(toggle->isChecked());
}

TEST(AccessibleToggle, IsNamedByItsLabelAndTellsItsSide) {
  QWidget window;
  auto* label = new QLabel("ND Filter", &window);
  auto* toggle = new CheckToggle(&window);
  label->setBuddy(toggle);
  using test::AccessibleControl;
  EXPECT_EQ(AccessibleOf(*toggle),
            (AccessibleControl{QAccessible::CheckBox, "ND Filter", "OFF", "unchecked"}));
  toggle->setChecked(true);
  EXPECT_EQ(AccessibleOf(*toggle),
            (AccessibleControl{QAccessible::CheckBox, "ND Filter", "ON", "checked"}));
  toggle->setAccessibleName("Shutter");
  toggle->setEnabled(false);
  EXPECT_EQ(AccessibleOf(*toggle),
            (AccessibleControl{QAccessible::CheckBox, "Shutter", "ON", "checked, disabled"}));
}

TEST(AccessibleToggle, OfAnUnknownValueIsNeitherOnNorOff) {
  CheckToggle toggle;
  EXPECT_FALSE(InterfaceOf(&toggle).state().checkStateMixed);
  toggle.SetUnknown();
  EXPECT_TRUE(InterfaceOf(&toggle).state().checkStateMixed);
}

TEST(AccessibleFrame, IsAGroupUnderItsCaption) {
  TestWindow window;
  auto* frame = window.Add<CaptionedFrame>("Moves");
  frame->body()->addWidget(new QLabel("inside"));
  window.Show();
  EXPECT_EQ(AccessibleTree(*frame),
            (std::vector<test::AccessibleControl>{told::Group("Moves"), told::Label("Moves"),
                                                  told::Label("inside")}));
}

TEST(AccessibleHeading, IsTheTitleOfAPage) {
  PageHeader header(IconName::System, "Cubes");
  header.show();
  EXPECT_EQ(AccessibleTree(header), std::vector{told::Heading("Cubes")});
}

TEST(AccessibleField, ThatOnlyShowsItsTextCannotBeWrittenInto) {
  TextField field;
  field.setReadOnly(true);
  field.setAccessibleName("Function");
  field.setText("Shutter");
  EXPECT_EQ(AccessibleOf(field), (test::AccessibleControl{QAccessible::EditableText, "Function",
                                                          "Shutter", "read only"}));
  EXPECT_EQ(InterfaceOf(&field).editableTextInterface(), nullptr);
  EXPECT_EQ(InterfaceOf(&field).textInterface()->text(0, 4), "Shut");
  EXPECT_FALSE(InterfaceOf(&field).state().editable);
  TextField editable;
  EXPECT_NE(InterfaceOf(&editable).editableTextInterface(), nullptr);
}

TEST(AccessibleValue, TellsTheCaptionOnceAndTheValue) {
  ValueLabel label;
  label.setAccessibleName("Type");
  label.setText("Water");
  EXPECT_EQ(AccessibleOf(label), told::Value("Type", "Water"));
  label.setText("Oil");
  EXPECT_EQ(AccessibleOf(label), told::Value("Type", "Oil"));
}

TEST(AccessibleValue, CanBeReadByCharacters) {
  ValueLabel label;
  label.setText("Water");
  QAccessibleTextInterface* text = InterfaceOf(&label).textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->characterCount(), 5);
  EXPECT_EQ(text->text(0, 5), "Water");
  EXPECT_EQ(text->text(1, 3), "at");
  EXPECT_EQ(text->text(4, 99), "r");
  int start = -1;
  int end = -1;
  EXPECT_EQ(text->attributes(2, &start, &end), "");
  EXPECT_EQ(start, 0);
  EXPECT_EQ(end, 5);
  text->addSelection(0, 2);
  text->setCursorPosition(3);
  EXPECT_EQ(text->selectionCount(), 0);
  EXPECT_EQ(text->offsetAtPoint({}), -1) << "places of characters are not told";
  EXPECT_EQ(text->characterRect(0), QRect());
  EXPECT_EQ(text->cursorPosition(), 0);
  start = end = -1;
  text->selection(0, &start, &end);
  EXPECT_EQ(start, 0);
  EXPECT_EQ(end, 0);
}

TEST(AccessibleTurret, IsAGroupOfExclusivePlaces) {
  TurretDrawing turret(PlaceKind::Cubes);
  turret.setAccessibleName("Filter Turret");
  turret.SetItems({{"GFP", "GFP", {}}, {}});
  turret.setIndex(1);
  turret.show();
  EXPECT_EQ(AccessibleTree(turret),
            (std::vector<test::AccessibleControl>{told::Group("Filter Turret"),
                                                  told::NotChosen("Address 1, GFP"),
                                                  told::Chosen("Address 2, ----")}));
}

TEST(AccessibleDrawing, IsAPictureWithANameAndADescription) {
  MicroscopeDrawing drawing;
  drawing.SetAccessories({{9, "Nosepiece Sensor", 1}});
  EXPECT_EQ(AccessibleOf(drawing), (test::AccessibleControl{QAccessible::Graphic, "Microscope"}));
  EXPECT_EQ(InterfaceOf(&drawing).text(QAccessible::Description), "Nosepiece Sensor: sensed only");
}

}  // namespace
}  // namespace mortane
