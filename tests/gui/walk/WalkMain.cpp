// One random walk: walk WINDOW BENCH SEED EVENTS, with the window "main" or "wizard". What did not
// hold goes to standard output. Without arguments the names of the benches.
#include <QApplication>
#include <cstdlib>
#include <iostream>
#include <string>

#include "Walk.h"
#include "app/ApplyTheme.h"
#include "controller/simulator/Benches.h"
#include "platform/NamedMutex.h"
#include "support/TempFolder.h"
#include "support/UniqueName.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUse = 2;

}  // namespace

int main(int argc, char** argv) {
  if (argc == 1) {
    for (const std::string& name : mortane::controller::benches::Names()) std::cout << name << "\n";
    return 0;
  }
  if (argc != 5) {
    std::cerr << "walk WINDOW BENCH SEED EVENTS\n";
    return kWrongUse;
  }
  const mortane::test::TempFolder settings;
  qputenv("XDG_CONFIG_HOME", settings.Path("config").c_str());
  qputenv("XDG_DATA_HOME", settings.Path("data").c_str());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const mortane::test::UniqueName deviceNames;
  mortane::NamedMutex::SetScope(deviceNames.Text() + "-");
  QApplication application(argc, argv);
  QFont::insertSubstitution(u"monospace"_s, u"DejaVu Sans Mono"_s);
  QApplication::setApplicationName(u"Mortane"_s);
  QApplication::setQuitOnLastWindowClosed(false);
  mortane::ApplyTheme(application, mortane::Scheme::Light);

  using mortane::test::WalkedWindow;
  mortane::test::WalkPlan plan;
  plan.window = std::string(argv[1]) == "wizard" ? WalkedWindow::Wizard : WalkedWindow::Main;
  plan.bench = argv[2];
  plan.seed = static_cast<std::uint32_t>(std::strtoul(argv[3], nullptr, 10));
  plan.events = std::atoi(argv[4]);
  const std::vector<std::string> lines = mortane::test::Walk(plan);
  for (const std::string& line : lines) std::cout << line << "\n";
  return lines.empty() ? 0 : kFailed;
}
