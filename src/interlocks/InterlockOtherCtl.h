// The sub-page that tells what follows a change of the objective, the light path and the zoom.
#pragma once

#include <cstdint>
#include <vector>

#include "model/DriveCompensation.h"
#include "widgets/CardPage.h"

class QLabel;

namespace mortane {

class CheckToggle;
class InnerFrame;
class SwitchTile;
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

  InnerFrame* FrameNosepiece = nullptr;
  InnerFrame* FrameLightPath = nullptr;
  InnerFrame* FrameOpticalZoom = nullptr;
  std::vector<QLabel*> lblNosepiece;
  std::vector<QLabel*> lblLightPath;
  std::vector<QLabel*> lblOpticalZoom;
  std::vector<CheckToggle*> CheckNosepiece;
  std::vector<CheckToggle*> CheckLightPath;
  std::vector<CheckToggle*> CheckOpticalZoom;

 private:
  struct Change;
  static const Change kNosepiece;
  static const Change kLightPath;
  static const Change kZoom;

  InnerFrame* BuildFrame(const Change& change);
  void BuildTile(const Change& change, const OtherAccessory& row);
  void LoadNosepiece();
  bool LoadFollower(const OtherAccessory& row, bool nosepieceMounted);
  void LoadPath(const Change& change);
  void OnToggled(const Change& change, std::int32_t accessory, bool on);

  clsInterLockOther& interlocks_;
  DriveFollowers drives_;
  std::vector<SwitchTile*> nosepieceTiles_;
  std::vector<SwitchTile*> lightPathTiles_;
  std::vector<SwitchTile*> zoomTiles_;
};

}  // namespace mortane
