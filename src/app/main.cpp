// The program with the full window.
#include "app/GetAppIcon.h"
#include "app/MortaneMainForm.h"
#include "app/Program.h"
#include "app/QtPrompts.h"

int main(int argc, char** argv) {
  using namespace mortane;
  const auto makeForm = [](const FormServices& services, QtPrompts& prompts) {
    auto form = std::make_unique<MortaneMainForm>(services);
    prompts.ShowProgressOn(form->Progress());
    form->Load();
    return form;
  };
  return RunProgram(argc, argv, {kMainTitle, makeForm});
}
