// The dialog that lets a person choose among the microscopes.
#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>

#include "widgets/Control.h"

class QLabel;
class QPushButton;

namespace mortane {

class ListBox;
class Prompts;
class clsK70;

class SelScopeDlg : public QDialog {
 public:
  // Whether the device of an index of the device list can be used now.
  using Availability = std::function<bool(std::int32_t)>;

  SelScopeDlg(clsK70& k70, Prompts& prompts, Availability isDeviceAvailable,
              QWidget* parent = nullptr);

  // Index of the chosen device; -1 until OK is pressed on a usable one.
  std::int16_t Selected = -1;

  Control<QLabel> Label1{"Label1"};
  Control<ListBox> List1{"List1"};
  Control<QPushButton> OkButton{"OkButton"};
  Control<QPushButton> CancelButton{"CancelButton"};

 private:
  void LoadList(clsK70& k70);
  void OnOk();

  Prompts& prompts_;
  Availability isDeviceAvailable_;
};

}  // namespace mortane
