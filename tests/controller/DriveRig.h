// A connected instrument with both drives.
#pragma once

#include "controller/SimulatedRig.h"

namespace mortane::controller::test {

struct DriveRig : SimulatedRig {
  DriveRig() : SimulatedRig("Harbour") {}
  DeviceEntry Entry() const { return root.DeviceList().Item(0); }
  ZDriveDevice Z() const { return root.ZDriveDevice(); }
  XYDriveDevice XY() const { return root.XYDriveDevice(); }
};

}  // namespace mortane::controller::test
