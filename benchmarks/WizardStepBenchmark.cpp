// From the click on Next to the painted step, for each step of the wizard on the simulated
// microscope.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <chrono>

#include "SilentPrompts.h"
#include "app/ApplyTheme.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"
#include "platform/Joystick.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/WizardSteps.h"

namespace mortane {
namespace {

// Nobody is there to press the box of the simulation mode.
class AgreeingPrompts : public SilentPrompts {
 public:
  Answer MsgBox(const std::string&, int, const std::string&) override { return Answer::Ok; }
};

// A started wizard with all steps on.
struct Rig {
  Rig() {
    form.Load();
    form.show();
    while (!form.IsStarted()) QApplication::processEvents();
    for (int item = 0; item < kEndingStep - kFirstItem; ++item) form.OnItemChanged(item, true);
  }
  ~Rig() { form.Unload(); }
  Rig(const Rig&) = delete;
  Rig& operator=(const Rig&) = delete;

  controller::SimulatedLibrary library{controller::benches::Named("Quay")};
  AgreeingPrompts prompts;
  SystemJoystick joystick;
  SadrelMainForm form{{.k70 = ProvideK70(library, prompts),
                       .library = library,
                       .prompts = prompts,
                       .joystick = joystick,
                       .arguments = {"sadrel", "/SIM"}},
                      WizardSteps()};
};

void GoTo(Rig& rig, int step) {
  rig.form.optMenu[static_cast<std::size_t>(step)]->setChecked(true);
  QApplication::processEvents();
}

void Step(benchmark::State& state, Rig& rig, int step) {
  for ([[maybe_unused]] auto _ : state) {
    GoTo(rig, step - 1);
    const auto start = std::chrono::steady_clock::now();
    rig.form.ButtonNext->click();
    QApplication::processEvents();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(elapsed.count());
  }
}

}  // namespace
}  // namespace mortane

int main(int argc, char** argv) {
  using namespace mortane;
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  ApplyTheme(application);
  {
    Rig rig;
    const StepTable steps = WizardSteps();
    for (int step = 1; step < kStepCount; ++step) {
      const std::string name = steps[static_cast<std::size_t>(step)].name.toStdString();
      benchmark::RegisterBenchmark(
          name.c_str(), [&rig, step](benchmark::State& state) { Step(state, rig, step); })
          ->UseManualTime()
          ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
  }
  ReleaseK70();
  return 0;
}
