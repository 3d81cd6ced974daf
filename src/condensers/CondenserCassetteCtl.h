// The sub-page that tells which condenser stands at each address of the cassette.
#pragma once

#include <array>

#include "widgets/CardPage.h"

class QLabel;

namespace mortane {

class ComboBox;
class clsCondenser;
class clsDbCondenser;

// Each list offers no condenser, the fixed ones that the controller finds fit for the address,
// and the user's named ones. Only a choice of the user reaches the model: a code without an
// entry shows nothing and stays.
class CondenserCassetteCtl : public CardPage {
 public:
  // The cassette may have more addresses; these are the ones that people set here.
  static constexpr int kRowCount = 7;

  CondenserCassetteCtl(clsCondenser& cassette, const clsDbCondenser& condensers,
                       QWidget* parent = nullptr);

  void LoadData() override;

  std::array<QLabel*, kRowCount> Label1;
  std::array<ComboBox*, kRowCount> Combo1;

 private:
  void BuildRow(int row);
  void LoadRow(int row);

  clsCondenser& cassette_;
  const clsDbCondenser& condensers_;
};

}  // namespace mortane
