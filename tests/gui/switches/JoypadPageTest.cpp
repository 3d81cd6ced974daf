// The sub-page of the joypad's assignments, and when it reads and saves them.
#include <gtest/gtest.h>

#include <QHideEvent>
#include <QLabel>
#include <QTest>
#include <filesystem>
#include <memory>

#include "gui/switches/JoypadRig.h"
#include "switches/SwitchFunctions.h"
#include "switches/clsIniEdit.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

TEST_F(JoypadPage, BearsTheGivenControls) {
  Open(2);
  EXPECT_EQ(page->findChild<QWidget*>("Frame1")->accessibleName(), "Joypad Switch Settings");
  EXPECT_EQ(page->ListView1->headerItem()->text(0), "Button");
  EXPECT_EQ(page->ListView1->headerItem()->text(1), "Function");
  for (const char* name : {"textSwFunc", "ListView1", "lstSwFunc", "cmdAllClear"}) {
    EXPECT_NE(page->findChild<QWidget*>(name), nullptr) << name;
  }
}

TEST_F(JoypadPage, HasARowForEachDirectionAndButton) {
  Open(3);
  EXPECT_EQ(rows(), (Names{"Axis X(<0)", "Axis X(>0)", "Axis Y(<0)", "Axis Y(>0)", "Button 1",
                           "Button 2", "Button 3"}));
}

TEST_F(JoypadPage, OffersTheJoypadsOwnFunctions) {
  Open(0);
  ASSERT_EQ(page->lstSwFunc->rowCount(), 47);
  for (int code = 0; code < 47; ++code) {
    EXPECT_EQ(page->lstSwFunc->text(code).toStdString(), JoypadFunctions()[std::size_t(code)].name);
    EXPECT_EQ(page->lstSwFunc->data(code).toInt(), code);
  }
  EXPECT_EQ(page->lstSwFunc->text(41), "Z Focus Position Up");
  EXPECT_EQ(page->lstSwFunc->text(46), "Y Position Move(Y<0)");
}

TEST_F(JoypadPage, AtAFirstStartShowsDashesInEveryRow) {
  Open(10);
  EXPECT_EQ(functions(), Names(14, kDashes));
}

TEST_F(JoypadPage, ShowsWhatTheFileSays) {
  WriteSetup("[JoyPad]\nRight=43\nLeft=44\nUp=-1\nDown=46\nButton1=13\nButton2=47\nButton3=-5\n");
  Open(3);
  EXPECT_EQ(functions(), (Names{"X Position Move(X>0)", "X Position Move(X<0)", kDashes,
                                "Y Position Move(Y<0)", "Shutter OPEN/CLOSE", "", ""}));
}

struct ButtonRow {
  std::int32_t buttons;
  int rows;
};

TEST_F(JoypadPage, HasRowsForAnyNumberOfButtonsUpToTwentyOne) {
  for (const ButtonRow& row : {ButtonRow{0, 4}, ButtonRow{4, 8}, ButtonRow{21, 25}}) {
    Open(row.buttons);
    EXPECT_EQ(page->ListView1->rowCount(), row.rows);
    EXPECT_EQ(functions(), Names(static_cast<std::size_t>(row.rows), kDashes));
    Choose(row.rows - 1, 5);
    EXPECT_EQ(functions().back(), "DIA Lamp Preset");
    page.reset();
    const std::string last = row.buttons == 0 ? "Down" : "Button" + std::to_string(row.buttons);
    EXPECT_EQ(Value(last), 5) << row.buttons;
    std::filesystem::remove(folder.Path(kSetup));
  }
}

// The program lives, and the file keeps what a pad that fits has put into it.
TEST_F(JoypadPage, OfMoreButtonsIsUselessAndLeavesTheFileAlone) {
  const std::string before = "[JoyPad]\nRight=1\nButton22=3\n";
  WriteSetup(before);
  Open(22);
  EXPECT_EQ(page->ListView1->rowCount(), 0);
  EXPECT_FALSE(page->cmdAllClear->isEnabled());
  ClickButton(*page->cmdAllClear);
  page->lstSwFunc->setIndex(3);
  EXPECT_EQ(text(), "");
  page->SaveData();
  page->LoadData();
  page->hide();
  page.reset();
  EXPECT_EQ(SetupText(), before);
}

