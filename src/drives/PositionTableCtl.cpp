#include "drives/PositionTableCtl.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QRadioButton>
#include <utility>

#include "common/Prompts.h"
#include "drives/DrivePosition.h"
#include "widgets/OptionGroup.h"
#include "widgets/QtText.h"
#include "widgets/TextField.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kFieldCharacters = 11;  // "No Setting" and some room
constexpr int kHeaderIndent = 10;     // as the numbers in the fields
constexpr std::string_view kNoSetting = "No Setting";

// Drops the input that came while its choice was carried out.
class AddressOption : public QRadioButton {
 public:
  AddressOption(const QString& text, Prompts& prompts, QWidget* parent)
      : QRadioButton(text, parent), prompts_(prompts) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool over = rect().contains(event->position().toPoint());
    Prompts& prompts = prompts_;  // the box of a selected row may see the end of the option
    QRadioButton::mouseReleaseEvent(event);
    if (over) prompts.FlushInput();
  }

 private:
  Prompts& prompts_;
};

std::int32_t AddressOf(int row) {
  return row + 1;
}

}  // namespace

PositionTableCtl::PositionTableCtl(Prompts& prompts, std::vector<PositionColumn> columns,
                                   OptionGroup& options, QWidget* parent)
    : InnerFrame(u"Nosepiece"_s, parent),
      prompts_(prompts),
      columns_(std::move(columns)),
      fields_(columns_.size()),
      options_(options) {
  auto* cells = new QGridLayout;
  cells->setHorizontalSpacing(grid::kBetweenGroups);
  cells->setVerticalSpacing(grid::kUnit);
  AddHeaders(*cells);
  for (int row = 0; row < kRows; ++row) AddRow(*cells, row);
  cells->setColumnStretch(static_cast<int>(columns_.size()) + 1, 1);
  body()->addLayout(cells);
  body()->addStretch();
}

void PositionTableCtl::AddHeaders(QGridLayout& cells) {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (columns_[i].header == nullptr) continue;
    QLabel* header = CaptionLabel(QLatin1String(columns_[i].header), this);
    header->setContentsMargins(0, 0, kHeaderIndent, 0);
    cells.addWidget(header, 0, static_cast<int>(i) + 1, Qt::AlignRight);
  }
}

void PositionTableCtl::AddRow(QGridLayout& cells, int row) {
  const QString number = QString::number(AddressOf(row));
  auto* option = new AddressOption(number, prompts_, this);
  option->setAccessibleName(u"Address "_s + number);
  option->hide();
  options_.add(option, row);
  cells.addWidget(option, row + 1, 0);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    TextField* field = fields_[i][static_cast<std::size_t>(row)] = MakeField(row, i);
    cells.addWidget(field, row + 1, static_cast<int>(i) + 1);
  }
}

TextField* PositionTableCtl::MakeField(int row, std::size_t column) {
  const PositionColumn& axis = columns_[column];
  auto* field = new TextField(this);
  QString name = u"Address %1"_s.arg(AddressOf(row));
  if (axis.header != nullptr) name += u' ' + QLatin1String(axis.header);
  field->setAccessibleName(name);
  field->setFont(FixedFont());
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->SetWidthFor(kFieldCharacters);
  field->hide();
  field->SetCheck(
      [lowest = axis.lowest, highest = axis.highest](const QString& text) {
        return text.isEmpty() || IsMicrometres(text.toStdString(), lowest, highest);
      },
      [this] { prompts_.MsgBox("Please Input right value.", box::kOk); });
  connect(field, &TextField::committed, this, [this, row, column] { Store(row, column); });
  return field;
}

void PositionTableCtl::Load(std::int32_t addresses, std::optional<std::int32_t> noSetting) {
  for (int row = 0; row < kRows; ++row) {
    const bool used = row < addresses;
    options_.button(row)->setVisible(used);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      TextField* field = fields_[i][static_cast<std::size_t>(row)];
      field->setVisible(used);
      if (!used) {
        field->setText({});
        continue;
      }
      const std::int32_t steps = columns_[i].read(AddressOf(row));
      if (noSetting == steps) {
        field->setText(ToQString(kNoSetting));
      } else {
        Show(row, steps, i);
      }
    }
  }
}

// The text of an address beyond those that are stored is dropped by the unit.
void PositionTableCtl::Save() {
  for (int row = 0; row < kRows; ++row) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const PositionColumn& axis = columns_[i];
      const std::int32_t steps = Steps(row, i).value_or(0);
      const bool within =
          steps >= axis.lowest * kStepsPerMicrometre && steps <= axis.highest * kStepsPerMicrometre;
      axis.store(AddressOf(row), within ? steps : 0);
    }
  }
}

std::optional<std::int32_t> PositionTableCtl::Steps(int row, std::size_t column) const {
  return StepsOfText(fields_[column][static_cast<std::size_t>(row)]->text().toStdString());
}

void PositionTableCtl::Show(int row, std::int32_t steps, std::size_t column) {
  fields_[column][static_cast<std::size_t>(row)]->setText(ToQString(TextOfSteps(steps)));
}

void PositionTableCtl::Store(int row, std::size_t column) {
  columns_[column].store(AddressOf(row), Steps(row, column).value_or(0));
}

}  // namespace mortane
