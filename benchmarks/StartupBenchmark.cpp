// From the start of a process to its first painted window: the full window with the simulated
// microscope loaded, beside a window of the toolkit with one label and an empty one.
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
#include <cstring>
#include <functional>
#include <string>

#include "app/BenchSession.h"
#include "app/MortaneMainForm.h"
#include "app/QtPrompts.h"
#include "app/SystemNameCtl.h"
#include "app/SystemSettingsCtl.h"
#include "hub/clsK70.h"
#include "platform/CommandLine.h"
#include "platform/Sleep.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr char kFullChild[] = "--full";
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

int RunFullChild(int argc, char** argv) {
  const std::vector<std::string> arguments{argv[0], "/SIM"};
  BenchSession bench("");
  QApplication application(argc, argv);
  QApplication::setApplicationName("Mortane");
  ApplyTheme(application);
  AnsweringPrompts prompts(SleepMilliseconds);
  clsK70& k70 = ProvideK70(bench.Library(), prompts);
  MortaneMainForm form({k70, bench.Library(), prompts, arguments});
  prompts.ShowProgressOn(form.Progress());
  form.Load();
  const auto* report = form.SystemSettingsCtl1->SystemNameCtl1->TextAccessories;
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
  if (argc > 1 && std::strcmp(argv[1], kFullChild) == 0) return RunFullChild(argc, argv);
  if (argc > 1 && std::strcmp(argv[1], kLabelChild) == 0) return RunLabelChild(argc, argv);
  if (argc > 1 && std::strcmp(argv[1], kBareChild) == 0) return RunBareChild(argc, argv);
  const std::string program = GetCommandLineArray(argc, argv)[0];
  Register("FullWindow", program, kFullChild);
  Register("OneLabelWindow", program, kLabelChild);
  Register("BareWindow", program, kBareChild);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
