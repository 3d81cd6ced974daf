#include "objectives/ObjectiveOptionCtl.h"

#include <QLabel>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "hub/clsK70.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

const QLatin1String kUnnamed("---------------");
const QLatin1String kNoMagnification("----");
const QLatin1String kZero("0");
constexpr std::string_view kBlankRecord = "--";
constexpr std::string_view kNoCondenser = "None";

// Records that are never offered as the condenser of an objective.
bool IsNeverOffered(std::int32_t record) {
  return record == 1 || record == 4 || record == 8;
}

bool IsNumberWithin(std::string_view text, double highest) {
  const std::optional<double> value = ParseNumber(text);
  return value && *value >= 0 && *value <= highest;
}

// One that does not answer is not there.
bool IsCondenserMounted() {
  try {
    return GetK70().Mic.CondenserDevice().AccessoryState().State() == 1;
  } catch (const Failure&) {
    return false;
  }
}

}  // namespace

const std::array<ObjectiveOptionCtl::Number, 3> ObjectiveOptionCtl::kNumbers{{
    {"Label4", "Mag.", "TextMag", 200, true, false, &ObjectiveOptionCtl::Label4,
     &ObjectiveOptionCtl::TextMag},
    {"Label5", "W.D.", "TextWD", 40, false, true, &ObjectiveOptionCtl::Label5,
     &ObjectiveOptionCtl::TextWD},
    {"Label6", "N.A.", "TextNA", 2, false, true, &ObjectiveOptionCtl::Label6,
     &ObjectiveOptionCtl::TextNA},
}};

ObjectiveOptionCtl::ObjectiveOptionCtl(QWidget* parent) : Page(parent) {
  Build();
  Connect();
}

void ObjectiveOptionCtl::Connect() {
  connect(TabStrip1, &TabStrip::clicked, this, [this] { ShowObjective(Condensers::AsListed); });
  connect(ListSeries, &ListBox::clicked, this, [this](int row) {
    LabelSeries->setText(ListSeries->text(row));
    series_ = row;
    Store();
  });
  connect(ListType, &ListBox::clicked, this, [this](int row) {
    LabelType->setText(ListType->text(row));
    type_ = row;
    Store();
  });
  connect(ListMag, &ListBox::clicked, this, [this](int row) {
    QString text = ListMag->text(row);
    if (text.endsWith(u'x')) text.chop(1);
    TextMag->setText(text);
    Store();
  });
  connect(ComboCondenser, &ComboBox::clicked, this, [this](int row) {
    condenser_ = ComboCondenser->data(row).toInt();
    Store();
  });
  TextName->SetMark(kUnnamed);
  TextName->setValidation([this] {
    Store();
    return true;
  });
  connect(TextName, &TextField::entered, this, &ObjectiveOptionCtl::Store);
  for (const Number& number : kNumbers) ConnectNumber(number);
}

void ObjectiveOptionCtl::ConnectNumber(const Number& number) {
  TextField* field = this->*number.field;
  field->setValidation(
      [this, &number] {
        const bool good = IsGood(number);
        if (good) Store();
        return good;
      },
      [] { GetK70().prompts().MsgBox("Please Input right value.", box::kOk); });
  connect(field, &TextField::entered, field, &TextField::validate);
  if (!number.zeroForBlank) return;
  connect(field, &TextField::textChanged, field, [field](const QString& text) {
    if (Trim(text.toStdString()).empty()) field->setText(kZero);
  });
}

bool ObjectiveOptionCtl::IsGood(const Number& number) const {
  const QString text = (this->*number.field)->text();
  if (text.isEmpty() || (number.mayBeDashes && text == kNoMagnification)) return true;
  return IsNumberWithin(text.toStdString(), number.highest);
}

void ObjectiveOptionCtl::LoadData() {
  FillLists();
  ShowObjective(Condensers::Anew);
}

// The names of the first microscope stay, as those of the model do.
void ObjectiveOptionCtl::FillLists() {
  if (ListSeries->rowCount() > 0) return;
  const clsDbNosepiece& database = GetK70().DbNosepiece;
  for (std::int32_t i = 0; i <= database.SeriesCount(); ++i) {
    ListSeries->addRow(QString::fromStdString(database.Series(i)));
  }
  for (std::int32_t i = 0; i <= database.TypesCount(); ++i) {
    ListType->addRow(QString::fromStdString(database.Types(i)));
  }
  for (std::int32_t i = 0; i <= database.MagCount(); ++i) {
    ListMag->addRow(QString::fromStdString(database.Mag(i)));
  }
}

// All values are taken over before a row is selected, since a new row stores what is shown.
void ObjectiveOptionCtl::ShowObjective(Condensers condensers) {
  std::string name;
  std::string magnification;
  std::string workingDistance;
  std::string numericalAperture;
  GetK70().DbNosepiece.Get_DbNosepieceOption(TabStrip1->caption().toInt(), name, series_, type_,
                                             magnification, workingDistance, numericalAperture,
                                             condenser_);
  TextName->setText(QString::fromStdString(name));
  TextMag->setText(QString::fromStdString(magnification));
  TextWD->setText(QString::fromStdString(workingDistance));
  TextNA->setText(QString::fromStdString(numericalAperture));
  ListSeries->setIndex(series_);
  ListType->setIndex(type_);
  LabelSeries->setText(ListSeries->text(ListSeries->index()));
  LabelType->setText(ListType->text(ListType->index()));
  ListMag->setIndex(-1);  // a choice made for another objective

  const bool mounted = IsCondenserMounted();
  if (mounted && condensers == Condensers::Anew) RebuildCondensers();
  FrmCondenser->setEnabled(mounted);
  SelectCondenser();
}

// Only the fixed records before the first blank or optional one are offered.
void ObjectiveOptionCtl::RebuildCondensers() {
  ComboCondenser->clearRows();
  condenserCount_ = 0;
  ComboCondenser->addRow(QLatin1String(kNoCondenser.data()), 0);
  try {
    const auto records = GetK70().Mic.AccessoryDatabase().Condensers();
    condenserCount_ = records.Count();
    for (std::int32_t i = 1; i <= condenserCount_; ++i) {
      const controller::CondenserRecord record = records.Item(i);
      const std::string name = record.Name();
      if (name.starts_with(kBlankRecord) || record.IsOption()) return;
      if (!IsNeverOffered(i)) ComboCondenser->addRow(QString::fromStdString(name), i);
    }
  } catch (const Failure&) {
    // The records that did answer are offered.
  }
}

// A stored code without a row stays stored.
void ObjectiveOptionCtl::SelectCondenser() {
  const bool listed = condenser_ >= 0 && condenser_ <= condenserCount_;
  ComboCondenser->setIndex(listed ? ComboCondenser->rowOf(condenser_) : -1);
}

void ObjectiveOptionCtl::Store() {
  StoreNumbers(
      {TextMag->text().toStdString(), TextWD->text().toStdString(), TextNA->text().toStdString()});
}

void ObjectiveOptionCtl::StoreNumbers(const std::array<std::string, 3>& numbers) {
  GetK70().DbNosepiece.Set_DbNosepiece(TabStrip1->caption().toInt(), TextName->text().toStdString(),
                                       series_, type_, numbers[0], numbers[1], numbers[2],
                                       condenser_);
}

void ObjectiveOptionCtl::SaveData() {
  std::array<std::string, 3> numbers;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    numbers[i] = (this->*kNumbers[i].field)->text().toStdString();
    if (!IsNumberWithin(numbers[i], kNumbers[i].highest)) numbers[i] = kZero.data();
  }
  StoreNumbers(numbers);
}

}  // namespace mortane
