// The panel that composes the nine cubes of the user, one per tab.
#pragma once

#include <array>
#include <cstdint>

#include "filters/FilterItemLists.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QFrame;
class QLabel;

namespace mortane {

class ListBox;
class RecordForm;
class TabStrip;
class TextField;
class ValueLabel;
class clsDbFilter;

// Every accepted entry stores the whole cube on show. So does a new row that loading selects,
// with the name as shown: dashes for a blank one. An item that no list offers stays as it is.
class FilterOptionalQubeCtl : public CardPage {
  Q_OBJECT

 public:
  FilterOptionalQubeCtl(clsDbFilter& cubes, const FilterItemLists& items,
                        QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override { Store(); }

  Control<TabStrip> TabOption{"TabOption"};
  Control<QFrame> frm2{"frm2"};
  Control<QLabel> Label1{"Label1"};
  Control<TextField> TextName{"TextName"};
  Control<QLabel> Label2{"Label2"};
  Control<ValueLabel> LabelExciter{"LabelExciter"};
  Control<ListBox> ListExciter{"ListExciter"};
  Control<QLabel> Label3{"Label3"};
  Control<ValueLabel> LabelDichroic{"LabelDichroic"};
  Control<ListBox> ListDichroic{"ListDichroic"};
  Control<QLabel> Label4{"Label4"};
  Control<ValueLabel> LabelBarrier{"LabelBarrier"};
  Control<ListBox> ListBarrier{"ListBarrier"};

 private:
  struct Item;
  static const std::array<Item, kFilterItems> kItems;

  void BuildColumn(const Item& item, RecordForm& form);
  // Takes over name and codes; they must be complete before a row is selected, which stores.
  void ReadCube();
  void FillList(const Item& item);
  void AddItem(const Item& item, std::int32_t code);
  void SelectItem(const Item& item);
  std::int32_t& codeOf(const Item& item);
  void Store();

  clsDbFilter& cubes_;
  FilterItemLists items_;
  std::array<std::int32_t, kFilterItems> codes_{};  // of the cube on show
};

}  // namespace mortane
