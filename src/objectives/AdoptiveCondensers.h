// The condensers that the user can choose for an optional objective.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/ConnectedMicroscope.h"

namespace mortane {

struct AdoptiveCondensers {
  // The code that an objective stores is the record's index in the controller's list, from 1.
  struct Choice {
    std::int32_t code;
    std::string name;
  };

  std::vector<Choice> choices;
  std::int32_t recordCount = 0;
};

bool HasLiveCondenser(const ConnectedMicroscope& microscope);

// The fixed records before the first blank or optional one, in the controller's order. After a
// failure those read so far.
AdoptiveCondensers ReadAdoptiveCondensers(const ConnectedMicroscope& microscope);

}  // namespace mortane
