// The three units of turrets as one kind of thing, for the suite that they share.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/UnitDrill.h"

namespace mortane::test {

// What differs between the units, and how to reach each. All data are those of the bench Harbour.
struct TurretUnit {
  std::string name;
  std::int32_t accessory;
  controller::TurretPlaces Instrument::*places;
  std::string device;  // its member of the microscope
  UnitOperations operations;
  std::function<std::int32_t(const clsK70&, std::int32_t)> code;
  std::function<void(clsK70&, std::int32_t, std::int32_t)> setCode;
  std::function<std::int32_t&(clsK70&)> count;
  std::int32_t highestCode;
  std::string failure;       // opens the line of a failure
  std::string difference;    // opens the line of a difference
  std::string item;          // opens the line of an item that could not be written
  std::string countFailure;  // the line of a count that a Receive could not read
  std::int32_t otherCode;    // stands nowhere on the turret
  std::string otherName;
  // What a read that finds no failure and one that fails make of a count of 77.
  std::int32_t countAfterRead;
  std::int32_t countAfterFailure;

  std::vector<std::int32_t> Codes(const clsK70& k70) const {
    std::vector<std::int32_t> codes;
    for (std::int32_t address = 1; address <= 10; ++address) codes.push_back(code(k70, address));
    return codes;
  }
  // The call that writes an address's code, as the journal has it.
  std::string Write(std::int32_t address, std::int32_t written) const {
    return device + ".Positions(" + std::to_string(address) + ").Code = " + std::to_string(written);
  }
};

inline void PrintTo(const TurretUnit& turret, std::ostream* stream) {
  *stream << turret.name;
}

template <typename Unit>
TurretUnit MakeTurretUnit(Unit clsK70::*unit) {
  TurretUnit turret;
  turret.operations = OperationsOf(unit);
  turret.code = [unit](const clsK70& k70, std::int32_t address) {
    return (k70.*unit).code(address);
  };
  turret.setCode = [unit](clsK70& k70, std::int32_t address, std::int32_t value) {
    (k70.*unit).code(address, value);
  };
  turret.count = [unit](clsK70& k70) -> std::int32_t& { return (k70.*unit).Count; };
  return turret;
}

std::vector<TurretUnit> TurretUnits();

}  // namespace mortane::test
