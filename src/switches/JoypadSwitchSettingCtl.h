// The sub-page that tells which function each direction and button of a joypad has.
#pragma once

#include <memory>
#include <string>

#include "widgets/CardPage.h"

class QPushButton;

namespace mortane {

class Card;
class Joystick;
class JoypadAssignments;
class ListBox;
class ReportList;
class TextField;

// The assignments are read when the page is made, and saved when it is hidden and when it is
// destroyed, whether it was ever shown or not. A joystick with more buttons than there are
// assignments makes the page useless: it shows no row and saves nothing.
class JoypadSwitchSettingCtl : public CardPage {
  Q_OBJECT

 public:
  // The joystick is asked here only. `applicationData` is the user's folder for it.
  JoypadSwitchSettingCtl(Joystick& joystick, const std::string& applicationData,
                         QWidget* parent = nullptr);
  ~JoypadSwitchSettingCtl() override;

  void LoadData() override;
  void SaveData() override;

  Card* Frame1;
  TextField* textSwFunc;  // the function that was chosen last
  ReportList* ListView1;
  ListBox* lstSwFunc;
  QPushButton* cmdAllClear;

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void BuildLayout();
  void SelectRow(int row);
  void Choose(int function);
  void ClearAll();
  void ShowFunction(int row, const QString& text);

  std::unique_ptr<JoypadAssignments> assignments_;  // empty for too many buttons
};

}  // namespace mortane
