// The attributes of instruments and their parts in a bench file.
#pragma once

#include <array>

#include "controller/simulator/Bench.h"
#include "controller/simulator/BenchField.h"

namespace mortane::controller {

template <>
inline constexpr std::array kBenchFields<FiberData>{
    BenchField<FiberData>{"Installed", &FiberData::installed},
    BenchField<FiberData>{"Open", &FiberData::open},
    BenchField<FiberData>{"Opens", &FiberData::opens},
    BenchField<FiberData>{"OpenRaises", &FiberData::openRaises},
    BenchField<FiberData>{"Status", &FiberData::status},
    BenchField<FiberData>{"SwitchEnable", &FiberData::switchEnable},
    BenchField<FiberData>{"LED", &FiberData::led},
};

template <>
inline constexpr std::array kBenchFields<Instrument>{
    BenchField<Instrument>{"Name", &Instrument::name},
    BenchField<Instrument>{"Available", &Instrument::available},
    BenchField<Instrument>{"BusyWhenConnected", &Instrument::busyWhenConnected},
    BenchField<Instrument>{"Limitation", &Instrument::limitation},
    BenchField<Instrument>{"EscapeMode", &Instrument::escapeMode},
};

template <>
inline constexpr std::array kBenchFields<ControllerUnit>{
    BenchField<ControllerUnit>{"Present", &ControllerUnit::present},
    BenchField<ControllerUnit>{"Version", &ControllerUnit::version},
};

template <>
inline constexpr std::array kBenchFields<BuzzerData>{
    BenchField<BuzzerData>{"Body", &BuzzerData::body},
    BenchField<BuzzerData>{"Hub", &BuzzerData::hub},
    BenchField<BuzzerData>{"HandController", &BuzzerData::handController},
    BenchField<BuzzerData>{"FifthUnit", &BuzzerData::unit5},
};

template <>
inline constexpr std::array kBenchFields<SwitchData>{
    BenchField<SwitchData>{"Body", &SwitchData::body},
    BenchField<SwitchData>{"HandController", &SwitchData::handController},
    BenchField<SwitchData>{"Remote", &SwitchData::remote},
    BenchField<SwitchData>{"RemoteLED", &SwitchData::remoteLed},
};

template <>
inline constexpr std::array kBenchFields<AccessoryData>{
    BenchField<AccessoryData>{"State", &AccessoryData::state},
    BenchField<AccessoryData>{"ReadOnly", &AccessoryData::readOnly},
    BenchField<AccessoryData>{"Value", &AccessoryData::value},
    BenchField<AccessoryData>{"OffsetCode", &AccessoryData::offsetCode},
};

template <>
inline constexpr std::array kBenchFields<TurretPlace>{
    BenchField<TurretPlace>{"Position", &TurretPlace::position},
    BenchField<TurretPlace>{"Code", &TurretPlace::code},
};

template <>
inline constexpr std::array kBenchFields<ZDriveData>{
    BenchField<ZDriveData>{"Position", &ZDriveData::position},
    BenchField<ZDriveData>{"KnobAuto", &ZDriveData::knobAuto},
    BenchField<ZDriveData>{"KnobSensitivity", &ZDriveData::knobSensitivity},
    BenchField<ZDriveData>{"MoveProfile", &ZDriveData::moveProfile},
    BenchField<ZDriveData>{"MoveOption", &ZDriveData::moveOption},
    BenchField<ZDriveData>{"FocusCompensation", &ZDriveData::focusCompensation},
    BenchField<ZDriveData>{"LowerLimit", &ZDriveData::lowerLimit},
    BenchField<ZDriveData>{"UpperLimit", &ZDriveData::upperLimit},
    BenchField<ZDriveData>{"Speed", &ZDriveData::speed},
    BenchField<ZDriveData>{"LowestPosition", &ZDriveData::lowestPosition},
    BenchField<ZDriveData>{"HighestPosition", &ZDriveData::highestPosition},
};

template <>
inline constexpr std::array kBenchFields<XYDriveData>{
    BenchField<XYDriveData>{"PositionX", &XYDriveData::positionX},
    BenchField<XYDriveData>{"PositionY", &XYDriveData::positionY},
    BenchField<XYDriveData>{"KnobAuto", &XYDriveData::knobAuto},
    BenchField<XYDriveData>{"KnobSensitivity", &XYDriveData::knobSensitivity},
    BenchField<XYDriveData>{"MoveProfile", &XYDriveData::moveProfile},
    BenchField<XYDriveData>{"FocusCompensation", &XYDriveData::focusCompensation},
    BenchField<XYDriveData>{"HandleMode", &XYDriveData::handleMode},
    BenchField<XYDriveData>{"Speed", &XYDriveData::speed},
    BenchField<XYDriveData>{"LowestX", &XYDriveData::lowestX},
    BenchField<XYDriveData>{"HighestX", &XYDriveData::highestX},
    BenchField<XYDriveData>{"LowestY", &XYDriveData::lowestY},
    BenchField<XYDriveData>{"HighestY", &XYDriveData::highestY},
};

template <>
inline constexpr std::array kBenchFields<InterlockData>{
    BenchField<InterlockData>{"ByObservation", &InterlockData::byObservation},
    BenchField<InterlockData>{"ByZoom", &InterlockData::byZoom},
    BenchField<InterlockData>{"ByNosepiece", &InterlockData::byNosepiece},
    BenchField<InterlockData>{"ByLightPath", &InterlockData::byLightPath},
};

}  // namespace mortane::controller
