// The sub-page that tells which condenser stands at each address of the cassette.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "widgets/CardPage.h"
#include "widgets/Control.h"
#include "widgets/LatePage.h"

class QLabel;

namespace mortane {

class ComboBox;
class TurretDrawing;
class clsCondenser;
class clsDbCondenser;

// Each list offers no condenser, the fixed ones that the controller finds fit for the address,
// and the user's named ones. Only a choice of the user reaches the model: a code without an
// entry shows nothing and stays. The turret shows what the lists show; the row that was worked
// last is the chosen one.
class CondenserCassetteCtl : public CardPage {
  Q_OBJECT

 public:
  // The cassette may have more addresses; these are the ones that people set here.
  static constexpr int kRowCount = 7;

  CondenserCassetteCtl(clsCondenser& cassette, const clsDbCondenser& condensers,
                       QWidget* parent = nullptr);

  // What happens in place of the page before it is made.
  static LatePlan Plan(clsCondenser& cassette, const clsDbCondenser& condensers);

  void LoadData() override;

  Controls<QLabel, kRowCount> Label1{"Label1"};
  Controls<ComboBox, kRowCount> Combo1{"Combo1"};

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The fixed condensers that the controller finds fit, for each row.
  using FixedCodes = std::array<std::vector<std::int32_t>, kRowCount>;

  static FixedCodes ReadFixedCodes(const clsDbCondenser& condensers);
  void BuildRow(int row, QWidget* parent);
  void Fill(const FixedCodes& fixed);
  void LoadRow(int row, const std::vector<std::int32_t>& fixed);
  void ChooseRow(int row);
  void UpdateTurret();
  // The rows on show, in the order of the places.
  [[nodiscard]] std::vector<int> ShownRows() const;

  clsCondenser& cassette_;
  const clsDbCondenser& condensers_;
  Control<TurretDrawing> turret_{"turret"};
  int chosenRow_ = 0;
};

}  // namespace mortane
