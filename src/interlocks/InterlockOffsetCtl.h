// The sub-page of the factors that the proper values are multiplied by.
#pragma once

#include <array>

#include "widgets/CardPage.h"

class QGridLayout;
class QLabel;

namespace mortane {

class ComboBox;
class clsInterLockOffset;
struct OffsetAccessory;

// Only a choice of the person reaches the model. A code that is no factor shows nothing and stays.
class InterlockOffsetCtl : public CardPage {
  Q_OBJECT

 public:
  static constexpr std::size_t kRowCount = 4;

  explicit InterlockOffsetCtl(clsInterLockOffset& offsets, QWidget* parent = nullptr);

  void LoadData() override;

  QLabel* lblNDFilter = nullptr;
  QLabel* lblFieldStop = nullptr;
  QLabel* lblApertureStop = nullptr;
  QLabel* lblEpiFieldStop = nullptr;
  ComboBox* ComboNDFilter = nullptr;
  ComboBox* ComboFieldStop = nullptr;
  ComboBox* ComboApertureStop = nullptr;
  ComboBox* ComboEpiFieldStop = nullptr;
  std::array<QLabel*, kRowCount> Label1{};
  QLabel* Label2 = nullptr;

 private:
  struct Controls;
  static const std::array<Controls, kRowCount> kControls;

  void BuildRow(const OffsetAccessory& row, QGridLayout& rows);
  void LoadRow(const OffsetAccessory& row);

  clsInterLockOffset& offsets_;
};

}  // namespace mortane
