#include "interlocks/InterlockObservationCtl.h"

#include <QLabel>

#include "interlocks/InterlockCtlTiles.h"
#include "interlocks/clsInterLockObservation.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/ReflowGrid.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kColumns = 3;

}  // namespace

InterlockObservationCtl::InterlockObservationCtl(clsInterLockObservation& interlocks,
                                                 QWidget* parent)
    : CardPage(u"Observation Change to"_s, parent), interlocks_(interlocks), tiles_{} {
  auto* tiles = new ReflowGrid(ReflowGrid::Order::Downwards, kColumns, grid::kBetweenColumns,
                               grid::kBetweenGroups);
  tiles->SetGrowth(ToggleTile::kMostGrowth);
  for (const ObservationAccessory* row :
       InPageOrder(kObservationAccessories, &ObservationAccessory::pageIndex)) {
    tiles->addWidget(BuildTile(*row));
  }
  FrameBase->body()->addLayout(tiles, 1);
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
