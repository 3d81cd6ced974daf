// Where the controls of the optional objective page stand.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "model/OptionCodes.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "objectives/clsDbNosepiece.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/Named.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

// Wide letters are half as wide again as figures.
constexpr int kNameWidthCharacters = 24;
constexpr int kNumberLength = 5;
constexpr int kNumberWidthCharacters = 7;

}  // namespace

void ObjectiveOptionCtl::Build() {
  TabStrip1 = Named(new TabStrip(FrameBase), "TabStrip1");
  TabStrip1->setAccessibleName(QStringLiteral("Position"));
  TabStrip1->SetNumberedTabs(kOptionPositions);
  NosepieceOptionItemFrm = Named(new QFrame(FrameBase), "NosepieceOptionItemFrm");
  auto* rows = new QVBoxLayout(NosepieceOptionItemFrm);
  rows->setContentsMargins({});
  rows->setSpacing(grid::kBetweenGroups);
  rows->addWidget(BuildName(NosepieceOptionItemFrm));
  rows->addWidget(BuildLists(NosepieceOptionItemFrm), 1);
  FrameBase->body()->addWidget(TabStrip1);
  FrameBase->body()->addWidget(NosepieceOptionItemFrm, 1);
}

QWidget* ObjectiveOptionCtl::BuildName(QWidget* parent) {
  auto* panel = new QWidget(parent);
  Label1 = Named(new QLabel(QStringLiteral("Name"), panel), "Label1");
  TextName = Named(new TextField(panel), "TextName");
  TextName->SetLimit(static_cast<int>(kShownObjectiveNameLength));
  TextName->SetWidthFor(kNameWidthCharacters);
  Label1->setBuddy(TextName);
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins({});
  row->setSpacing(grid::kBetweenGroups);
  row->addWidget(Label1);
  row->addWidget(TextName);
  row->addStretch();
  return panel;
}

QWidget* ObjectiveOptionCtl::BuildLists(QWidget* parent) {
  auto* panel = new QWidget(parent);
  auto* cells = new QGridLayout(panel);
  cells->setContentsMargins({});
  cells->setHorizontalSpacing(grid::kBetweenColumns);
  cells->setVerticalSpacing(grid::kUnit);
  const auto list = [&](const char* name, int column, int stretch) {
    auto* made = Named(new ListBox(panel), name);
    cells->addWidget(made, 2, column);
    cells->setColumnStretch(column, stretch);
    return made;
  };
  const auto header = [&](const char* name, const char* caption, QWidget* buddy, int column) {
    QLabel* label = Named(CaptionLabel(QLatin1String(caption), panel), name);
    label->setBuddy(buddy);
    buddy->setAccessibleName(label->text());
    cells->addWidget(label, 0, column);
    return label;
  };
  const auto value = [&](const char* name, int column) {
    auto* shown = Named(new ValueLabel(panel), name);
    cells->addWidget(shown, 1, column);
    return shown;
  };
  LabelSeries = value("LabelSeries", 0);
  ListSeries = list("ListSeries", 0, 3);
  Label2 = header("Label2", "Series", ListSeries, 0);
  LabelType = value("LabelType", 1);
  ListType = list("ListType", 1, 2);
  Label3 = header("Label3", "Type", ListType, 1);
  MakeNumber(kNumbers[0], panel);
  Label7 = Named(new QLabel(QStringLiteral("x"), panel), "Label7");
  auto* magnification = new QHBoxLayout;
  magnification->setSpacing(grid::kBetweenControls);
  magnification->addWidget(TextMag);
  magnification->addWidget(Label7);
  magnification->addStretch();
  Label4->setFont(CaptionFont());
  Label4->setForegroundRole(QPalette::PlaceholderText);
  cells->addWidget(Label4, 0, 2);
  cells->addLayout(magnification, 1, 2);
  ListMag = list("ListMag", 2, 2);
  ListMag->setAccessibleName(Label4->text());
  cells->addWidget(BuildValues(panel), 1, 3, 2, 1);
  cells->setColumnStretch(3, 3);
  return panel;
}

void ObjectiveOptionCtl::MakeNumber(const Number& number, QWidget* parent) {
  auto* label = Named(new QLabel(QLatin1String(number.caption), parent), number.labelName);
  auto* field = Named(new TextField(parent), number.fieldName);
  field->SetLimit(kNumberLength);
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->SetWidthFor(kNumberWidthCharacters);
  label->setBuddy(field);
  this->*number.label = label;
  this->*number.field = field;
}

QFrame* ObjectiveOptionCtl::BuildValues(QWidget* parent) {
  auto* frame = new InnerFrame({}, parent);
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(grid::kBetweenControls);
  fields->setVerticalSpacing(grid::kBetweenControls);
  for (std::size_t i = 1; i < kNumbers.size(); ++i) {
    MakeNumber(kNumbers[i], frame);
    fields->addWidget(this->*kNumbers[i].label, static_cast<int>(i), 0);
    fields->addWidget(this->*kNumbers[i].field, static_cast<int>(i), 1);
  }
  fields->setColumnStretch(2, 1);
  frame->body()->addLayout(fields);
  auto* condenser = Named(new InnerFrame(QStringLiteral("Adoptive"), frame), "FrmCondenser");
  FrmCondenser = condenser;
  Label8 = Named(CaptionLabel(QStringLiteral("DIC / Ph Condenser"), condenser), "Label8");
  ComboCondenser = Named(new ComboBox(condenser), "ComboCondenser");
  ComboCondenser->setAccessibleName(Label8->text());
  Label8->setBuddy(ComboCondenser);
  condenser->body()->addWidget(Label8);
  condenser->body()->addWidget(ComboCondenser);
  frame->body()->addSpacing(grid::kBetweenControls);
  frame->body()->addWidget(condenser);
  frame->body()->addStretch();
  return frame;
}

}  // namespace mortane
