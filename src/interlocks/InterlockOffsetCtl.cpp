#include "interlocks/InterlockOffsetCtl.h"

#include <QGridLayout>
#include <QLabel>

#include "interlocks/Interlock.h"
#include "interlocks/InterlockCtlTiles.h"
#include "interlocks/clsInterLockOffset.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/Named.h"
#include "widgets/ShownName.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kComboWidth = 96;

// By their codes, from 0.
constexpr std::array<std::string_view, 10> kFactors{"1.00", "0.95", "0.90", "0.85", "0.80",
                                                    "0.75", "0.70", "0.65", "0.60", "0.55"};

}  // namespace

struct InterlockOffsetCtl::Controls {
  const char* labelName;
  const char* listName;
  QLabel* InterlockOffsetCtl::*label;
  ComboBox* InterlockOffsetCtl::*list;
};

// From the top.
const std::array<InterlockOffsetCtl::Controls, InterlockOffsetCtl::kRowCount>
    InterlockOffsetCtl::kControls{{
        {"lblNDFilter", "ComboNDFilter", &InterlockOffsetCtl::lblNDFilter,
         &InterlockOffsetCtl::ComboNDFilter},
        {"lblFieldStop", "ComboFieldStop", &InterlockOffsetCtl::lblFieldStop,
         &InterlockOffsetCtl::ComboFieldStop},
        {"lblApertureStop", "ComboApertureStop", &InterlockOffsetCtl::lblApertureStop,
         &InterlockOffsetCtl::ComboApertureStop},
        {"lblEpiFieldStop", "ComboEpiFieldStop", &InterlockOffsetCtl::lblEpiFieldStop,
         &InterlockOffsetCtl::ComboEpiFieldStop},
    }};

InterlockOffsetCtl::InterlockOffsetCtl(clsInterLockOffset& offsets, QWidget* parent)
    : CardPage(u"Compensation"_s, parent), offsets_(offsets) {
  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(grid::kBetweenColumns);
  rows->setVerticalSpacing(grid::kBetweenControls);
  for (const OffsetAccessory* row : InPageOrder(kOffsetAccessories, &OffsetAccessory::pageRow)) {
    BuildRow(*row, *rows);
  }
  rows->setColumnStretch(rows->columnCount(), 1);
  FrameBase->body()->addLayout(rows);
  Label2 = Named(CaptionLabel(u"The compensation setting puts the compensation on "
                              u"the proper value. "_s,
                              FrameBase),
                 "Label2");
  FrameBase->body()->addWidget(Label2);
  FrameBase->body()->addStretch();
}

void InterlockOffsetCtl::BuildRow(const OffsetAccessory& row, QGridLayout& rows) {
  const auto i = static_cast<std::size_t>(row.pageRow);
  const Controls& names = kControls[i];
  const QString caption = ToQString(row.caption);
  QLabel* label = this->*names.label = Named(new QLabel(caption, FrameBase), names.labelName);
  Label1[i] = Named(new QLabel(u"Proper value    X"_s, FrameBase), "Label1", row.pageRow);
  Label1[i]->setToolTip(
      u"The proper value is calculated using information such as "
      u"objective N.A and condenser focal length."_s);
  ComboBox* list = this->*names.list = Named(new ComboBox(FrameBase), names.listName);
  for (const std::string_view factor : kFactors) list->addRow(ToQString(factor));
  list->setFont(FixedFont());
  list->setFixedWidth(kComboWidth);
  list->setAccessibleName(caption);
  label->setBuddy(list);
  rows.addWidget(label, row.pageRow, 0);
  rows.addWidget(Label1[i], row.pageRow, 1);
  rows.addWidget(list, row.pageRow, 2);
  connect(list, &ComboBox::chosen, this,
          [this, value = row.value](int factor) { offsets_.*value = factor; });
}

void InterlockOffsetCtl::LoadData() {
  for (const OffsetAccessory& row : kOffsetAccessories) LoadRow(row);
}

void InterlockOffsetCtl::LoadRow(const OffsetAccessory& row) {
  const Controls& controls = kControls[static_cast<std::size_t>(row.pageRow)];
  const std::int32_t code = offsets_.*row.value;
  const bool compensated = offsets_.parent.IsControllable(row.number) && code != kUnknown;
  (this->*controls.label)->setEnabled(compensated);
  (this->*controls.list)->setEnabled(compensated);
  if (compensated) (this->*controls.list)->setIndex(code);
}

}  // namespace mortane
