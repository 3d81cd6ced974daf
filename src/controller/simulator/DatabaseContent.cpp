#include "controller/simulator/DatabaseContent.h"

#include <array>
#include <string_view>

namespace mortane::controller {
namespace {

constexpr std::size_t kOptions = 9;
constexpr std::string_view kUnusedObjective = "---------------";
constexpr std::string_view kUnusedItem = "----------";

constexpr std::array<std::string_view, 6> kSeries{"Plan A",  "Plan F", "Super C",
                                                  "Long WD", "Relief", "Epi"};
constexpr std::array<std::string_view, 7> kTypes{"Dry",       "Oil", "Water", "Phase",
                                                 "Phase Oil", "DIC", "Macro"};

struct ObjectiveRow {
  std::string_view name;
  std::int32_t series;
  std::int32_t type;
  double magnification;
  double workingDistance;
  double numericalAperture;
};

// The values fit the code text: magnifications in tenths, distances in hundredths.
constexpr std::array kObjectives{
    ObjectiveRow{"Plan A 2x", 1, 7, 2, 8.5, 0.06},
    ObjectiveRow{"Plan A 4x", 1, 1, 4, 30, 0.1},
    ObjectiveRow{"Plan A 10x", 1, 1, 10, 10.5, 0.25},
    ObjectiveRow{"Plan A 10x Ph", 1, 4, 10, 10.5, 0.25},
    ObjectiveRow{"Plan A 20x", 1, 1, 20, 1.2, 0.4},
    ObjectiveRow{"Plan A 40x", 1, 1, 40, 0.56, 0.65},
    ObjectiveRow{"Plan A 100x Oil", 1, 2, 100, 0.17, 1.25},
    ObjectiveRow{"Plan F 10x", 2, 1, 10, 16, 0.3},
    ObjectiveRow{"Plan F 20x", 2, 6, 20, 2.1, 0.5},
    ObjectiveRow{"Plan F 40x", 2, 6, 40, 0.66, 0.75},
    ObjectiveRow{"Plan F 60x", 2, 1, 60, 0.35, 0.85},
    ObjectiveRow{"Plan F 100x Oil", 2, 2, 100, 0.16, 1.3},
    ObjectiveRow{"Super C 10x", 3, 1, 10, 4, 0.45},
    ObjectiveRow{"Super C 20x", 3, 1, 20, 1, 0.75},
    ObjectiveRow{"Super C 40x", 3, 1, 40, 0.25, 0.95},
    ObjectiveRow{"Super C 60x W", 3, 3, 60, 0.31, 1.2},
    ObjectiveRow{"Super C 60x Oil", 3, 2, 60, 0.13, 1.4},
    ObjectiveRow{"Super C100x Oil", 3, 2, 100, 0.13, 1.45},
    ObjectiveRow{"Long WD 20x", 4, 1, 20, 8.2, 0.45},
    ObjectiveRow{"Long WD 40x", 4, 1, 40, 3.6, 0.6},
    ObjectiveRow{"Long WD 40x Ph", 4, 4, 40, 2.8, 0.6},
    ObjectiveRow{"Relief 10x", 5, 1, 10, 6.2, 0.25},
    ObjectiveRow{"Relief 20x", 5, 1, 20, 2.3, 0.4},
    ObjectiveRow{"Epi 5x", 6, 1, 5, 23.5, 0.15},
    ObjectiveRow{"Epi 50x", 6, 1, 50, 1, 0.8},
    ObjectiveRow{"Epi 150x", 6, 1, 150, 0.42, 0.9},
};

// `suits` has one character for each address: "1" where the condenser fits.
struct CondenserRow {
  std::string_view name;
  std::string_view suits;
};
constexpr std::array kCondensers{
    CondenserRow{"Bright", "1111111111"}, CondenserRow{"Ph 1", "1111111000"},
    CondenserRow{"Ph 2", "1111111000"},   CondenserRow{"Darkfield", "0001100111"},
    CondenserRow{"DIC L", "0000111111"},  CondenserRow{"DIC M", "0000111111"},
    CondenserRow{"DIC H", "0000111111"},  CondenserRow{"Polar", "1100000000"},
    CondenserRow{"Ph 3", "1111111000"},
};

constexpr std::array<std::string_view, 11> kExciters{"340/26", "365/10", "380/14", "405/20",
                                                     "436/20", "470/40", "480/30", "500/24",
                                                     "545/25", "560/40", "620/60"};
constexpr std::array<std::string_view, 9> kDichroics{
    "DM 400", "DM 430", "DM 455", "DM 495", "DM 505", "DM 515", "DM 565", "DM 595", "DM 660"};
constexpr std::array<std::string_view, 11> kBarriers{"LP 420", "460/50", "480/40", "LP 515",
                                                     "525/50", "535/45", "LP 590", "605/70",
                                                     "630/75", "700/75", "LP 665"};

struct CubeRow {
  std::string_view name;
  std::int32_t exciter;
  std::int32_t dichroic;
  std::int32_t barrier;
};
constexpr std::array kCubes{
    CubeRow{"Empty", 0, 0, 0},     CubeRow{"UV Blue", 2, 1, 2}, CubeRow{"Violet", 4, 2, 3},
    CubeRow{"Cyan", 5, 3, 3},      CubeRow{"Green", 6, 4, 5},   CubeRow{"Green LP", 7, 5, 4},
    CubeRow{"Yellow", 8, 6, 6},    CubeRow{"Orange", 9, 7, 8},  CubeRow{"Red", 10, 8, 9},
    CubeRow{"Far red", 11, 9, 10},
};

template <std::size_t Count>
std::vector<ListedName> ListOf(const std::array<std::string_view, Count>& names) {
  std::vector<ListedName> list;
  list.reserve(Count);
  for (const std::string_view name : names) list.push_back({std::string(name)});
  return list;
}

template <std::size_t Count>
std::vector<FilterData> FixedFilters(const std::array<std::string_view, Count>& names) {
  std::vector<FilterData> records;
  records.reserve(Count + kOptions);
  std::int32_t code = 0;
  for (const std::string_view name : names) records.push_back({++code, false, std::string(name)});
  return records;
}

std::string OptionName(const std::vector<std::string>& names, std::size_t index) {
  return index < names.size() ? names[index] : std::string(kUnusedItem);
}

std::vector<ObjectiveData> Objectives() {
  std::vector<ObjectiveData> records;
  records.reserve(kObjectives.size() + kOptions);
  std::int32_t code = 0;
  for (const ObjectiveRow& row : kObjectives) {
    records.push_back({++code,
                       false,
                       std::string(row.name),
                       row.series,
                       row.type,
                       row.magnification,
                       row.workingDistance,
                       row.numericalAperture,
                       0,
                       {}});
  }
  records.push_back({241, true, "Clinic 25x", 2, 3, 25, 1.98, 0.95, 3, {}});
  records.push_back({242, true, "Loan 63x Oil", 3, 2, 63, 0.19, 1.4, 5, {}});
  for (std::int32_t option = 243; option <= 249; ++option) {
    records.push_back({option, true, std::string(kUnusedObjective), 0, 0, 0, 0, 0, 0, {}});
  }
  return records;
}

std::vector<CubeData> Cubes() {
  std::vector<CubeData> records;
  records.reserve(kCubes.size() + kOptions);
  std::int32_t code = 0;
  for (const CubeRow& row : kCubes) {
    records.push_back(
        {++code, false, std::string(row.name), row.exciter, row.dichroic, row.barrier});
  }
  records.push_back({241, true, "Ratio", 241, 4, 5});
  for (std::int32_t option = 242; option <= 249; ++option) {
    records.push_back({option, true, std::string(kUnusedItem), 0, 0, 0});
  }
  return records;
}

}  // namespace

void AddFilterOptions(std::vector<FilterData>& records, const std::vector<std::string>& names) {
  for (std::size_t i = 0; i < kOptions; ++i) {
    records.push_back({kFirstOption + static_cast<std::int32_t>(i), true, OptionName(names, i)});
  }
}

void AddCondenserOptions(std::vector<CondenserData>& records,
                         const std::vector<std::string>& names) {
  for (std::size_t i = 0; i < kOptions; ++i) {
    records.push_back(
        {kFirstCondenserOption + static_cast<std::int32_t>(i), true, OptionName(names, i), ""});
  }
}

DatabaseData OrdinaryDatabase() {
  DatabaseData database;
  database.series = ListOf(kSeries);
  database.types = ListOf(kTypes);
  database.objectives = Objectives();
  std::int32_t code = 0;
  for (const CondenserRow& row : kCondensers) {
    database.condensers.push_back({++code, false, std::string(row.name), std::string(row.suits)});
  }
  AddCondenserOptions(database.condensers, {"Slit"});
  database.exciters = FixedFilters(kExciters);
  AddFilterOptions(database.exciters, {"387/11", "488/6"});
  database.dichroics = FixedFilters(kDichroics);
  AddFilterOptions(database.dichroics, {"DM 409"});
  database.barriers = FixedFilters(kBarriers);
  AddFilterOptions(database.barriers, {"Quad"});
  database.cubes = Cubes();
  return database;
}

}  // namespace mortane::controller
