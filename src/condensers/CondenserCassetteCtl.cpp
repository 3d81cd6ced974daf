#include "condensers/CondenserCassetteCtl.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <vector>

#include "common/Failure.h"
#include "common/Text.h"
#include "condensers/CondenserOptionCtl.h"
#include "hub/clsK70.h"
#include "widgets/Card.h"
#include "widgets/ComboBox.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kComboWidth = 280;
constexpr std::int32_t kNoCondenser = 0;
constexpr std::int32_t kSuits = 1;

using Records = controller::RecordList<controller::CondenserRecord>;

bool Suits(const Records& records, std::int32_t code, std::int32_t address) {
  try {
    // A fixed record stands at the position of its code.
    return records.Item(code).SuitsAddress(address) == kSuits;
  } catch (const Failure&) {
    return false;
  }
}

// Which condensers fit an address is known to the controller alone. Where it gives no answer
// none is offered, and the page shows the rest.
std::vector<std::int32_t> FixedCodesFor(const clsK70& k70, std::int32_t address) {
  std::vector<std::int32_t> codes;
  try {
    const controller::AccessoryDatabase database = k70.Mic.AccessoryDatabase();
    const std::int32_t count = database.CondenserCount();
    const Records records = database.Condensers();
    for (std::int32_t code = 1; code <= count; ++code) {
      if (Suits(records, code, address)) codes.push_back(code);
    }
  } catch (const Failure&) {
    return {};
  }
  return codes;
}

// The user's condensers fit every address; only the named ones can be told apart.
std::vector<std::int32_t> NamedOptions(const clsK70& k70) {
  std::vector<std::int32_t> codes;
  for (int row = 0; row < CondenserOptionCtl::kRowCount; ++row) {
    const std::int32_t code = CondenserOptionCtl::CodeOf(row);
    const std::string name = k70.dbcon.Name(code);
    if (name != CondenserOptionCtl::kUnnamed && !Trim(name).empty()) codes.push_back(code);
  }
  return codes;
}

}  // namespace

CondenserCassetteCtl::CondenserCassetteCtl(QWidget* parent)
    : Page(parent),
      FrameBase(new Card(QStringLiteral("Set Condenser Data to Each Address"), this)),
      Label1{},
      Combo1{} {
  FrameBase->setObjectName("FrameBase");
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins({});
  page->addWidget(FrameBase);
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
  Label1[i] = new QLabel(number, FrameBase);
  Label1[i]->setObjectName(QStringLiteral("Label1_%1").arg(row));
  Label1[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  ComboBox* combo = Combo1[i] = new ComboBox(FrameBase);
  combo->setObjectName(QStringLiteral("Combo1_%1").arg(row));
  combo->setAccessibleName(QStringLiteral("Address ") + number);
  combo->setFixedWidth(kComboWidth);
  Label1[i]->setBuddy(combo);
  connect(combo, &ComboBox::chosen, this, [combo, row](int index) {
    GetK70().curCondenser.code(row + 1, combo->data(index).toInt());
  });
}

void CondenserCassetteCtl::LoadData() {
  for (int row = 0; row < kRowCount; ++row) LoadRow(row);
}

void CondenserCassetteCtl::LoadRow(int row) {
  const clsK70& k70 = GetK70();
  const std::int32_t mounted = k70.curCondenser.code(row + 1);
  const auto i = static_cast<std::size_t>(row);
  Label1[i]->setVisible(mounted >= 0);
  ComboBox* combo = Combo1[i];
  combo->setVisible(mounted >= 0);
  combo->clearRows();
  const auto add = [&](std::int32_t code) {
    return combo->addRow(QString::fromStdString(k70.dbcon.Name(code)), code);
  };
  // An empty address selects nothing, although its code has an entry.
  add(kNoCondenser);
  for (const auto& codes : {FixedCodesFor(k70, row + 1), NamedOptions(k70)}) {
    for (const std::int32_t code : codes) {
      const int entry = add(code);
      if (code == mounted) combo->setIndex(entry);
    }
  }
}

}  // namespace mortane
