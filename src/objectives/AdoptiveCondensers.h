// The condensers that can be named as suiting an objective.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/ConnectedMicroscope.h"

namespace mortane {

struct AdoptiveCondensers {
  // A record's place in the controller's list is the code that an objective stores.
  struct Choice {
    std::int32_t code;
    std::string name;
  };

  std::vector<Choice> choices;
  std::int32_t recordCount = 0;
};

bool HasLiveCondenser(const ConnectedMicroscope& microscope);

// The fixed records before the first blank or optional one, in the controller's order. After a
// failure those that did answer.
AdoptiveCondensers ReadAdoptiveCondensers(const ConnectedMicroscope& microscope);

}  // namespace mortane
