// The steps that the wizard goes through.
#pragma once

#include "wizard/StepTable.h"

namespace mortane {

StepTable WizardSteps();

}  // namespace mortane
