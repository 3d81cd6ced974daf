// The sub-page that gives functions to the switches of the Tactor hand controller.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "common/Prompts.h"
#include "switches/SwitchRowsCtl.h"

class QFrame;

namespace mortane {

class OptionGroup;
class PairPanel;
class SectionOption;
class TabStrip;
class TextField;
class clsControlTactor;
class clsDbSwitch;

// What the page asks of the program around it.
struct TactorProgram {
  std::function<bool()> hasStage;  // whether the XY stage's settings are enabled
  // Read the hand controller's own data file into the unit, and write it.
  std::function<void(const std::string& path)> readFile;
  std::function<void(const std::string& path)> writeFile;
};

// Two pages of six switches each; in standard mode the second one has its dial alone. Loading
// changes nothing in the model. Kept: a tab "New File" has no meaning for the data.
class TactorSwitchSettingCtl : public SwitchRowsCtl {
  Q_OBJECT

 public:
  // `knobs` are fields of another unit, which must live as long.
  TactorSwitchSettingCtl(clsControlTactor& tactor, const clsDbSwitch& body, KnobModes knobs,
                         TactorProgram program, QWidget* parent = nullptr);

  void LoadData() override;

  Control<QWidget> frmSetup{"frmSetup"};
  Control<TabStrip> TabSwitch{"TabSwitch"};
  Control<QFrame> frmMode{"frmMode"};
  Control<OptionGroup> OptMode{"OptMode"};
  Control<QFrame> frmHandle{"frmHandle"};
  Control<OptionGroup> optHandle{"optHandle"};
  Control<OptionGroup> optChg{"optChg"};  // 1 for page A, 2 for page B
  Control<TextField> textSW{"textSW"};
  // Never shown: the names of all functions, each at the place of its code. A selection in it gives
  // the row at hand that function.
  Control<ComboBox> ComboSWFunc{"ComboSWFunc"};
  Control<QPushButton> btnNewFileOpen{"btnNewFileOpen"};
  Control<QPushButton> btnReadFileOpen{"btnReadFileOpen"};
  Control<QPushButton> Command1{"Command1"};
  FileQuestion CommonDialog1;

 protected:
  [[nodiscard]] std::int16_t Func(std::int16_t position) const override;
  void Func(std::int16_t position, std::int16_t code) override;
  [[nodiscard]] std::int16_t SwitchCount() const override;
  void SetDefaults() override;
  [[nodiscard]] QString FunctionText(std::int32_t code) const override;
  void ShowSelected(int row) override;

 private:
  void BuildControls();
  void BuildLayout();
  void BuildPageOptions();
  void LoadRows();
  [[nodiscard]] QString TextOf(int row) const;
  void LoadMode();
  void LoadHandle();
  void ClickMode(int mode);
  void ClickHandle(int side);
  void OpenFile();
  void SaveFile();

  clsControlTactor& tactor_;
  TactorProgram program_;
  PairPanel* pair_ = nullptr;
  QWidget* left_ = nullptr;   // drawing and options
  QWidget* right_ = nullptr;  // list and functions
};

}  // namespace mortane
