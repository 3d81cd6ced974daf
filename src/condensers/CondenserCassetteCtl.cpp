#include "condensers/CondenserCassetteCtl.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "common/Text.h"
#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "drawings/TurretDrawing.h"
#include "model/OptionCodes.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/PairPanel.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kComboWidth = 280;
constexpr int kBesideTurret = 32;
constexpr std::int32_t kNoCondenser = 0;

// The user's condensers fit every address; only the named ones can be told apart.
std::vector<std::int32_t> NamedOptions(const clsDbCondenser& condensers) {
  std::vector<std::int32_t> codes;
  for (std::int32_t position = 1; position <= kOptionPositions; ++position) {
    const std::int32_t code = kCondenserOptionBase + position;
    const std::string name = condensers.Name(code);
    if (name != kUnnamedMark && !Trim(name).empty()) codes.push_back(code);
  }
  return codes;
}

}  // namespace

CondenserCassetteCtl::CondenserCassetteCtl(clsCondenser& cassette, const clsDbCondenser& condensers,
                                           QWidget* parent)
    : CardPage(u"Set Condenser Data to Each Address"_s, parent),
      cassette_(cassette),
      condensers_(condensers) {
  auto* columns = new PairPanel(FrameBase);
  turret_ = new TurretDrawing(PlaceKind::Condensers, columns);
  auto* lists = new QWidget(columns);
  auto* rows = new QGridLayout(lists);
  rows->setContentsMargins(kBesideTurret - grid::kBetweenColumns, 0, 0, 0);
  rows->setHorizontalSpacing(grid::kBetweenGroups);
  rows->setVerticalSpacing(grid::kBetweenControls);
  rows->setRowStretch(kRowCount, 1);
  rows->setColumnStretch(2, 1);
  for (int row = 0; row < kRowCount; ++row) {
    BuildRow(row, lists);
    const auto i = static_cast<std::size_t>(row);
    rows->addWidget(Label1[i], row, 0);
    rows->addWidget(Combo1[i], row, 1);
  }
  columns->SetParts(turret_, 0, lists, 1);
  columns->KeepShapeOfLeft();
  FrameBase->body()->addWidget(columns, 1);

  turret_->setAccessibleName(u"Condenser Turret"_s);
  const auto rowAt = [this](int place) { return ShownRows()[static_cast<std::size_t>(place)]; };
  connect(turret_, &TurretDrawing::chosen, this, [=, this](int place) { ChooseRow(rowAt(place)); });
  // Arrows go on along the turret; in the list they would put another condenser there.
  connect(turret_, &TurretDrawing::activated, this, [=, this](int place) {
    Combo1[static_cast<std::size_t>(rowAt(place))]->setFocus(Qt::OtherFocusReason);
  });
}

void CondenserCassetteCtl::BuildRow(int row, QWidget* parent) {
  const auto i = static_cast<std::size_t>(row);
  const QString number = QString::number(row + 1);
  Label1.Set(i, new QLabel(number, parent));
  Label1[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Label1[i]->setMinimumWidth(QFontMetrics(BoldFont()).horizontalAdvance(number));
  auto* combo = new ComboBox(parent);
  Combo1.Set(i, combo);
  combo->setAccessibleName(u"Address "_s + number);
  combo->setFixedWidth(kComboWidth);
  Label1[i]->setBuddy(combo);
  combo->installEventFilter(this);
  connect(combo, &ComboBox::chosen, this, [this, combo, row](int index) {
    cassette_.code(row + 1, combo->data(index).toInt());
    UpdateTurret();
  });
}

bool CondenserCassetteCtl::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const auto* combo = std::find(Combo1.begin(), Combo1.end(), watched);
    if (combo != Combo1.end()) ChooseRow(static_cast<int>(combo - Combo1.begin()));
  }
  return CardPage::eventFilter(watched, event);
}

LatePlan CondenserCassetteCtl::Plan(clsCondenser& cassette, const clsDbCondenser& condensers) {
  const auto fixed = std::make_shared<FixedCodes>();
  return {
      .make = [&cassette, &condensers] { return new CondenserCassetteCtl(cassette, condensers); },
      .load =
          [&condensers, fixed] {
            *fixed = ReadFixedCodes(condensers);
            return true;
          },
      .fill = [fixed](Page& page) { static_cast<CondenserCassetteCtl&>(page).Fill(*fixed); }};
}

CondenserCassetteCtl::FixedCodes CondenserCassetteCtl::ReadFixedCodes(
    const clsDbCondenser& condensers) {
  FixedCodes fixed;
  for (int row = 0; row < kRowCount; ++row) {
    fixed[static_cast<std::size_t>(row)] = condensers.FixedCodesFor(row + 1);
  }
  return fixed;
}

void CondenserCassetteCtl::LoadData() {
  Fill(ReadFixedCodes(condensers_));
}

void CondenserCassetteCtl::Fill(const FixedCodes& fixed) {
  for (int row = 0; row < kRowCount; ++row) LoadRow(row, fixed[static_cast<std::size_t>(row)]);
  UpdateTurret();
}

std::vector<int> CondenserCassetteCtl::ShownRows() const {
  std::vector<int> rows;
  for (int row = 0; row < kRowCount; ++row) {
    if (!Combo1[static_cast<std::size_t>(row)]->isHidden()) rows.push_back(row);
  }
  return rows;
}

void CondenserCassetteCtl::ChooseRow(int row) {
  chosenRow_ = row;
  const std::vector<int> shown = ShownRows();
  const auto place = std::find(shown.begin(), shown.end(), row);
  turret_->setIndex(place == shown.end() ? -1 : static_cast<int>(place - shown.begin()));
  for (int i = 0; i < kRowCount; ++i) {
    Label1[static_cast<std::size_t>(i)]->setFont(i == row ? BoldFont() : font());
  }
}

// A place without a name to show is a free one, whatever code it holds.
void CondenserCassetteCtl::UpdateTurret() {
  QVector<TurretItem> items;
  for (const int row : ShownRows()) {
    const QString name = Combo1[static_cast<std::size_t>(row)]->currentText();
    const std::string text = name.toStdString();
    const bool free = Trim(text).empty() || IsVacant(text);
    items.append({free ? QString() : name, name, std::nullopt, row + 1});
  }
  turret_->SetItems(items);
  ChooseRow(chosenRow_);
}

void CondenserCassetteCtl::LoadRow(int row, const std::vector<std::int32_t>& fixed) {
  const std::int32_t mounted = cassette_.code(row + 1);
  const auto i = static_cast<std::size_t>(row);
  Label1[i]->setVisible(mounted >= 0);
  ComboBox* combo = Combo1[i];
  combo->setVisible(mounted >= 0);
  combo->clearRows();
  const auto add = [&](std::int32_t code) {
    return combo->addRow(QString::fromStdString(condensers_.Name(code)), code);
  };
  // Kept: an empty address selects nothing, although its code has an entry.
  add(kNoCondenser);
  for (const auto& codes : {fixed, NamedOptions(condensers_)}) {
    for (const std::int32_t code : codes) {
      const int entry = add(code);
      if (code == mounted) combo->setIndex(entry);
    }
  }
}

}  // namespace mortane
