#include "model/TurretUnit.h"

namespace mortane::test {
namespace {

TurretUnit Nosepiece() {
  TurretUnit turret = MakeTurretUnit(&TurretModel::curNosepiece);
  turret.name = "Nosepiece";
  turret.accessory = accessory::kNosepiece;
  turret.places = &Instrument::nosepiece;
  turret.device = "NosepieceDevice";
  turret.highestCode = 249;
  turret.failure = "Nosepiece (";
  turret.difference = turret.item = "Nosepiece[";
  turret.otherCode = 5;
  turret.otherName = "Plan A 20x";
  turret.countAfterRead = 3;
  turret.countAfterFailure = 77;
  return turret;
}

TurretUnit FilterCubes() {
  TurretUnit turret = MakeTurretUnit(&TurretModel::curFilter);
  turret.name = "FilterCubes";
  turret.accessory = accessory::kFilterCube;
  turret.places = &Instrument::filterCubes;
  turret.device = "FilterCubeDevice";
  turret.highestCode = 249;
  turret.failure = "Filter Cube (";
  turret.difference = turret.item = "Filter Cube[";
  turret.otherCode = 9;
  turret.otherName = "Red";
  // Only the microscope object tells this unit its count.
  turret.countAfterRead = turret.countAfterFailure = 77;
  return turret;
}

TurretUnit Condensers() {
  TurretUnit turret = MakeTurretUnit(&TurretModel::curCondenser);
  turret.name = "Condensers";
  turret.accessory = accessory::kCondenser;
  turret.places = &Instrument::condensers;
  turret.device = "CondenserDevice";
  turret.highestCode = 149;
  turret.failure = "Condenser Casset (";
  turret.difference = "Condenser[";
  turret.item = "Condenser Casset[";
  turret.otherCode = 9;
  turret.otherName = "Ph 3";
  turret.countAfterRead = 3;
  turret.countAfterFailure = 0;
  return turret;
}

}  // namespace

std::vector<TurretUnit> TurretUnits() {
  return {Nosepiece(), FilterCubes(), Condensers()};
}

}  // namespace mortane::test
