// The program with the full window.
#include "app/GetAppIcon.h"
#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "app/Program.h"

int main(int argc, char** argv) {
  using namespace mortane;
  return RunProgram(argc, argv,
                    {"mortane", kMainTitle, "Sets up a motorised microscope on pages.",
                     [](const FormServices& services) {
                       return std::make_unique<MortaneMainForm>(services, MainPages());
                     }});
}