TEST_F(JoypadPage, WithoutAJoystickShowsFourRowsAndTheTextOfThree) {
  for (const std::int32_t result :
       {kJoystickNoDriver, kJoystickUnplugged, kJoystickBadParameters}) {
    joystick.Fail(result);
    OpenAsItIs();
    EXPECT_EQ(rows(), (Names{"Axis X(<0)", "Axis X(>0)", "Axis Y(<0)", "Axis Y(>0)"})) << result;
    EXPECT_EQ(functions(), (Names{kDashes, kDashes, kDashes, ""})) << result;
  }
}

TEST_F(JoypadPage, WithoutAJoystickClearsThreeRowsAndTheFourthKeepsItsText) {
  WriteSetup("[JoyPad]\nRight=1\nLeft=2\nUp=3\nDown=4\n");
  joystick.Fail(kJoystickNoDriver);
  OpenAsItIs();
  Choose(3, 6);
  ClickButton(*page->cmdAllClear);
  EXPECT_EQ(functions(), (Names{"0", "0", "0", "LightPath Change"}));
  page->SaveData();
  EXPECT_EQ(Value("Up"), 0);
  EXPECT_EQ(Value("Down"), 6);
}

TEST_F(JoypadPage, AChosenFunctionGoesToTheSelectedRow) {
  Open(4);
  for (int row = 0; row < 8; ++row) {
    Choose(row, 40 - row);
    EXPECT_EQ(text(), page->lstSwFunc->text(40 - row).toStdString());
    EXPECT_EQ(functions()[std::size_t(row)], text());
    EXPECT_EQ(page->ListView1->boldRow(), row);
  }
  page->SaveData();
  const Names keys{"Right", "Left", "Up", "Down", "Button1", "Button2", "Button3", "Button4"};
  for (int row = 0; row < 8; ++row) EXPECT_EQ(Value(keys[std::size_t(row)]), 40 - row) << row;
}

TEST_F(JoypadPage, ChoosingTheFunctionOnShowStoresItAgain) {
  Open(1);
  Choose(4, 7);
  ClickButton(*page->cmdAllClear);
  ClickRow(*page->lstSwFunc, 7);
  EXPECT_EQ(functions()[4], "DIA Field Stop OPEN");
}

TEST_F(JoypadPage, OneFunctionMayBeGivenToSeveralRows) {
  Open(2);
  Choose(4, 7);
  Choose(5, 7);
  EXPECT_EQ(functions()[4], "DIA Field Stop OPEN");
  EXPECT_EQ(functions()[5], "DIA Field Stop OPEN");
}

TEST_F(JoypadPage, KeysInTheListOfFunctionsChooseTheNextOne) {
  Open(2);
  Choose(4, 7);
  QTest::keyClick(page->lstSwFunc, Qt::Key_Down);
  EXPECT_EQ(functions()[4], "DIA Field Stop CLOSE");
  EXPECT_EQ(text(), "DIA Field Stop CLOSE");
}

TEST_F(JoypadPage, AFunctionWithoutARowGoesNowhere) {
  Open(2);
  page->lstSwFunc->setIndex(3);
  EXPECT_EQ(text(), "");
  EXPECT_EQ(functions(), Names(6, kDashes));
  page->SaveData();
  EXPECT_EQ(Value("Right"), 0);
}

TEST_F(JoypadPage, SelectingARowShowsItsFunctionInTheListAndStoresNothing) {
  WriteSetup("[JoyPad]\nRight=30\nButton1=13\nButton2=60\n");
  Open(2);
  for (const auto& [row, function] : {std::pair{0, 30}, {1, 0}, {4, 13}, {5, -1}}) {
    ClickRow(*page->ListView1, row);
    EXPECT_EQ(page->lstSwFunc->index(), function) << row;
  }
  EXPECT_EQ(text(), "");
  EXPECT_EQ(functions(),
            (Names{"Observation DIC", kDashes, kDashes, kDashes, "Shutter OPEN/CLOSE", ""}));
}

TEST_F(JoypadPage, AllClearShowsNumbersUntilTheNextLoad) {
  WriteSetup("[JoyPad]\nRight=43\nButton2=13\nButton3=9\n");
  Open(2);
  ClickButton(*page->cmdAllClear);
  EXPECT_EQ(functions(), Names(6, "0"));
  page->LoadData();
  EXPECT_EQ(functions(), Names(6, kDashes));
  page->SaveData();
  EXPECT_EQ(Value("Right"), 0);
  EXPECT_EQ(Value("Button2"), 0);
  EXPECT_EQ(Value("Button3"), 9) << "a button that the pad does not have";
}

