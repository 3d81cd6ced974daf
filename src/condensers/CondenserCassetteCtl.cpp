#include "condensers/CondenserCassetteCtl.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <vector>

#include "common/Text.h"
#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "model/OptionCodes.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/Named.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kComboWidth = 280;
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
    : CardPage(QStringLiteral("Set Condenser Data to Each Address"), parent),
      Label1{},
      Combo1{},
      cassette_(cassette),
      condensers_(condensers) {
  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(grid::kBetweenGroups);
  rows->setVerticalSpacing(grid::kBetweenControls);
  rows->setColumnStretch(2, 1);
  FrameBase->body()->addLayout(rows);
  FrameBase->body()->addStretch();
  for (int row = 0; row < kRowCount; ++row) {
    BuildRow(row);
    const auto i = static_cast<std::size_t>(row);
    rows->addWidget(Label1[i], row, 0);
    rows->addWidget(Combo1[i], row, 1);
  }
}

void CondenserCassetteCtl::BuildRow(int row) {
  const auto i = static_cast<std::size_t>(row);
  const QString number = QString::number(row + 1);
  Label1[i] = Named(new QLabel(number, FrameBase), "Label1", row);
  Label1[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  ComboBox* combo = Combo1[i] = Named(new ComboBox(FrameBase), "Combo1", row);
  combo->setAccessibleName(QStringLiteral("Address ") + number);
  combo->setFixedWidth(kComboWidth);
  Label1[i]->setBuddy(combo);
  connect(combo, &ComboBox::chosen, this,
          [this, combo, row](int index) { cassette_.code(row + 1, combo->data(index).toInt()); });
}

void CondenserCassetteCtl::LoadData() {
  for (int row = 0; row < kRowCount; ++row) LoadRow(row);
}

void CondenserCassetteCtl::LoadRow(int row) {
  const std::int32_t mounted = cassette_.code(row + 1);
  const auto i = static_cast<std::size_t>(row);
  Label1[i]->setVisible(mounted >= 0);
  ComboBox* combo = Combo1[i];
  combo->setVisible(mounted >= 0);
  combo->clearRows();
  const auto add = [&](std::int32_t code) {
    return combo->addRow(QString::fromStdString(condensers_.Name(code)), code);
  };
  // An empty address selects nothing, although its code has an entry.
  add(kNoCondenser);
  for (const auto& codes : {condensers_.FixedCodesFor(row + 1), NamedOptions(condensers_)}) {
    for (const std::int32_t code : codes) {
      const int entry = add(code);
      if (code == mounted) combo->setIndex(entry);
    }
  }
}

}  // namespace mortane
