// What the tests of the nosepiece's page share.
#pragma once

#include "drawings/TurretDrawing.h"
#include "gui/objectives/ObjectivePages.h"

namespace mortane::test {

// The awkward instrument tells of its bad records when it is received from.
struct AtticRig : PageRig {
  AtticRig() : PageRig("Attic", Link::None) {
    prompts.AcceptAnyBox();
    k70().Connect(1);
    k70().Receive();
    prompts.ClearRecords();
  }
};

inline TurretDrawing& TurretOf(PageRig& rig) {
  return rig.Find<TurretDrawing>("turret");
}

}  // namespace mortane::test
