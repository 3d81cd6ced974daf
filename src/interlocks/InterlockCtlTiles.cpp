#include "interlocks/InterlockCtlTiles.h"

#include "common/CheckedIndex.h"
#include "interlocks/Interlock.h"
#include "widgets/CheckToggle.h"
#include "widgets/QtText.h"

namespace mortane {
namespace {

// By the number of the accessory, from 1.
constexpr std::array<IconName, accessory::kCount> kIcons{
    IconName::NDFilter,  IconName::FieldStop, IconName::Aperture,  IconName::Lamp,
    IconName::Condenser, IconName::Cube,      IconName::Shutter,   IconName::Analyzer,
    IconName::Nosepiece, IconName::Zoom,      IconName::LightPath, IconName::ZFocus,
    IconName::FieldStop, IconName::XYStage,
};

}  // namespace

ToggleTile* MakeAccessoryTile(std::int32_t accessory, std::string_view caption,
                              ToggleTile::Ground ground, QWidget* parent) {
  const IconName icon = kIcons[CheckedIndex(accessory, 1, kIcons.size())];
  return new ToggleTile(icon, ToQString(caption), ground, parent);
}

void ShowState(CheckToggle& toggle, std::int32_t state) {
  if (state == kInterlockOff || state == kInterlockOn) toggle.setChecked(state == kInterlockOn);
}

}  // namespace mortane
