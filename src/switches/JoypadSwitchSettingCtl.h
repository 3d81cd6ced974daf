// The sub-page that tells which function each direction and button of a joypad has.
#pragma once

#include <memory>
#include <string>

#include "widgets/CardPage.h"
#include "widgets/Control.h"

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

  Control<Card> Frame1{"Frame1"};
  Control<TextField> textSwFunc{"textSwFunc"};  // the function that was chosen last
  Control<ReportList> ListView1{"ListView1"};
  Control<ListBox> lstSwFunc{"lstSwFunc"};
  Control<QPushButton> cmdAllClear{"cmdAllClear"};

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
