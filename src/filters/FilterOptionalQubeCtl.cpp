#include "filters/FilterOptionalQubeCtl.h"

#include "common/Text.h"
#include "filters/clsDbFilter.h"
#include "model/OptionCodes.h"
#include "widgets/ListBox.h"
#include "widgets/QtText.h"
#include "widgets/RecordForm.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Wide letters are half as wide again as figures.
constexpr int kNameWidthCharacters = 16;
// As wide as the longest names.
constexpr int kItemCharacters = 11;

}  // namespace

struct FilterOptionalQubeCtl::Item {
  FilterItem item;
  const char* caption;
  Control<QLabel> FilterOptionalQubeCtl::*label;
  Control<ValueLabel> FilterOptionalQubeCtl::*value;
  Control<ListBox> FilterOptionalQubeCtl::*list;
};

const std::array<FilterOptionalQubeCtl::Item, kFilterItems> FilterOptionalQubeCtl::kItems{{
    {FilterItem::Exciter, "Exciter", &FilterOptionalQubeCtl::Label2,
     &FilterOptionalQubeCtl::LabelExciter, &FilterOptionalQubeCtl::ListExciter},
    {FilterItem::Dichroic, "Dichroic", &FilterOptionalQubeCtl::Label3,
     &FilterOptionalQubeCtl::LabelDichroic, &FilterOptionalQubeCtl::ListDichroic},
    {FilterItem::Barrier, "Barrier", &FilterOptionalQubeCtl::Label4,
     &FilterOptionalQubeCtl::LabelBarrier, &FilterOptionalQubeCtl::ListBarrier},
}};

FilterOptionalQubeCtl::FilterOptionalQubeCtl(clsDbFilter& cubes, const FilterItemLists& items,
                                             QWidget* parent)
    : CardPage(u"Add Optional Filter Cube Data to the List"_s, parent),
      cubes_(cubes),
      items_(items) {
  RecordForm form(*FrameBase, kOptionPositions);
  TabOption = form.tabs();
  frm2 = form.frame();
  const RecordForm::Name name =
      form.AddName(static_cast<int>(kOptionNameLength), kNameWidthCharacters);
  Label1 = name.label;
  TextName = name.field;
  TextName->SetPlaceholder(ToQString(kUnnamedMark), TextField::LeftBlank::StaysBlank);
  for (const Item& item : kItems) BuildColumn(item, form);
  connect(TextName, &TextField::committed, this, &FilterOptionalQubeCtl::Store);
  connect(TabOption, &TabStrip::chosen, this, [this] {
    ReadCube();
    for (const Item& item : kItems) SelectItem(item);
  });
}

void FilterOptionalQubeCtl::BuildColumn(const Item& item, RecordForm& form) {
  auto* value = new ValueLabel(frm2);
  const RecordForm::Column column = form.AddColumn(item.caption, value, 1, kItemCharacters);
  this->*item.label = column.caption;
  this->*item.value = value;
  this->*item.list = column.list;
  connect(column.list, &ListBox::selectionChanged, this,
          [this, &item, list = column.list, value](int row) {
            value->setText(list->text(row));
            codeOf(item) = list->data(row).toInt();
            Store();
          });
}

std::int32_t& FilterOptionalQubeCtl::codeOf(const Item& item) {
  return codes_[static_cast<std::size_t>(item.item)];
}

void FilterOptionalQubeCtl::LoadData() {
  ReadCube();
  for (const Item& item : kItems) {
    FillList(item);
    if ((this->*item.list)->index() < 0) (this->*item.value)->clear();
  }
}

void FilterOptionalQubeCtl::ReadCube() {
  std::string name;
  auto& [exciter, dichroic, barrier] = codes_;
  cubes_.Get_DbFilterOption(TabOption->caption().toInt(), name, exciter, dichroic, barrier);
  TextName->setText(NameOrPlaceholder(name, kUnnamedMark));
}

void FilterOptionalQubeCtl::FillList(const Item& item) {
  ListBox* list = this->*item.list;
  list->clearRows();
  const std::int32_t fixed = items_.FixedCount(item.item);
  for (std::int32_t code = 0; code <= fixed; ++code) AddItem(item, code);
  for (std::int32_t code = kOptionBase + 1; code <= kHighestCode; ++code) {
    if (!Trim(items_.Name(item.item, code)).empty()) AddItem(item, code);
  }
  SelectItem(item);
}

void FilterOptionalQubeCtl::AddItem(const Item& item, std::int32_t code) {
  const std::string name = items_.Name(item.item, code);
  if (name != kUnnamedMark) (this->*item.list)->addRow(QString::fromStdString(name), code);
}

// Kept: a code without a row leaves the selection.
void FilterOptionalQubeCtl::SelectItem(const Item& item) {
  ListBox* list = this->*item.list;
  for (int row = 0; row < list->rowCount(); ++row) {
    if (list->data(row).toInt() == codeOf(item)) return list->setIndex(row);
  }
}

void FilterOptionalQubeCtl::Store() {
  cubes_.Set_DbFilterOption(TabOption->caption().toInt(), TextName->text().toStdString(), codes_[0],
                            codes_[1], codes_[2]);
}

}  // namespace mortane
