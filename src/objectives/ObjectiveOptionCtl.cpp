#include "objectives/ObjectiveOptionCtl.h"

#include <QLabel>
#include <algorithm>
#include <memory>

#include "common/Numbers.h"
#include "common/Text.h"
#include "objectives/FillNames.h"
#include "objectives/clsDbNosepiece.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/QtText.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::string_view kZero = "0";
constexpr std::string_view kNoCondenser = "None";

constexpr std::int32_t kFirstOption = 1;

// The texts that the fields get for the user's first objective.
struct Shown {
  std::string name;
  std::array<std::string, 3> numbers;
};

Shown ShownOf(const clsDbNosepiece& objectives) {
  Shown shown;
  std::int32_t series = 0;
  std::int32_t type = 0;
  std::int32_t condenser = 0;
  auto& [magnification, workingDistance, numericalAperture] = shown.numbers;
  objectives.Get_DbNosepieceOption(kFirstOption, shown.name, series, type, magnification,
                                   workingDistance, numericalAperture, condenser);
  return shown;
}

// Whether a field surely shows the text as it is: other characters may be replaced.
bool IsPlain(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

bool IsNumberWithin(std::string_view text, double highest) {
  const std::optional<double> value = ParseNumber(text);
  return value && *value >= 0 && *value <= highest;
}

}  // namespace

const std::array<ObjectiveOptionCtl::Number, 3> ObjectiveOptionCtl::kNumbers{{
    {"Mag.", kHighestMagnification, true, false, &ObjectiveOptionCtl::Label4,
     &ObjectiveOptionCtl::TextMag},
    {"W.D.", kHighestDistance, false, true, &ObjectiveOptionCtl::Label5,
     &ObjectiveOptionCtl::TextWD},
    {"N.A.", kHighestAperture, false, true, &ObjectiveOptionCtl::Label6,
     &ObjectiveOptionCtl::TextNA},
}};

ObjectiveOptionCtl::ObjectiveOptionCtl(clsDbNosepiece& objectives, QWidget* parent)
    : CardPage(u"Add Optional Objective Data to the List"_s, parent), objectives_(objectives) {
  Build();
  Connect();
}

void ObjectiveOptionCtl::Connect() {
  connect(TabStrip1, &TabStrip::chosen, this, [this] {
    ShowObjective();
    ShowCondensers(objectives_.HasCondenser());
  });
  connect(ListSeries, &ListBox::selectionChanged, this, [this](int row) {
    LabelSeries->setText(ListSeries->text(row));
    series_ = row;
    Store();
  });
  connect(ListType, &ListBox::selectionChanged, this, [this](int row) {
    LabelType->setText(ListType->text(row));
    type_ = row;
    Store();
  });
  connect(ListMag, &ListBox::selectionChanged, this, [this](int row) {
    QString text = ListMag->text(row);
    if (text.endsWith(u'x')) text.chop(1);
    TextMag->setText(text);
    Store();
  });
  connect(ComboCondenser, &ComboBox::selectionChanged, this, [this](int row) {
    condenser_ = ComboCondenser->data(row).toInt();
    Store();
  });
  TextName->SetPlaceholder(ToQString(kUnnamedObjective));
  connect(TextName, &TextField::committed, this, &ObjectiveOptionCtl::Store);
  for (const Number& number : kNumbers) ConnectNumber(number);
}

void ObjectiveOptionCtl::ConnectNumber(const Number& number) {
  TextField* field = this->*number.field;
  field->SetCheck(
      [&number](const QString& text) { return IsGood(number, text); },
      [this] { objectives_.parent.prompts().MsgBox("Please Input right value.", box::kOk); });
  connect(field, &TextField::committed, this, &ObjectiveOptionCtl::Store);
  if (!number.zeroForBlank) return;
  connect(field, &TextField::textChanged, field, [field](const QString& text) {
    if (Trim(text.toStdString()).empty()) field->setText(ToQString(kZero));
  });
}

bool ObjectiveOptionCtl::IsGood(const Number& number, const QString& text) {
  if (text.isEmpty() || (number.mayBeDashes && text == ToQString(kNoMagnification))) return true;
  return IsNumberWithin(text.toStdString(), number.highest);
}

LatePlan ObjectiveOptionCtl::Plan(clsDbNosepiece& objectives) {
  const auto condensers = std::make_shared<CondenserChoice>();
  return {.make = [&objectives] { return new ObjectiveOptionCtl(objectives); },
          .load =
              [&objectives, condensers] {
                *condensers = ReadCondensers(objectives);
                return StaysAsShown(objectives);
              },
          .fill = [condensers](
                      Page& page) { static_cast<ObjectiveOptionCtl&>(page).Fill(*condensers); },
          .save = [&objectives] { return StaysAsSaved(objectives); }};
}

