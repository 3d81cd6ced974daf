// The other controls in the settings file.
#include "drives/FileSettings.h"
#include "drives/clsControlOther.h"

namespace mortane {
namespace {

using OtherSetting = FileSetting<clsControlOther>;

constexpr std::string_view kAuto = "AUTO";
constexpr std::string_view kCode = "CODE";

constexpr std::array<FileWord, 2> kTruth{{{"False", 0}, {"True", 1}}};
constexpr std::array<FileWord, 3> kSensitivity{{{"Coarse", 1}, {"Medium", 2}, {"Fine", 3}}};
// Kept: not the numbers that are written. After a file "Bright" is dark, and "Off" is 3.
constexpr std::array<FileWord, 3> kReadLed{{{"Bright", 1}, {"Dark", 2}, {"Off", 3}}};
constexpr std::array<FileWord, 3> kWrittenLed{{{"Off", 0}, {"Dark", 1}, {"Bright", 2}}};

// Kept: one line for three children.
constexpr std::string_view kSwitchRefused = "Control Other TactorSwitch";

template <std::int32_t clsControlOther::*Field>
constexpr OtherSetting Truth(std::string_view child, std::string_view attribute,
                             std::string_view refused) {
  return FieldSetting<clsControlOther, Field>(child, attribute, kTruth, kTruth, refused);
}

// Kept: the sensitivity is not written, but files that hold it are understood.
template <std::int32_t clsControlOther::*Field>
constexpr OtherSetting Sensitivity(std::string_view child, std::string_view refused) {
  return FieldSetting<clsControlOther, Field>(child, kCode, kSensitivity, {}, refused);
}

constexpr std::array<OtherSetting, 9> kSettings{
    Truth<&clsControlOther::curAutoZ>("FocusDrive", kAuto, "Control Other Focus Drive Auto"),
    Sensitivity<&clsControlOther::curSensitivityZ>("FocusDrive",
                                                   "Control Other Focus Drive Sensitivity"),
    Truth<&clsControlOther::curAutoXY>("XYStage", kAuto, "Control Other XY Stage Auto"),
    Sensitivity<&clsControlOther::curSensitivityXY>("XYStage",
                                                    "Control Other XY Stage Sensitivity"),
    Truth<&clsControlOther::curBuzzer>("Buzzer", kCode, kSwitchRefused),
    Truth<&clsControlOther::curSwEnable>("Switch", kCode, kSwitchRefused),
    Truth<&clsControlOther::curTactorSwEnable>("TactorSwitch", kCode, kSwitchRefused),
    Truth<&clsControlOther::curR_TLPOSwEnable>("B_KM_RSwitch", kCode,
                                               "Control Other B_KM_R Switch"),
    FieldSetting<clsControlOther, &clsControlOther::curR_TLPOLED>(
        "B_KM_RSwitchLED", kCode, kReadLed, kWrittenLed, "Control Other B_KM_R Remote SwitchLED"),
};

}  // namespace

std::string clsControlOther::ReadDom(const DomNode& node) {
  return ReadSettings<clsControlOther>(*this, node, kSettings, MissingAttribute::PassedOver);
}

void clsControlOther::WriteDom(DomDocument& document, DomNode section) const {
  WriteSettings<clsControlOther>(*this, document, section, kSettings);
}

}  // namespace mortane
