// The three units of turrets as one kind of thing, for the suite that they share.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "model/TurretModel.h"
#include "support/UnitDrill.h"

namespace mortane::test {

// What differs between the units, and how to reach each. All data are those of the bench Harbour.
struct TurretUnit {
  std::string name;
  std::int32_t accessory;
  controller::TurretPlaces Instrument::*places;
  std::string device;  // its member of the microscope
  UnitOperations operations;
  std::function<std::int32_t(const TurretModel&, std::int32_t)> code;
  std::function<void(TurretModel&, std::int32_t, std::int32_t)> setCode;
  std::function<std::int32_t&(TurretModel&)> count;
  std::int32_t highestCode;
  std::string failure;     // opens the line of a failure
  std::string difference;  // opens the line of a difference
  std::string item;        // opens the line of an item that could not be written
  std::int32_t otherCode;  // stands nowhere on the turret
  std::string otherName;
  // The count after a read that succeeded and after one that failed, when it was 77 before.
  std::int32_t countAfterRead;
  std::int32_t countAfterFailure;

  std::vector<std::int32_t> Codes(const TurretModel& units) const {
    std::vector<std::int32_t> codes;
    for (std::int32_t address = 1; address <= 10; ++address) codes.push_back(code(units, address));
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
TurretUnit MakeTurretUnit(Unit TurretModel::*unit) {
  TurretUnit turret;
  turret.operations = OperationsOf(unit);
  turret.code = [unit](const TurretModel& units, std::int32_t address) {
    return (units.*unit).code(address);
  };
  turret.setCode = [unit](TurretModel& units, std::int32_t address, std::int32_t value) {
    (units.*unit).code(address, value);
  };
  turret.count = [unit](TurretModel& units) -> std::int32_t& { return (units.*unit).Count; };
  return turret;
}

std::vector<TurretUnit> TurretUnits();

}  // namespace mortane::test
