#include "filters/FilterOptionalQubeCtl.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "common/Text.h"
#include "filters/clsDbFilter.h"
#include "model/OptionCodes.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/Named.h"
#include "widgets/ShownName.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

// Wide letters are half as wide again as figures.
constexpr int kNameWidthCharacters = 16;

}  // namespace

struct FilterOptionalQubeCtl::Item {
  FilterItem item;
  const char* captionName;
  const char* caption;
  const char* valueName;
  const char* listName;
  QLabel* FilterOptionalQubeCtl::*label;
  ValueLabel* FilterOptionalQubeCtl::*value;
  ListBox* FilterOptionalQubeCtl::*list;
};

const std::array<FilterOptionalQubeCtl::Item, kFilterItems> FilterOptionalQubeCtl::kItems{{
    {FilterItem::Exciter, "Label2", "Exciter", "LabelExciter", "ListExciter",
     &FilterOptionalQubeCtl::Label2, &FilterOptionalQubeCtl::LabelExciter,
     &FilterOptionalQubeCtl::ListExciter},
    {FilterItem::Dichroic, "Label3", "Dichroic", "LabelDichroic", "ListDichroic",
     &FilterOptionalQubeCtl::Label3, &FilterOptionalQubeCtl::LabelDichroic,
     &FilterOptionalQubeCtl::ListDichroic},
    {FilterItem::Barrier, "Label4", "Barrier", "LabelBarrier", "ListBarrier",
     &FilterOptionalQubeCtl::Label4, &FilterOptionalQubeCtl::LabelBarrier,
     &FilterOptionalQubeCtl::ListBarrier},
}};

FilterOptionalQubeCtl::FilterOptionalQubeCtl(clsDbFilter& cubes, const FilterItemLists& items,
                                             QWidget* parent)
    : CardPage(QStringLiteral("Add Optional Filter Cube Data to the List"), parent),
      cubes_(cubes),
      items_(items) {
  TabOption = Named(new TabStrip(FrameBase), "TabOption");
  TabOption->setAccessibleName(QStringLiteral("Position"));
  TabOption->SetNumberedTabs(kOptionPositions);
  frm2 = Named(new QFrame(FrameBase), "frm2");
  auto* rows = new QVBoxLayout(frm2);
  rows->setContentsMargins({});
  rows->setSpacing(grid::kBetweenGroups);
  rows->addWidget(BuildName());
  auto* cells = new QGridLayout;
  cells->setHorizontalSpacing(grid::kBetweenColumns);
  cells->setVerticalSpacing(grid::kUnit);
  int column = 0;
  for (const Item& item : kItems) BuildList(item, column++, *cells);
  rows->addLayout(cells, 1);
  FrameBase->body()->addWidget(TabOption);
  FrameBase->body()->addWidget(frm2, 1);
  connect(TabOption, &TabStrip::chosen, this, [this] {
    ReadCube();
    for (const Item& item : kItems) SelectItem(item);
  });
}

QWidget* FilterOptionalQubeCtl::BuildName() {
  auto* panel = new QWidget(frm2);
  Label1 = Named(new QLabel(QStringLiteral("Name"), panel), "Label1");
  TextName = Named(new TextField(panel), "TextName");
  TextName->SetLimit(static_cast<int>(kOptionNameLength));
  TextName->SetWidthFor(kNameWidthCharacters);
  TextName->SetMark(ToQString(kUnnamedMark), TextField::LeftBlank::StaysBlank);
  connect(TextName, &TextField::committed, this, &FilterOptionalQubeCtl::Store);
  Label1->setBuddy(TextName);
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins({});
  row->setSpacing(grid::kBetweenGroups);
  row->addWidget(Label1);
  row->addWidget(TextName);
  row->addStretch();
  return panel;
}

void FilterOptionalQubeCtl::BuildList(const Item& item, int column, QGridLayout& cells) {
  QLabel* label = Named(CaptionLabel(QLatin1String(item.caption), frm2), item.captionName);
  auto* value = Named(new ValueLabel(frm2), item.valueName);
  auto* list = Named(new ListBox(frm2), item.listName);
  list->setAccessibleName(label->text());
  label->setBuddy(list);
  cells.addWidget(label, 0, column);
  cells.addWidget(value, 1, column);
  cells.addWidget(list, 2, column);
  cells.setColumnStretch(column, 1);
  this->*item.label = label;
  this->*item.value = value;
  this->*item.list = list;
  connect(list, &ListBox::selectionChanged, this, [this, &item, list, value](int row) {
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
  TextName->setText(NameOrMark(name, kUnnamedMark));
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

// A code without a row leaves the selection.
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
