// The attributes of a bench file: one table for each kind of element, for both directions.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "controller/simulator/Bench.h"

namespace mortane::controller {

template <typename Record>
struct BenchField {
  std::string_view attribute;
  std::variant<std::int32_t Record::*, bool Record::*, double Record::*, std::string Record::*,
               std::optional<std::string> Record::*>
      member;
};

template <typename Record>
inline constexpr auto kBenchFields = nullptr;

template <>
inline constexpr std::array kBenchFields<FiberData>{
    BenchField<FiberData>{"Installed", &FiberData::installed},
    BenchField<FiberData>{"Open", &FiberData::open},
    BenchField<FiberData>{"Opens", &FiberData::opens},
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
    BenchField<BuzzerData>{"FifthUnit", &BuzzerData::fifthUnit},
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
};

template <>
inline constexpr std::array kBenchFields<InterlockData>{
    BenchField<InterlockData>{"ByObservation", &InterlockData::byObservation},
    BenchField<InterlockData>{"ByZoom", &InterlockData::byZoom},
    BenchField<InterlockData>{"ByNosepiece", &InterlockData::byNosepiece},
    BenchField<InterlockData>{"ByLightPath", &InterlockData::byLightPath},
};

template <>
inline constexpr std::array kBenchFields<ListedName>{
    BenchField<ListedName>{"Name", &ListedName::name},
};

template <>
inline constexpr std::array kBenchFields<ObjectiveData>{
    BenchField<ObjectiveData>{"Code", &ObjectiveData::code},
    BenchField<ObjectiveData>{"Option", &ObjectiveData::option},
    BenchField<ObjectiveData>{"Name", &ObjectiveData::name},
    BenchField<ObjectiveData>{"Series", &ObjectiveData::series},
    BenchField<ObjectiveData>{"Type", &ObjectiveData::type},
    BenchField<ObjectiveData>{"Magnification", &ObjectiveData::magnification},
    BenchField<ObjectiveData>{"WorkingDistance", &ObjectiveData::workingDistance},
    BenchField<ObjectiveData>{"NumericalAperture", &ObjectiveData::numericalAperture},
    BenchField<ObjectiveData>{"Adoptive", &ObjectiveData::adoptive},
    BenchField<ObjectiveData>{"Answer", &ObjectiveData::answer},
};

template <>
inline constexpr std::array kBenchFields<CondenserData>{
    BenchField<CondenserData>{"Code", &CondenserData::code},
    BenchField<CondenserData>{"Option", &CondenserData::option},
    BenchField<CondenserData>{"Name", &CondenserData::name},
    BenchField<CondenserData>{"Suits", &CondenserData::suits},
};

template <>
inline constexpr std::array kBenchFields<FilterData>{
    BenchField<FilterData>{"Code", &FilterData::code},
    BenchField<FilterData>{"Option", &FilterData::option},
    BenchField<FilterData>{"Name", &FilterData::name},
};

template <>
inline constexpr std::array kBenchFields<CubeData>{
    BenchField<CubeData>{"Code", &CubeData::code},
    BenchField<CubeData>{"Option", &CubeData::option},
    BenchField<CubeData>{"Name", &CubeData::name},
    BenchField<CubeData>{"Exciter", &CubeData::exciter},
    BenchField<CubeData>{"Dichroic", &CubeData::dichroic},
    BenchField<CubeData>{"Barrier", &CubeData::barrier},
};

}  // namespace mortane::controller
