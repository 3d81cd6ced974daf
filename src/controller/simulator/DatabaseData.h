// The accessory database of one simulated controller, as plain data.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace mortane::controller {

// The first code of the user's records, in the list of condensers and in all others.
inline constexpr std::int32_t kFirstCondenserOption = 141;
inline constexpr std::int32_t kFirstOption = 241;

// An exciter, a dichroic or a barrier. Only an option can be written.
struct FilterData {
  std::int32_t code = 0;
  bool option = false;
  std::string name;

  bool operator==(const FilterData&) const = default;
};

// `adoptive` is the condenser digit of an option. `answer`, when set, is what the controller
// answers to a query of the option's code text, whatever the record holds.
struct ObjectiveData {
  std::int32_t code = 0;
  bool option = false;
  std::string name;
  std::int32_t series = 0;
  std::int32_t type = 0;
  double magnification = 0;
  double workingDistance = 0;  // millimetres
  double numericalAperture = 0;
  std::int32_t adoptive = 0;
  std::optional<std::string> answer;

  bool operator==(const ObjectiveData&) const = default;
};

// `suits` lists the cassette addresses that the condenser fits: one character each, "1" or "0".
struct CondenserData {
  std::int32_t code = 0;
  bool option = false;
  std::string name;
  std::string suits;

  bool operator==(const CondenserData&) const = default;
};

struct CubeData {
  std::int32_t code = 0;
  bool option = false;
  std::string name;
  std::int32_t exciter = 0;
  std::int32_t dichroic = 0;
  std::int32_t barrier = 0;

  bool operator==(const CubeData&) const = default;
};

// The entry of a list of series or types; its code is its place, from 1.
struct ListedName {
  std::string name;

  bool operator==(const ListedName&) const = default;
};

struct DatabaseData {
  std::vector<ListedName> series;
  std::vector<ListedName> types;
  std::vector<ObjectiveData> objectives;
  std::vector<CondenserData> condensers;
  std::vector<FilterData> exciters;
  std::vector<FilterData> dichroics;
  std::vector<FilterData> barriers;
  std::vector<CubeData> cubes;

  bool operator==(const DatabaseData&) const = default;
};

}  // namespace mortane::controller
