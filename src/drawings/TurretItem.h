// What stands at one address of a turret, as drawings show it.
#pragma once

#include <QString>
#include <optional>

namespace mortane {

enum class PlaceKind {
  Objectives,  // round places with the magnification inside a ring of its colour
  Cubes,       // upright tiles with the name and a small cube
  Condensers,  // the same with a small condenser
};

// `label` stands on the place; an empty one makes it a free place. `details` follow the address in
// the accessible name.
struct TurretItem {
  QString label;
  QString details;
  std::optional<double> magnification;
  int address = 0;  // 0: places are numbered from 1

  bool operator==(const TurretItem&) const = default;
};

}  // namespace mortane
