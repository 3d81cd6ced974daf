// The sub-page that tells which function each direction and button of a joypad has.
#pragma once

#include <memory>
#include <string>

#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QLabel;
class QPushButton;

namespace mortane {

class Card;
class Joystick;
class JoypadAssignments;
class ListBox;
class ReportList;
class TextField;

// The assignments are read when the page is made, and saved when it is hidden and when it is
// destroyed, whether it was ever shown or not. Whenever it is shown the joystick is asked again,
// and one with other buttons gets its rows. One with more buttons than there are assignments leaves
// the page without a row: it says so, and saves nothing.
class JoypadSwitchSettingCtl : public CardPage {
  Q_OBJECT

 public:
  // The joystick must live as long. `applicationData` is the user's folder for it.
  JoypadSwitchSettingCtl(Joystick& joystick, std::string applicationData,
                         QWidget* parent = nullptr);
  ~JoypadSwitchSettingCtl() override;

  void LoadData() override;
  void SaveData() override;

  Control<Card> Frame1{"Frame1"};
  Control<TextField> textSwFunc{"textSwFunc"};  // the function that was chosen last
  Control<ReportList> ListView1{"ListView1"};
  Control<ListBox> lstSwFunc{"lstSwFunc"};
  Control<QPushButton> cmdAllClear{"cmdAllClear"};
  Control<QLabel> whyEmpty{"whyEmpty"};  // shown while there is no row

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void BuildLayout();
  // Takes what the joystick has now. True when the page shows something else.
  bool TakeJoystick();
  void EnableFunctions(bool enabled);
  void SelectRow(int row);
  void Choose(int function);
  void ClearAll();
  void ShowFunction(int row, const QString& text);

  Joystick& joystick_;
  std::string applicationData_;
  std::unique_ptr<JoypadAssignments> assignments_;  // empty until a joystick's buttons fit
  bool fits_ = false;  // the buttons of the joystick that was asked last
};

}  // namespace mortane
