#include "filters/FilterOptionalQubeCtl.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "filters/OptionalFilters.h"
#include "hub/clsK70.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

// Wide letters are half as wide again as figures.
constexpr int kNameWidthCharacters = 16;

using controller::AccessoryDatabase;

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
  std::int32_t (AccessoryDatabase::*count)() const;  // the highest fixed code
};

const std::array<FilterOptionalQubeCtl::Item, kFilterItems> FilterOptionalQubeCtl::kItems{{
    {FilterItem::Exciter, "Label2", "Exciter", "LabelExciter", "ListExciter",
     &FilterOptionalQubeCtl::Label2, &FilterOptionalQubeCtl::LabelExciter,
     &FilterOptionalQubeCtl::ListExciter, &AccessoryDatabase::ExciterCount},
    {FilterItem::Dichroic, "Label3", "Dichroic", "LabelDichroic", "ListDichroic",
     &FilterOptionalQubeCtl::Label3, &FilterOptionalQubeCtl::LabelDichroic,
     &FilterOptionalQubeCtl::ListDichroic, &AccessoryDatabase::DichroicCount},
    {FilterItem::Barrier, "Label4", "Barrier", "LabelBarrier", "ListBarrier",
     &FilterOptionalQubeCtl::Label4, &FilterOptionalQubeCtl::LabelBarrier,
     &FilterOptionalQubeCtl::ListBarrier, &AccessoryDatabase::BarrierCount},
}};

FilterOptionalQubeCtl::FilterOptionalQubeCtl(QWidget* parent) : Page(parent) {
  auto* card = new Card(QStringLiteral("Add Optional Filter Cube Data to the List"), this);
  FrameBase = card;
  FrameBase->setObjectName("FrameBase");
  auto* panel = new QVBoxLayout(this);
  panel->setContentsMargins({});
  panel->addWidget(card);
  TabOption = new TabStrip(card);
  TabOption->setObjectName("TabOption");
  TabOption->setAccessibleName(QStringLiteral("Position"));
  QStringList captions;
  for (int i = 1; i <= kFilterPositions; ++i) captions.append(QString::number(i));
  TabOption->SetTabs(captions);
  frm2 = new QFrame(card);
  frm2->setObjectName("frm2");
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
  card->body()->addWidget(TabOption);
  card->body()->addWidget(frm2, 1);
  connect(TabOption, &TabStrip::clicked, this, [this] {
    ReadCube();
    for (const Item& item : kItems) SelectItem(item);
  });
}

QWidget* FilterOptionalQubeCtl::BuildName() {
  auto* ground = new QWidget(frm2);
  Label1 = new QLabel(QStringLiteral("Name"), ground);
  Label1->setObjectName("Label1");
  TextName = new TextField(ground);
  TextName->setObjectName("TextName");
  TextName->SetLimit(kFilterNameLength);
  TextName->SetWidthFor(kNameWidthCharacters);
  TextName->SetMark(QLatin1String(kUnusedFilter), TextField::LeftBlank::StaysBlank);
  TextName->setValidation([this] {
    Store();
    return true;
  });
  connect(TextName, &TextField::entered, TextName, &TextField::validate);
  Label1->setBuddy(TextName);
  auto* row = new QHBoxLayout(ground);
  row->setContentsMargins({});
  row->setSpacing(grid::kBetweenGroups);
  row->addWidget(Label1);
  row->addWidget(TextName);
  row->addStretch();
  return ground;
}

void FilterOptionalQubeCtl::BuildList(const Item& item, int column, QGridLayout& cells) {
  QLabel* label = CaptionLabel(QLatin1String(item.caption), frm2);
  label->setObjectName(QLatin1String(item.captionName));
  auto* value = new ValueLabel(frm2);
  value->setObjectName(QLatin1String(item.valueName));
  auto* list = new ListBox(frm2);
  list->setObjectName(QLatin1String(item.listName));
  list->setAccessibleName(label->text());
  label->setBuddy(list);
  cells.addWidget(label, 0, column);
  cells.addWidget(value, 1, column);
  cells.addWidget(list, 2, column);
  cells.setColumnStretch(column, 1);
  this->*item.label = label;
  this->*item.value = value;
  this->*item.list = list;
  connect(list, &ListBox::clicked, this, [this, &item, list, value](int row) {
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
  GetK70().dbFilter.Get_DbFilterOption(TabOption->caption().toInt(), name, exciter, dichroic,
                                       barrier);
  TextName->setText(NameOrMark(QString::fromStdString(name)));
}

void FilterOptionalQubeCtl::FillList(const Item& item) {
  ListBox* list = this->*item.list;
  list->clearRows();
  const std::int32_t highest = HighestFixedCode(item.count);
  for (std::int32_t code = 0; code <= highest; ++code) {
    const QString name = FilterItemName(item.item, code);
    if (name != QLatin1String(kUnusedFilter)) list->addRow(name, code);
  }
  for (std::int32_t code = kFirstOptionalFilter; code <= kLastOptionalFilter; ++code) {
    const QString name = FilterItemName(item.item, code);
    if (name != QLatin1String(kUnusedFilter) && !IsBlankName(name)) list->addRow(name, code);
  }
  SelectItem(item);
}

// A code without a row leaves the selection.
void FilterOptionalQubeCtl::SelectItem(const Item& item) {
  ListBox* list = this->*item.list;
  for (int row = 0; row < list->rowCount(); ++row) {
    if (list->data(row).toInt() == codeOf(item)) return list->setIndex(row);
  }
}

void FilterOptionalQubeCtl::Store() {
  GetK70().dbFilter.Set_DbFilterOption(TabOption->caption().toInt(), TextName->text().toStdString(),
                                       codes_[0], codes_[1], codes_[2]);
}

}  // namespace mortane
