// The attributes of database records in a bench file.
#pragma once

#include <array>

#include "controller/simulator/BenchField.h"
#include "controller/simulator/DatabaseData.h"

namespace mortane::controller {

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
