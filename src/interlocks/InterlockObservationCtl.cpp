#include "interlocks/InterlockObservationCtl.h"

#include <QGridLayout>
#include <QLabel>

#include "interlocks/InterlockCtlTiles.h"
#include "interlocks/clsInterLockObservation.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kColumns = 3;
constexpr int kTilesInColumn = 4;

}  // namespace

InterlockObservationCtl::InterlockObservationCtl(clsInterLockObservation& interlocks,
                                                 QWidget* parent)
    : CardPage(u"Observation Change to"_s, parent), interlocks_(interlocks), tiles_{} {
  auto* tiles = new QGridLayout;
  tiles->setHorizontalSpacing(grid::kBetweenColumns);
  tiles->setVerticalSpacing(grid::kBetweenGroups);
  for (int column = 0; column < kColumns; ++column) tiles->setColumnStretch(column, 1);
  for (const ObservationAccessory* row :
       InPageOrder(kObservationAccessories, &ObservationAccessory::pageIndex)) {
    const int index = row->pageIndex;
    tiles->addWidget(BuildTile(*row), index % kTilesInColumn, index / kTilesInColumn);
  }
  tiles->setRowStretch(kTilesInColumn, 1);
  FrameBase->body()->addLayout(tiles);
}

ToggleTile* InterlockObservationCtl::BuildTile(const ObservationAccessory& row) {
  const auto i = static_cast<std::size_t>(row.pageIndex);
  ToggleTile* tile = tiles_[i] =
      MakeAccessoryTile(row.number, row.caption, ToggleTile::Ground::Card, FrameBase);
  lblAccessories.Set(i, tile->label());
  CheckAccessories.Set(i, tile->toggle());
  connect(tile->toggle(), &CheckToggle::toggled, this, [this, number = row.number](bool on) {
    interlocks_.Status(number, on ? kInterlockOn : kInterlockOff);
  });
  return tile;
}

void InterlockObservationCtl::LoadData() {
  for (const ObservationAccessory& row : kObservationAccessories) {
    ToggleTile& tile = *tiles_[static_cast<std::size_t>(row.pageIndex)];
    const bool mounted = interlocks_.parent.IsControllable(row.number);
    const std::int32_t state = interlocks_.Status(row.number);
    tile.setEnabled(mounted && state != kUnknown);
    if (mounted) ShowState(*tile.toggle(), state);
  }
}

}  // namespace mortane
