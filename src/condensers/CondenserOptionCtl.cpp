#include "condensers/CondenserOptionCtl.h"

#include <QHBoxLayout>
#include <QLabel>

#include "common/Text.h"
#include "hub/clsK70.h"
#include "widgets/Card.h"
#include "widgets/FoldingLayout.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kNameLength = 10;
constexpr int kColumnGap = 48;

}  // namespace

CondenserOptionCtl::CondenserOptionCtl(QWidget* parent)
    : Page(parent),
      FrameBase(new Card(QStringLiteral("Add Optional Condenser Data to the List"), this)),
      Label11{},
      TextName{} {
  FrameBase->setObjectName("FrameBase");
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins({});
  page->addWidget(FrameBase);
  auto* rows = new FoldingLayout(kColumnGap);
  FrameBase->body()->addLayout(rows, 1);
  for (int row = 0; row < kRowCount; ++row) rows->addWidget(BuildRow(row));
}

QWidget* CondenserOptionCtl::BuildRow(int row) {
  const auto i = static_cast<std::size_t>(row);
  const QString number = QString::number(row + 1);
  auto* line = new QWidget(FrameBase);
  Label11[i] = new QLabel(number, line);
  Label11[i]->setObjectName(QStringLiteral("Label11_%1").arg(row));
  TextField* field = TextName[i] = new TextField(line);
  field->setObjectName(QStringLiteral("TextName_%1").arg(row));
  field->setAccessibleName(QStringLiteral("Optional Condenser ") + number);
  field->setFont(FixedFont());
  field->SetLimit(kNameLength);
  field->SetWidthFor(kNameLength);
  field->SetMark(QLatin1String(kUnnamed));
  Label11[i]->setBuddy(field);

  auto* cells = new QHBoxLayout(line);
  cells->setContentsMargins({});
  cells->setSpacing(grid::kBetweenGroups);
  cells->addWidget(Label11[i]);
  cells->addWidget(field);
  field->setValidation([this, row] {
    Store(row);
    return true;
  });
  connect(field, &TextField::entered, field, [field] { field->validate(); });
  return line;
}

void CondenserOptionCtl::LoadData() {
  for (int row = 0; row < kRowCount; ++row) {
    const std::string name = GetK70().dbcon.Name(CodeOf(row));
    TextName[static_cast<std::size_t>(row)]->setText(
        Trim(name).empty() ? QLatin1String(kUnnamed) : QString::fromStdString(name));
  }
}

void CondenserOptionCtl::SaveData() {
  for (int row = 0; row < kRowCount; ++row) Store(row);
}

void CondenserOptionCtl::Store(int row) {
  const QString text = TextName[static_cast<std::size_t>(row)]->text();
  GetK70().dbcon.Name(CodeOf(row), text.toStdString());
}

}  // namespace mortane
