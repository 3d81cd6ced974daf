// The program with the full window.
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLocale>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/BenchSession.h"
#include "app/GetAppIcon.h"
#include "app/MortaneMainForm.h"
#include "app/QtPrompts.h"
#include "common/Failure.h"
#include "common/Numbers.h"
#include "hub/clsK70.h"
#include "platform/CommandLine.h"
#include "platform/Sleep.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kWrongBench = 2;

std::string BenchPath() {
  const char* path = std::getenv("MORTANE_BENCH");
  return path == nullptr ? std::string() : std::string(path);
}

// What the user types and reads follows the operating system.
NumberFormat FormatOf(const QLocale& locale) {
  return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

int ShowMainForm(QApplication& application, BenchSession& bench,
                 const std::vector<std::string>& arguments) {
  QApplication::setApplicationName(QLatin1String(kMainTitle));
  ApplyTheme(application);
  SetSystemNumberFormat(FormatOf(QLocale::system()));
  QtPrompts prompts(SleepMilliseconds);
  ProvideK70(bench.Library(), prompts);
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &application, [&bench] { bench.Keep(); });

  MortaneMainForm form({bench.Library(), prompts, arguments});
  prompts.ShowProgressOn(form.Progress());
  form.Load();
  form.show();
  const int result = QApplication::exec();
  ReleaseK70();  // while there still is a toolkit for what it might have to say
  return result;
}

}  // namespace
}  // namespace mortane

int main(int argc, char** argv) {
  using namespace mortane;
  // The toolkit takes the options that it knows out of argv.
  const std::vector<std::string> arguments = GetCommandLineArray(argc, argv);
  std::optional<BenchSession> bench;
  try {
    bench.emplace(BenchPath());
  } catch (const Failure& failure) {
    std::cerr << "mortane: " << failure.Description() << '\n';
    return kWrongBench;
  }
  QApplication application(argc, argv);
  return ShowMainForm(application, *bench, arguments);
}
