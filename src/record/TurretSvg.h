// A turret from above as an SVG element: what stands at each of its addresses.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace mortane {

// Objectives stand in round places with the ring of their magnification, cubes and condensers in
// square ones.
enum class TurretKindDrawn { Objectives, Tiles };

struct TurretPlace {
  std::string mark;     // empty: a free place
  std::string details;  // for who asks or cannot see
  std::optional<double> magnification;
};

// Address 1 is at the top, the others follow clockwise; `name` is told to who cannot see. Readable
// without colours. At most ten places are drawn.
std::string TurretSvg(TurretKindDrawn kind, const std::string& name,
                      const std::vector<TurretPlace>& places);

// The ring of a magnification as "#RRGGBB"; 100 and more are white.
std::string RingColor(double magnification);

}  // namespace mortane
