// The joypad's page over a scripted joystick and a file of its own.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>
#include <memory>

#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"
#include "switches/clsIniEdit.h"
#include "widgets/TextField.h"

namespace mortane::test {

using Names = std::vector<std::string>;

inline constexpr const char* kSetup = "Tarvex/OrmanaTools/Setup.ini";
inline constexpr const char* kDashes = "-----------------";

class JoypadPage : public testing::Test {
 protected:
  void WriteSetup(const std::string& content) const {
    std::filesystem::create_directories(folder.Path("Tarvex/OrmanaTools"));
    folder.Write(kSetup, content);
  }
  std::string SetupText() const { return TempFolder::Read(folder.Path(kSetup)); }
  int Value(const std::string& key) const {
    return clsIniEdit{folder.Path(kSetup)}.GetInt("JoyPad", key, -99);
  }

  // Makes the page for a joystick with so many buttons, loads and shows it.
  void Open(std::int32_t buttons) {
    joystick.capabilities = {kJoystickOk, buttons};
    OpenAsItIs();
  }
  void OpenAsItIs() {
    page = std::make_unique<JoypadSwitchSettingCtl>(
        std::make_shared<JoypadSettings>(joystick, folder.Path("")));
    page->resize(900, 480);
    page->LoadData();
    page->show();
    page->activateWindow();
    QApplication::processEvents();
  }
  void Choose(int row, int function) {
    ClickRow(*page->ListView1, row);
    ClickRow(*page->lstSwFunc, function);
  }
  Names rows() const { return Column(*page->ListView1, 0); }
  Names functions() const { return Column(*page->ListView1, 1); }
  std::string text() const { return page->textSwFunc->text().toStdString(); }

  TempFolder folder;
  ScriptedJoystick joystick;
  std::unique_ptr<JoypadSwitchSettingCtl> page;
};

}  // namespace mortane::test
