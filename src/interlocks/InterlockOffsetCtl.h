// The sub-page of the factors that the proper values are multiplied by.
#pragma once

#include <array>

#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QBoxLayout;
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

  Control<QLabel> lblNDFilter{"lblNDFilter"};
  Control<QLabel> lblFieldStop{"lblFieldStop"};
  Control<QLabel> lblApertureStop{"lblApertureStop"};
  Control<QLabel> lblEpiFieldStop{"lblEpiFieldStop"};
  Control<ComboBox> ComboNDFilter{"ComboNDFilter"};
  Control<ComboBox> ComboFieldStop{"ComboFieldStop"};
  Control<ComboBox> ComboApertureStop{"ComboApertureStop"};
  Control<ComboBox> ComboEpiFieldStop{"ComboEpiFieldStop"};
  Controls<QLabel, kRowCount> Label1{"Label1"};
  Control<QLabel> Label2{"Label2"};

 private:
  struct Row;
  static const std::array<Row, kRowCount> kRows;

  void BuildRow(const OffsetAccessory& row, QBoxLayout& rows);
  void AlignLabels();
  void LoadRow(const OffsetAccessory& row);

  clsInterLockOffset& offsets_;
};

}  // namespace mortane
