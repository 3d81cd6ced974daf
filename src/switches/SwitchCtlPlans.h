// Where the switches stand on the drawings of body and hand controller.
#pragma once

#include "drawings/SwitchDrawing.h"

namespace mortane {

// Marks by the index of kBodyRows. The body is seen from three sides.
SwitchPlan BodyPlan();

// Marks by the index of a page of kTactorPages; both pages have the same.
SwitchPlan HandControllerPlan();

}  // namespace mortane
