#include "condensers/CondenserOptionCtl.h"

#include <QHBoxLayout>
#include <QLabel>

#include "condensers/clsDbCondenser.h"
#include "widgets/Card.h"
#include "widgets/QtText.h"
#include "widgets/ReflowGrid.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kNameLength = static_cast<int>(kOptionNameLength);
constexpr int kMostColumns = 2;
constexpr int kColumnGap = 24;

std::int32_t CodeOf(int row) {
  return kCondenserOptionBase + row + 1;
}

}  // namespace

CondenserOptionCtl::CondenserOptionCtl(clsDbCondenser& condensers, QWidget* parent)
    : CardPage(u"Add Optional Condenser Data to the List"_s, parent), condensers_(condensers) {
  auto* rows = new ReflowGrid(ReflowGrid::Order::ColumnByColumn, kMostColumns, kColumnGap,
                              grid::kBetweenControls);
  FrameBase->body()->addLayout(rows, 1);
  for (int row = 0; row < kOptionPositions; ++row) rows->addWidget(BuildRow(row));
  layout()->setAlignment(FrameBase, Qt::AlignTop);  // as tall as what it holds
}

QWidget* CondenserOptionCtl::BuildRow(int row) {
  const auto i = static_cast<std::size_t>(row);
  const QString number = QString::number(row + 1);
  auto* line = new QWidget(FrameBase);
  Label11.Set(i, new QLabel(number, line));
  auto* field = new TextField(line);
  TextName.Set(i, field);
  field->setAccessibleName(u"Optional Condenser "_s + number);
  field->setFont(FixedFont());
  field->SetLimit(kNameLength);
  field->SetWidthFor(kNameLength);
  field->SetPlaceholder(ToQString(kUnnamedMark));
  Label11[i]->setBuddy(field);

  auto* cells = new QHBoxLayout(line);
  cells->setContentsMargins({});
  cells->setSpacing(grid::kBetweenGroups);
  cells->addWidget(Label11[i]);
  cells->addWidget(field);
  connect(field, &TextField::committed, this, [this, row] { Store(row); });
  return line;
}

void CondenserOptionCtl::LoadData() {
  for (int row = 0; row < kOptionPositions; ++row) {
    TextName[static_cast<std::size_t>(row)]->setText(
        NameOrPlaceholder(condensers_.Name(CodeOf(row)), kUnnamedMark));
  }
}

void CondenserOptionCtl::SaveData() {
  for (int row = 0; row < kOptionPositions; ++row) Store(row);
}

void CondenserOptionCtl::Store(int row) {
  const QString text = TextName[static_cast<std::size_t>(row)]->text();
  condensers_.Name(CodeOf(row), text.toStdString());
}

}  // namespace mortane
