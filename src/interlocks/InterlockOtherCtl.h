// The sub-page that tells what follows a change of the objective, the light path and the zoom.
#pragma once

#include <array>
#include <cstdint>

#include "model/DriveCompensation.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QLabel;

namespace mortane {

class CheckToggle;
class InnerFrame;
class ToggleTile;
class clsInterLockOther;
struct OtherAccessory;

// Told when the switch of a drive changes, also when loading changes it.
struct DriveFollowers {
  FollowNosepiece zDrive;
  FollowNosepiece xyDrive;
};

class InterlockOtherCtl : public CardPage {
  Q_OBJECT

 public:
  InterlockOtherCtl(clsInterLockOther& interlocks, DriveFollowers drives,
                    QWidget* parent = nullptr);

  void LoadData() override;

  static constexpr std::size_t kNosepieceCount = 6;
  static constexpr std::size_t kPathCount = 3;

  Control<InnerFrame> FrameNosepiece{"FrameNosepiece"};
  Control<InnerFrame> FrameLightPath{"FrameLightPath"};
  Control<InnerFrame> FrameOpticalZoom{"FrameOpticalZoom"};
  Controls<QLabel, kNosepieceCount> lblNosepiece{"lblNosepiece"};
  Controls<QLabel, kPathCount> lblLightPath{"lblLightPath"};
  Controls<QLabel, kPathCount> lblOpticalZoom{"lblOpticalZoom"};
  Controls<CheckToggle, kNosepieceCount> CheckNosepiece{"CheckNosepiece"};
  Controls<CheckToggle, kPathCount> CheckLightPath{"CheckLightPath"};
  Controls<CheckToggle, kPathCount> CheckOpticalZoom{"CheckOpticalZoom"};

 private:
  template <std::size_t Count>
  struct Change;
  static const Change<kNosepieceCount> kNosepiece;
  static const Change<kPathCount> kLightPath;
  static const Change<kPathCount> kZoom;

  template <std::size_t Count>
  InnerFrame* BuildFrame(const Change<Count>& change);
  template <std::size_t Count>
  ToggleTile* BuildTile(const Change<Count>& change, const OtherAccessory& row);
  void LoadNosepiece();
  bool LoadFollower(const OtherAccessory& row, bool nosepieceMounted);
  void LoadPath(const Change<kPathCount>& change);
  void TellDrives(std::int32_t accessory, bool follows);

  clsInterLockOther& interlocks_;
  DriveFollowers drives_;
  std::array<ToggleTile*, kNosepieceCount> nosepieceTiles_{};
  std::array<ToggleTile*, kPathCount> lightPathTiles_{};
  std::array<ToggleTile*, kPathCount> zoomTiles_{};
};

}  // namespace mortane
