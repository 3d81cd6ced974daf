// From the start of a process to its first painted window: the full window and the wizard with the
// simulated microscope loaded, beside a window of the toolkit with one label and an empty one.
//
// The program starts itself anew for each measurement, as one of the children.
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>

#include "app/ApplyTheme.h"
#include "app/GetAppIcon.h"
#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "app/QtPrompts.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "hub/BenchSession.h"
#include "hub/clsK70.h"
#include "platform/CommandLine.h"
#include "platform/Joystick.h"
#include "platform/NamedMutex.h"
#include "platform/Sleep.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/WizardSteps.h"

namespace mortane {
namespace {

constexpr char kFullChild[] = "--full";
constexpr char kWizardChild[] = "--wizard";
constexpr char kLabelChild[] = "--label";
constexpr char kBareChild[] = "--bare";
constexpr int kPainted = 0;

// Ends the process, without the clean-up that no user waits for, when a painting has been
// followed by an idle moment and `isReady` holds.
class EndWhenPainted : public QObject {
 public:
  EndWhenPainted(QWidget& window, std::function<bool()> isReady)
      : window_(window), isReady_(std::move(isReady)) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool painted =
        event->type() == QEvent::Paint && widget != nullptr && widget->window() == &window_;
    if (painted && isReady_()) {
      QTimer::singleShot(0, this, [] { std::_Exit(kPainted); });
    }
    return false;
  }

 private:
  QWidget& window_;
  std::function<bool()> isReady_;
};

// Nobody is there to press the box of the simulation mode.
class AnsweringPrompts : public QtPrompts {
 public:
  using QtPrompts::QtPrompts;
  Answer MsgBox(const std::string&, int, const std::string&) override { return Answer::Ok; }
};

// A program's window on the simulated microscope, ready when its first page is filled.
template <typename Form, auto Table>
int RunFormChild(int argc, char** argv, const char* title) {
  NamedMutex::SetScope("startup-" + std::to_string(getpid()));  // whoever has the microscope
  BenchSession bench("");
  QApplication application(argc, argv);
  QApplication::setApplicationName(title);
  ApplyTheme(application);
  AnsweringPrompts prompts(SleepMilliseconds);
  SystemJoystick joystick;
  Form form({.k70 = ProvideK70(bench.Library(), prompts),
             .library = bench.Library(),
             .prompts = prompts,
             .joystick = joystick,
             .arguments = {argv[0], "/SIM"}},
            Table());
  prompts.ShowProgressOn(form.Progress());
  form.Load();
  const QPlainTextEdit* report = form.SystemSettingsCtl1->SystemNameCtl1->TextAccessories;
  EndWhenPainted watcher(form, [report] { return !report->document()->isEmpty(); });
  form.show();
  return QApplication::exec() == 0 ? 1 : 2;
}

int ShowToolkitWindow(QMainWindow& window) {
  window.resize(1152, 740);
  EndWhenPainted watcher(window, [] { return true; });
  window.show();
  return QApplication::exec() == 0 ? 1 : 2;
}

// The floor of any window that shows text.
int RunLabelChild(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.setCentralWidget(new QLabel("Mortane"));
  return ShowToolkitWindow(window);
}

int RunBareChild(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  return ShowToolkitWindow(window);
}

// Seconds until the child has painted; it ends at once then.
double TimeChild(const std::string& program, const char* kind) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    execl(program.c_str(), program.c_str(), kind, static_cast<char*>(nullptr));
    std::_Exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  return WIFEXITED(status) && WEXITSTATUS(status) == kPainted ? elapsed.count() : -1;
}

void Start(benchmark::State& state, const std::string& program, const char* kind) {
  for ([[maybe_unused]] auto _ : state) {
    const double seconds = TimeChild(program, kind);
    if (seconds < 0) return state.SkipWithError("the child did not paint");
    state.SetIterationTime(seconds);
  }
}

void Register(const char* name, const std::string& program, const char* kind) {
  benchmark::RegisterBenchmark(name, Start, program, kind)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(20)
      ->Repetitions(5)
      ->ReportAggregatesOnly();
}

}  // namespace
}  // namespace mortane

int main(int argc, char** argv) {
  using namespace mortane;
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const std::string kind = argc > 1 ? argv[1] : "";
  if (kind == kFullChild) return RunFormChild<MortaneMainForm, MainPages>(argc, argv, kMainTitle);
  if (kind == kWizardChild)
    return RunFormChild<SadrelMainForm, WizardSteps>(argc, argv, kWizardTitle);
  if (kind == kLabelChild) return RunLabelChild(argc, argv);
  if (kind == kBareChild) return RunBareChild(argc, argv);
  const std::string program = GetCommandLineArray(argc, argv)[0];
  Register("FullWindow", program, kFullChild);
  Register("Wizard", program, kWizardChild);
  Register("OneLabelWindow", program, kLabelChild);
  Register("BareWindow", program, kBareChild);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
