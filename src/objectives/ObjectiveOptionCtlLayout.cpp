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
#include "widgets/RecordForm.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

// Wide letters are half as wide again as figures.
constexpr int kNameWidthCharacters = 24;
// As wide as the longest names.
constexpr int kSeriesCharacters = 14;
constexpr int kTypeCharacters = 13;
constexpr int kMagnificationCharacters = 13;
constexpr int kNumberWidthCharacters = 7;

}  // namespace

void ObjectiveOptionCtl::Build() {
  RecordForm form(*FrameBase, kOptionPositions);
  TabStrip1 = form.tabs();
  NosepieceOptionItemFrm = form.frame();
  const RecordForm::Name name =
      form.AddName(static_cast<int>(kShownObjectiveNameLength), kNameWidthCharacters);
  Label1 = name.label;
  TextName = name.field;
  LabelSeries = new ValueLabel(NosepieceOptionItemFrm);
  const RecordForm::Column series = form.AddColumn("Series", LabelSeries, 3, kSeriesCharacters);
  Label2 = series.caption;
  ListSeries = series.list;
  LabelType = new ValueLabel(NosepieceOptionItemFrm);
  const RecordForm::Column type = form.AddColumn("Type", LabelType, 2, kTypeCharacters);
  Label3 = type.caption;
  ListType = type.list;
  BuildMagnification(form);
  form.AddPanel(BuildValues(NosepieceOptionItemFrm), 3);
}

void ObjectiveOptionCtl::BuildMagnification(RecordForm& form) {
  auto* value = new QWidget(NosepieceOptionItemFrm);
  TextMag = MakeField(kNumbers[0], value);
  Label7 = new QLabel(u"x"_s, value);
  auto* row = new QHBoxLayout(value);
  row->setContentsMargins({});
  row->setSpacing(grid::kBetweenControls);
  row->addWidget(TextMag);
  row->addWidget(Label7);
  row->addStretch();
  const RecordForm::Column magnification =
      form.AddColumn(kNumbers[0].caption, value, 2, kMagnificationCharacters);
  Label4 = magnification.caption;
  Label4->setBuddy(TextMag);
  ListMag = magnification.list;
}

TextField* ObjectiveOptionCtl::MakeField(const Number& number, QWidget* parent) {
  auto* field = new TextField(parent);
  field->setAccessibleName(QLatin1String(number.caption));
  field->SetLimit(kNumberLength);
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->SetWidthFor(kNumberWidthCharacters);
  return field;
}

QFrame* ObjectiveOptionCtl::BuildValues(QWidget* parent) {
  auto* frame = new InnerFrame({}, parent);
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(grid::kBetweenControls);
  fields->setVerticalSpacing(grid::kBetweenControls);
  for (std::size_t i = 1; i < kNumbers.size(); ++i) {
    const Number& number = kNumbers[i];
    auto* label = new QLabel(QLatin1String(number.caption), frame);
    TextField* field = MakeField(number, frame);
    label->setBuddy(field);
    this->*number.label = label;
    this->*number.field = field;
    fields->addWidget(label, static_cast<int>(i), 0);
    fields->addWidget(field, static_cast<int>(i), 1);
  }
  fields->setColumnStretch(2, 1);
  frame->body()->addLayout(fields);
  auto* condenser = new InnerFrame(u"Adoptive"_s, frame);
  FrmCondenser = condenser;
  Label8 = CaptionLabel(u"DIC / Ph Condenser"_s, condenser);
  ComboCondenser = new ComboBox(condenser);
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
