// The sub-page that tells which condenser stands at each address of the cassette.
#pragma once

#include <array>

#include "widgets/Page.h"

class QLabel;

namespace mortane {

class Card;
class ComboBox;

// Each list offers no condenser, the fixed ones that the controller finds fit for the address,
// and the user's named ones. Only a choice of the user reaches the model: a code without an
// entry shows nothing and stays.
class CondenserCassetteCtl : public Page {
 public:
  // The cassette may have more addresses; these are the ones that people set here.
  static constexpr int kRowCount = 7;

  explicit CondenserCassetteCtl(QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override {}  // every choice is in the model already

  Card* FrameBase;
  std::array<QLabel*, kRowCount> Label1;
  std::array<ComboBox*, kRowCount> Combo1;

 private:
  void BuildRow(int row);
  void LoadRow(int row);
};

}  // namespace mortane