TEST_F(JoypadPage, ReadsAKeyOnceAndAsksTheJoystickWhenItIsMadeAndShown) {
  Open(1);
  WriteSetup("[JoyPad]\nRight=43\nButton1=5\n");
  page->LoadData();
  EXPECT_EQ(functions(), Names(5, kDashes));
  EXPECT_EQ(joystick.capabilityCalls, 2);
  EXPECT_EQ(joystick.statusCalls, 0);
}

TEST_F(JoypadPage, WithoutARowTheListOfFunctionsIsDisabledAndSaysWhy) {
  Open(2);
  const QString why = "Select a row to choose its function.";
  EXPECT_FALSE(page->lstSwFunc->isEnabled());
  EXPECT_EQ(page->lstSwFunc->toolTip(), why);
  EXPECT_EQ(page->lstSwFunc->viewport()->toolTip(), why);
  ClickRow(*page->ListView1, 1);
  EXPECT_TRUE(page->lstSwFunc->isEnabled());
  EXPECT_EQ(page->lstSwFunc->toolTip(), "");
  EXPECT_EQ(page->lstSwFunc->viewport()->toolTip(), "");
  page->LoadData();
  EXPECT_FALSE(page->lstSwFunc->isEnabled());
}

// A joystick that is plugged in, or exchanged, while the program runs.
class LateJoypad : public JoypadPage {
 protected:
  void ShowAgainWith(std::int32_t result, std::int32_t buttons) {
    page->hide();
    joystick.capabilities = {result, buttons};
    page->show();
  }
};

TEST_F(LateJoypad, GetsItsRowsWhenThePageIsNextShown) {
  WriteSetup("[JoyPad]\nRight=1\nDown=4\nButton1=13\nButton2=9\n");
  joystick.Fail(kJoystickUnplugged);
  OpenAsItIs();
  Choose(0, 2);
  ShowAgainWith(kJoystickOk, 2);
  EXPECT_EQ(functions(), (Names{"Objective CCW", kDashes, kDashes, "Z Escape", "Shutter OPEN/CLOSE",
                                "DIA Aperture Stop OPEN"}));
  page.reset();
  EXPECT_EQ(Value("Right"), 2);
  EXPECT_EQ(Value("Button1"), 13);
  EXPECT_EQ(Value("Button2"), 9);
}

TEST_F(LateJoypad, WithFewerButtonsLeavesTheKeysOfTheOthers) {
  WriteSetup("[JoyPad]\nButton1=13\nButton2=9\n");
  Open(2);
  Choose(5, 7);
  ShowAgainWith(kJoystickOk, 1);
  EXPECT_EQ(rows().size(), 5U);
  ShowAgainWith(kJoystickOk, 2);
  EXPECT_EQ(functions()[5], "DIA Field Stop OPEN");
  page.reset();
  EXPECT_EQ(Value("Button2"), 7);
}

TEST_F(LateJoypad, WithAsManyButtonsKeepsSelectionAndText) {
  Open(2);
  Choose(5, 7);
  ShowAgainWith(kJoystickOk, 2);
  EXPECT_EQ(page->ListView1->index(), 5);
  EXPECT_EQ(text(), "DIA Field Stop OPEN");
}

TEST_F(LateJoypad, WithTooManyButtonsSaysWhyThePageIsEmptyUntilOneFits) {
  WriteSetup("[JoyPad]\nButton1=13\n");
  const QString why = "The joypad has more than 21 buttons. Their functions cannot be set here.";
  for (const std::int32_t first : {1, 22}) {
    Open(first);
    EXPECT_EQ(page->whyEmpty->isVisible(), first == 22);
    ShowAgainWith(kJoystickOk, 22);
    EXPECT_TRUE(page->whyEmpty->isVisible());
    EXPECT_EQ(page->whyEmpty->text(), why);
    EXPECT_EQ(page->ListView1->rowCount(), 0);
    EXPECT_FALSE(page->cmdAllClear->isEnabled());
    const std::string before = SetupText();
    page->SaveData();
    EXPECT_EQ(SetupText(), before);
    ShowAgainWith(kJoystickOk, 1);
    EXPECT_FALSE(page->whyEmpty->isVisible());
    EXPECT_TRUE(page->cmdAllClear->isEnabled());
    EXPECT_EQ(functions().back(), "Shutter OPEN/CLOSE") << first;
    page.reset();
    EXPECT_EQ(Value("Button1"), 13);
  }
}

