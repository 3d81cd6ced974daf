#include "interlocks/InterlockOtherCtl.h"

#include <QLabel>
#include <functional>
#include <utility>

#include "interlocks/InterlockCtlTiles.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOther.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/ReflowGrid.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kColumns = 3;
constexpr int kPathFrames = 2;

}  // namespace

// A change that accessories follow, and its frame.
template <std::size_t Count>
struct InterlockOtherCtl::Change {
  const char* caption;
  std::int32_t accessory;  // that changes
  int OtherAccessory::*place;
  std::int32_t (clsInterLockOther::*state)(std::int32_t) const;
  void (clsInterLockOther::*store)(std::int32_t, std::int32_t);
  Control<InnerFrame> InterlockOtherCtl::*frame;
  Controls<QLabel, Count> InterlockOtherCtl::*labels;
  Controls<CheckToggle, Count> InterlockOtherCtl::*boxes;
  std::array<ToggleTile*, Count> InterlockOtherCtl::*tiles;
};

constexpr InterlockOtherCtl::Change<InterlockOtherCtl::kNosepieceCount>
    InterlockOtherCtl::kNosepiece{
        "Nosepiece Change to",
        accessory::kNosepiece,
        &OtherAccessory::nosepieceIndex,
        &clsInterLockOther::Status,
        &clsInterLockOther::Status,
        &InterlockOtherCtl::FrameNosepiece,
        &InterlockOtherCtl::lblNosepiece,
        &InterlockOtherCtl::CheckNosepiece,
        &InterlockOtherCtl::nosepieceTiles_,
    };

constexpr InterlockOtherCtl::Change<InterlockOtherCtl::kPathCount> InterlockOtherCtl::kLightPath{
    "Light Path Change to",
    accessory::kLightPath,
    &OtherAccessory::pathIndex,
    &clsInterLockOther::LightPathStatus,
    &clsInterLockOther::LightPathStatus,
    &InterlockOtherCtl::FrameLightPath,
    &InterlockOtherCtl::lblLightPath,
    &InterlockOtherCtl::CheckLightPath,
    &InterlockOtherCtl::lightPathTiles_,
};

constexpr InterlockOtherCtl::Change<InterlockOtherCtl::kPathCount> InterlockOtherCtl::kZoom{
    "Zoom Change to",
    accessory::kOpticalZoom,
    &OtherAccessory::pathIndex,
    &clsInterLockOther::ZoomStatus,
    &clsInterLockOther::ZoomStatus,
    &InterlockOtherCtl::FrameOpticalZoom,
    &InterlockOtherCtl::lblOpticalZoom,
    &InterlockOtherCtl::CheckOpticalZoom,
    &InterlockOtherCtl::zoomTiles_,
};

InterlockOtherCtl::InterlockOtherCtl(clsInterLockOther& interlocks, DriveFollowers drives,
                                     QWidget* parent)
    : CardPage(u"Other Interlock Settings"_s, parent),
      interlocks_(interlocks),
      drives_(std::move(drives)) {
  FrameBase->body()->addWidget(BuildFrame(kNosepiece));
  auto* paths = new ReflowGrid(ReflowGrid::Order::RowByRow, kPathFrames, grid::kBetweenColumns,
                               grid::kBetweenGroups);
  paths->addWidget(BuildFrame(kLightPath));
  paths->addWidget(BuildFrame(kZoom));
  FrameBase->body()->addLayout(paths);
  FrameBase->body()->addStretch(1);
}

template <std::size_t Count>
InnerFrame* InterlockOtherCtl::BuildFrame(const Change<Count>& change) {
  auto* frame = new InnerFrame(QLatin1String(change.caption), FrameBase);
  this->*change.frame = frame;
  auto* tiles =
      new ReflowGrid(ReflowGrid::Order::RowByRow, kColumns, grid::kBetweenColumns, grid::kUnit);
  for (const OtherAccessory* row : InPageOrder(kOtherAccessories, change.place)) {
    tiles->addWidget(BuildTile(change, *row));
  }
  frame->body()->addLayout(tiles);
  return frame;
}

// The tables of changes outlive every page.
template <std::size_t Count>
ToggleTile* InterlockOtherCtl::BuildTile(const Change<Count>& change, const OtherAccessory& row) {
  ToggleTile* tile = MakeAccessoryTile(row.number, row.caption, ToggleTile::Ground::InnerFrame,
                                       this->*change.frame);
  const auto i = static_cast<std::size_t>(row.*change.place);
  (this->*change.tiles)[i] = tile;
  (this->*change.labels).Set(i, tile->label());
  (this->*change.boxes).Set(i, tile->toggle());
  connect(tile->toggle(), &CheckToggle::toggled, this,
          [this, &change, number = row.number](bool on) {
            std::invoke(change.store, interlocks_, number, on ? kInterlockOn : kInterlockOff);
            TellDrives(number, on);
          });
  return tile;
}

// The drives follow the nosepiece alone, so these numbers come from its frame.
void InterlockOtherCtl::TellDrives(std::int32_t accessory, bool follows) {
  if (accessory == accessory::kZFocusDrive) drives_.zDrive(follows);
  if (accessory == accessory::kXYStage) drives_.xyDrive(follows);
}

void InterlockOtherCtl::LoadData() {
  LoadNosepiece();
  LoadPath(kLightPath);
  LoadPath(kZoom);
}

void InterlockOtherCtl::LoadNosepiece() {
  const bool mounted = interlocks_.parent.IsControllable(accessory::kNosepiece);
  bool somethingToShow = false;
  for (const OtherAccessory* row : InPageOrder(kOtherAccessories, kNosepiece.place)) {
    if (LoadFollower(*row, mounted)) somethingToShow = true;
  }
  FrameNosepiece->setEnabled(somethingToShow);
}

// True when the switch shows a state that is on or off.
bool InterlockOtherCtl::LoadFollower(const OtherAccessory& row, bool nosepieceMounted) {
  ToggleTile& tile = *nosepieceTiles_[static_cast<std::size_t>(row.nosepieceIndex)];
  const bool mounted = nosepieceMounted && interlocks_.parent.IsControllable(row.number);
  const std::int32_t state = mounted ? interlocks_.Status(row.number) : kUnknown;
  const bool follows = state != kUnknown;
  tile.setEnabled(follows);
  ShowState(*tile.toggle(), state);
  if (row.number == accessory::kXYStage) {
    tile.SetShown(follows || (nosepieceMounted && !interlocks_.LacksStageInterlock()));
  }
  return state == kInterlockOff || state == kInterlockOn;
}

// Kept: a switch of an unknown state stands on ON, disabled; the model keeps the state unknown.
void InterlockOtherCtl::LoadPath(const Change<kPathCount>& change) {
  const bool present = interlocks_.parent.IsMounted(change.accessory) != kNotMounted;
  for (const OtherAccessory* row : InPageOrder(kOtherAccessories, change.place)) {
    ToggleTile& tile = *(this->*change.tiles)[static_cast<std::size_t>(row->*change.place)];
    const bool mounted = present && interlocks_.parent.IsControllable(row->number);
    const std::int32_t state = (interlocks_.*change.state)(row->number);
    const bool known = state != kUnknown;
    tile.setEnabled(mounted && known);
    if (mounted) ShowState(*tile.toggle(), known ? state : kInterlockOn);
  }
  (this->*change.frame)->setEnabled(present);
}

}  // namespace mortane
