// The panel that names the nine exciters, dichroics and barriers of the user.
#pragma once

#include <array>

#include "filters/FilterItemLists.h"
#include "model/OptionCodes.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QGridLayout;
class QLabel;

namespace mortane {

class TextField;

// A nameless item shows dashes. Kept: saving takes them for the name.
class FilterOptionalItemCtl : public CardPage {
  Q_OBJECT

 public:
  explicit FilterOptionalItemCtl(const FilterItemLists& items, QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  using Fields = Controls<TextField, kOptionPositions>;

  Control<QLabel> Label1{"Label1"};
  Control<QLabel> Label2{"Label2"};
  Control<QLabel> Label3{"Label3"};
  Controls<QLabel, kOptionPositions> Label11{"Label11"};
  Fields TextExciter{"TextExciter"};
  Fields TextDichroic{"TextDichroic"};
  Fields TextBarrier{"TextBarrier"};

 private:
  struct Column;
  static const std::array<Column, kFilterItems> kColumns;

  void BuildHeaders(QGridLayout& cells);
  void BuildRow(int row, QGridLayout& cells);
  TextField* BuildField(const Column& column, int row);
  void Store(const Column& column, int row);

  FilterItemLists items_;
};

}  // namespace mortane