bool ObjectiveOptionCtl::StaysAsShown(const clsDbNosepiece& objectives) {
  const Shown shown = ShownOf(objectives);
  const bool fits =
      std::all_of(shown.numbers.begin(), shown.numbers.end(), [](const std::string& text) {
        return text.size() <= static_cast<std::size_t>(kNumberLength);
      });
  return fits && IsPlain(shown.name) && objectives.StaysWhenStored(kFirstOption);
}

bool ObjectiveOptionCtl::StaysAsSaved(const clsDbNosepiece& objectives) {
  if (!StaysAsShown(objectives)) return false;
  const Shown shown = ShownOf(objectives);
  for (std::size_t i = 0; i < kNumbers.size(); ++i) {
    const std::string& text = shown.numbers[i];
    const bool zero = kNumbers[i].mayBeDashes && text == kNoMagnification;
    if (!zero && !IsNumberWithin(text, kNumbers[i].highest)) return false;
  }
  return true;
}

ObjectiveOptionCtl::CondenserChoice ObjectiveOptionCtl::ReadCondensers(
    const clsDbNosepiece& objectives) {
  if (!objectives.HasCondenser()) return {};
  return objectives.ListCondensers();
}

void ObjectiveOptionCtl::LoadData() {
  Fill(ReadCondensers(objectives_));
}

void ObjectiveOptionCtl::Fill(const CondenserChoice& condensers) {
  FillLists();
  ShowObjective();
  if (condensers) RebuildCondensers(*condensers);
  ShowCondensers(condensers.has_value());
}

void ObjectiveOptionCtl::FillLists() {
  FillNames(*ListSeries, objectives_.SeriesCount(),
            [this](std::int32_t index) { return objectives_.Series(index); });
  FillNames(*ListType, objectives_.TypesCount(),
            [this](std::int32_t index) { return objectives_.Types(index); });
  FillNames(*ListMag, objectives_.MagCount(),
            [this](std::int32_t index) { return objectives_.Mag(index); });
}

void ObjectiveOptionCtl::ReadObjective() {
  std::string name;
  std::string magnification;
  std::string workingDistance;
  std::string numericalAperture;
  objectives_.Get_DbNosepieceOption(TabStrip1->caption().toInt(), name, series_, type_,
                                    magnification, workingDistance, numericalAperture, condenser_);
  TextName->setText(QString::fromStdString(name));
  TextMag->setText(QString::fromStdString(magnification));
  TextWD->setText(QString::fromStdString(workingDistance));
  TextNA->setText(QString::fromStdString(numericalAperture));
}

// All values are taken over before a row is selected, since a new row stores what is shown.
void ObjectiveOptionCtl::ShowObjective() {
  ReadObjective();
  ListSeries->setIndex(series_);
  ListType->setIndex(type_);
  LabelSeries->setText(ListSeries->text(ListSeries->index()));
  LabelType->setText(ListType->text(ListType->index()));
  ListMag->setIndex(-1);  // a choice made for another objective
}

void ObjectiveOptionCtl::ShowCondensers(bool mounted) {
  FrmCondenser->setEnabled(mounted);
  SelectCondenser();
}

void ObjectiveOptionCtl::RebuildCondensers(const AdoptiveCondensers& condensers) {
  ComboCondenser->clearRows();
  ComboCondenser->addRow(ToQString(kNoCondenser), 0);
  condenserCount_ = condensers.recordCount;
  for (const auto& [code, name] : condensers.choices) {
    ComboCondenser->addRow(QString::fromStdString(name), code);
  }
}

// Kept: a stored code without a row selects nothing and stays stored.
void ObjectiveOptionCtl::SelectCondenser() {
  const bool listed = condenser_ >= 0 && condenser_ <= condenserCount_;
  ComboCondenser->setIndex(listed ? ComboCondenser->rowOf(condenser_) : -1);
}

void ObjectiveOptionCtl::Store() {
  StoreNumbers(
      {TextMag->text().toStdString(), TextWD->text().toStdString(), TextNA->text().toStdString()});
}

void ObjectiveOptionCtl::StoreNumbers(const std::array<std::string, 3>& numbers) {
  objectives_.Set_DbNosepiece(TabStrip1->caption().toInt(), TextName->text().toStdString(), series_,
                              type_, numbers[0], numbers[1], numbers[2], condenser_);
}

void ObjectiveOptionCtl::ShowStored() {
  ReadObjective();
}

void ObjectiveOptionCtl::SaveData() {
  std::array<std::string, 3> numbers;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    numbers[i] = (this->*kNumbers[i].field)->text().toStdString();
    if (!IsNumberWithin(numbers[i], kNumbers[i].highest)) numbers[i] = kZero;
  }
  StoreNumbers(numbers);
}

}  // namespace mortane
