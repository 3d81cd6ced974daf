// The sub-page that gives functions to the dials and push switches of the body.
#pragma once

#include "switches/SwitchRowsCtl.h"

namespace mortane {

class Card;
class ListBox;
class TextField;
class clsControlTactor;
class clsDbSwitch;

// Loading changes nothing in the model. Kept: a dial code that begins no pair shows the function of
// the row above.
class SwitchSettingCtl : public SwitchRowsCtl {
  Q_OBJECT

 public:
  // `knobs` are fields of another unit, which must live as long.
  SwitchSettingCtl(clsDbSwitch& switches, const clsControlTactor& tactor, KnobModes knobs,
                   QWidget* parent = nullptr);

  void LoadData() override;

  Control<Card> Frame1{"Frame1"};
  Control<SwitchDrawing> Picture4{"Picture4"};
  Control<TextField> textSwFunc{"textSwFunc"};
  // Never shown: the names of all functions, each at the place of its code.
  Control<ListBox> lstSwFunc{"lstSwFunc"};

 protected:
  [[nodiscard]] std::int16_t Func(std::int16_t position) const override;
  void Func(std::int16_t position, std::int16_t code) override;
  [[nodiscard]] std::int16_t SwitchCount() const override;
  void SetDefaults() override;
  [[nodiscard]] QString FunctionText(std::int32_t code) const override;
  void ShowSelected(int row) override;
  void ShowChosen(const QString& text) override;

 private:
  void BuildLayout(QWidget* upper);
  [[nodiscard]] QString DialText(std::int16_t code, const QString& otherwise) const;

  clsDbSwitch& switches_;
};

}  // namespace mortane