TEST_F(LateJoypad, TellsWhyItIsEmptyInLinesAsWideAsItsList) {
  Open(22);
  page->resize(700, 480);
  QApplication::processEvents();
  const QLabel& why = *page->whyEmpty;
  EXPECT_EQ(why.x(), page->ListView1->x());
  EXPECT_EQ(why.width(), page->ListView1->width());
  EXPECT_LT(why.width(), why.fontMetrics().horizontalAdvance(why.text()));
  EXPECT_GE(why.height(), why.heightForWidth(why.width()));
  EXPECT_LT(why.geometry().bottom(), page->ListView1->y());
}

TEST_F(JoypadPage, HasListsOfOneWidth) {
  Open(1);
  EXPECT_NEAR(page->ListView1->width(), page->lstSwFunc->width(), 1);
}

TEST_F(LateJoypad, AWindowThatComesBackFromTheTaskBarAsksNothing) {
  Open(1);
  const int before = joystick.capabilityCalls;
  QShowEvent bySystem;
  QSpontaneKeyEvent::setSpontaneous(&bySystem);
  ASSERT_TRUE(qApp->notify(page.get(), &bySystem));
  EXPECT_EQ(joystick.capabilityCalls, before);
}

TEST_F(JoypadPage, ALoadKeepsWhatWasChosenAndClearsTheSelection) {
  Open(1);
  Choose(4, 7);
  page->LoadData();
  EXPECT_EQ(functions()[4], "DIA Field Stop OPEN");
  EXPECT_EQ(page->ListView1->index(), -1);
  EXPECT_EQ(page->lstSwFunc->index(), -1);
  EXPECT_EQ(page->lstSwFunc->rowCount(), 47);
}

TEST_F(JoypadPage, SavesWhenThePersonLeavesIt) {
  Open(1);
  Choose(4, 7);
  EXPECT_FALSE(std::filesystem::exists(folder.Path(kSetup)));
  page->hide();
  EXPECT_EQ(Value("Button1"), 7);
}

TEST_F(JoypadPage, SavesWhenItsContainerIsHidden) {
  QWidget container;
  joystick.capabilities = {kJoystickOk, 1};
  auto* inner = new JoypadSwitchSettingCtl(
      std::make_shared<JoypadSettings>(joystick, folder.Path("")), &container);
  inner->LoadData();
  container.show();
  ClickRow(*inner->ListView1, 4);
  ClickRow(*inner->lstSwFunc, 7);
  container.hide();
  EXPECT_EQ(Value("Button1"), 7);
}

TEST_F(JoypadPage, SavesNothingWhenTheWindowIsMinimised) {
  Open(1);
  Choose(4, 7);
  QHideEvent bySystem;
  QSpontaneKeyEvent::setSpontaneous(&bySystem);
  ASSERT_TRUE(qApp->notify(page.get(), &bySystem));
  EXPECT_FALSE(std::filesystem::exists(folder.Path(kSetup)));
}

TEST_F(JoypadPage, SavesWhenItIsDestroyed) {
  Open(1);
  Choose(4, 7);
  page.reset();
  EXPECT_EQ(Value("Button1"), 7);
}

TEST_F(JoypadPage, WithoutAFolderOfTheUserWorksAndSavesNothing) {
  joystick.capabilities = {kJoystickOk, 1};
  page = std::make_unique<JoypadSwitchSettingCtl>(std::make_shared<JoypadSettings>(joystick, ""));
  page->LoadData();
  page->show();
  Choose(4, 7);
  EXPECT_EQ(functions()[4], "DIA Field Stop OPEN");
  page.reset();
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("")));
}

TEST_F(JoypadPage, WhoseFolderCannotBeMadeWorksAndLeavesWhatIsInItsPlace) {
  folder.Write("Tarvex", "kept");
  Open(1);
  Choose(4, 7);
  page.reset();
  EXPECT_EQ(TempFolder::Read(folder.Path("Tarvex")), "kept");
}

TEST_F(JoypadPage, WhoseFileIsAFolderWorksAndLeavesIt) {
  std::filesystem::create_directories(folder.Path(kSetup));
  Open(1);
  EXPECT_EQ(functions()[4], kDashes);
  Choose(4, 7);
  page.reset();
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path(kSetup)));
}

}  // namespace
}  // namespace mortane::test
