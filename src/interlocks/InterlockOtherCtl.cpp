#include "interlocks/InterlockOtherCtl.h"

#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "interlocks/InterlockCtlTiles.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOther.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/Named.h"
#include "widgets/Theme.h"
#include "widgets/TileLayout.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kColumns = 3;

}  // namespace

// A change that accessories follow, and its frame.
struct InterlockOtherCtl::Change {
  const char* frameName;
  const char* caption;
  const char* labelsName;
  const char* boxesName;
  std::int32_t accessory;  // that changes
  int OtherAccessory::*place;
  std::int32_t (clsInterLockOther::*state)(std::int32_t) const;
  void (clsInterLockOther::*store)(std::int32_t, std::int32_t);
  InnerFrame* InterlockOtherCtl::*frame;
  std::vector<QLabel*> InterlockOtherCtl::*labels;
  std::vector<CheckToggle*> InterlockOtherCtl::*boxes;
  std::vector<SwitchTile*> InterlockOtherCtl::*tiles;
};

constexpr InterlockOtherCtl::Change InterlockOtherCtl::kNosepiece{
    "FrameNosepiece",
    "Nosepiece Change to",
    "lblNosepiece",
    "CheckNosepiece",
    accessory::kNosepiece,
    &OtherAccessory::nosepieceIndex,
    &clsInterLockOther::Status,
    &clsInterLockOther::Status,
    &InterlockOtherCtl::FrameNosepiece,
    &InterlockOtherCtl::lblNosepiece,
    &InterlockOtherCtl::CheckNosepiece,
    &InterlockOtherCtl::nosepieceTiles_,
};

constexpr InterlockOtherCtl::Change InterlockOtherCtl::kLightPath{
    "FrameLightPath",
    "Light Path Change to",
    "lblLightPath",
    "CheckLightPath",
    accessory::kLightPath,
    &OtherAccessory::pathIndex,
    &clsInterLockOther::LightPathStatus,
    &clsInterLockOther::LightPathStatus,
    &InterlockOtherCtl::FrameLightPath,
    &InterlockOtherCtl::lblLightPath,
    &InterlockOtherCtl::CheckLightPath,
    &InterlockOtherCtl::lightPathTiles_,
};

constexpr InterlockOtherCtl::Change InterlockOtherCtl::kZoom{
    "FrameOpticalZoom",
    "Zoom Change to",
    "lblOpticalZoom",
    "CheckOpticalZoom",
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
  auto* paths = new QHBoxLayout;
  paths->setSpacing(grid::kBetweenColumns);
  paths->addWidget(BuildFrame(kLightPath));
  paths->addWidget(BuildFrame(kZoom));
  FrameBase->body()->addLayout(paths);
  FrameBase->body()->addStretch(1);
}

InnerFrame* InterlockOtherCtl::BuildFrame(const Change& change) {
  InnerFrame* frame =
      this->*change.frame =
          Named(new InnerFrame(QLatin1String(change.caption), FrameBase), change.frameName);
  auto* tiles = new TileLayout(kColumns, grid::kBetweenColumns, grid::kUnit);
  for (const OtherAccessory* row : InPageOrder(kOtherAccessories, change.place)) {
    BuildTile(change, *row);
    tiles->addWidget((this->*change.tiles).back());
  }
  frame->body()->addLayout(tiles);
  return frame;
}

// The tiles are built in the order of their places.
void InterlockOtherCtl::BuildTile(const Change& change, const OtherAccessory& row) {
  SwitchTile* tile = MakeAccessoryTile(row.number, row.caption, SwitchTile::Ground::InnerFrame,
                                       this->*change.frame);
  (this->*change.tiles).push_back(tile);
  (this->*change.labels).push_back(Named(tile->label(), change.labelsName, row.*change.place));
  (this->*change.boxes).push_back(Named(tile->toggle(), change.boxesName, row.*change.place));
  connect(tile->toggle(), &CheckToggle::toggled, this,
          [this, &change, number = row.number](bool on) { OnToggled(change, number, on); });
}

// The drives follow the nosepiece alone.
void InterlockOtherCtl::OnToggled(const Change& change, std::int32_t accessory, bool on) {
  (interlocks_.*change.store)(accessory, on ? kInterlockOn : kInterlockOff);
  if (accessory == accessory::kZFocusDrive) drives_.zDrive(on);
  if (accessory == accessory::kXYStage) drives_.xyDrive(on);
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
  SwitchTile& tile = *nosepieceTiles_[static_cast<std::size_t>(row.nosepieceIndex)];
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

// A switch of an unknown state stands on ON, disabled; the model keeps the state unknown.
void InterlockOtherCtl::LoadPath(const Change& change) {
  const bool present = interlocks_.parent.IsMounted(change.accessory) != kNotMounted;
  for (const OtherAccessory* row : InPageOrder(kOtherAccessories, change.place)) {
    SwitchTile& tile = *(this->*change.tiles)[static_cast<std::size_t>(row->*change.place)];
    const bool mounted = present && interlocks_.parent.IsControllable(row->number);
    const std::int32_t state = (interlocks_.*change.state)(row->number);
    const bool known = state != kUnknown;
    tile.setEnabled(mounted && known);
    if (mounted) ShowState(*tile.toggle(), known ? state : kInterlockOn);
  }
  (this->*change.frame)->setEnabled(present);
}

}  // namespace mortane
