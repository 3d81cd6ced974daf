// The program with the wizard.
#include "app/Program.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/WizardSteps.h"

int main(int argc, char** argv) {
  using namespace mortane;
  return RunProgram(argc, argv,
                    {"sadrel", kWizardTitle, "Sets up a motorised microscope step by step.",
                     [](const FormServices& services) {
                       return std::make_unique<SadrelMainForm>(services, WizardSteps());
                     }});
}
