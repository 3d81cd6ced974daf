// The sub-page that tells which function each direction and button of a joypad has.
#pragma once

#include <memory>

#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QLabel;
class QPushButton;

namespace mortane {

class Card;
class JoypadSettings;
class ListBox;
class ReportList;
class TextField;

// The assignments are saved when the page is hidden, and by the settings when they end. Whenever
// the page is shown the joystick is asked again, and one with other buttons gets its rows. One with
// more buttons than there are assignments leaves the page without a row: it says so, and saves
// nothing.
class JoypadSwitchSettingCtl : public CardPage {
  Q_OBJECT

 public:
  explicit JoypadSwitchSettingCtl(std::shared_ptr<JoypadSettings> settings,
                                  QWidget* parent = nullptr);

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
  // Says whether the joystick has more buttons than there are assignments.
  void ShowFit();
  void EnableFunctions(bool enabled);
  void SelectRow(int row);
  void Choose(int function);
  void ClearAll();
  void ShowFunction(int row, const QString& text);

  std::shared_ptr<JoypadSettings> settings_;
};

}  // namespace mortane
