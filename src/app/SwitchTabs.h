// Whether the switches of the body and of the hand controller can be given functions.
#pragma once

namespace mortane {

class ConnectedMicroscope;

struct SwitchTabs {
  bool k70 = false;
  bool tactor = false;
};

// Goes by the controllers that answer and by the version of the body, or of the hub where there is
// no body. A version that cannot be read counts as none.
SwitchTabs FindSwitchTabs(const ConnectedMicroscope& microscope);

}  // namespace mortane
