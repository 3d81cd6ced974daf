#include "app/Program.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLocale>
#include <cstdlib>
#include <iostream>
#include <optional>

#include "app/BenchSession.h"
#include "app/ProgramForm.h"
#include "app/QtPrompts.h"
#include "app/WindowPlace.h"
#include "common/Failure.h"
#include "common/Numbers.h"
#include "hub/clsK70.h"
#include "platform/CommandLine.h"
#include "platform/Joystick.h"
#include "platform/Sleep.h"
#include "platform/SpecialFolder.h"
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

int ShowForm(QApplication& application, BenchSession& bench,
             const std::vector<std::string>& arguments, const ProgramKind& kind) {
  QApplication::setApplicationName(QLatin1String(kind.title));
  ApplyTheme(application);
  SetSystemNumberFormat(FormatOf(QLocale::system()));
  QtPrompts prompts(SleepMilliseconds);
  SystemJoystick joystick;
  clsK70& k70 = ProvideK70(bench.Library(), prompts);
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &application, [&bench] { bench.Keep(); });

  std::unique_ptr<ProgramForm> form =
      kind.makeForm({.k70 = k70,
                     .library = bench.Library(),
                     .prompts = prompts,
                     .joystick = joystick,
                     .arguments = arguments,
                     .placeFile = UsersPlaceFile(),
                     .applicationData = GetSpecialFolder(kApplicationDataFolder)});
  prompts.ShowProgressOn(form->Progress());
  form->Load();
  form->show();
  const int result = QApplication::exec();
  // Pages refer to the model to their end, and the model may have something to say at its own.
  form.reset();
  ReleaseK70();
  return result;
}

}  // namespace

int RunProgram(int argc, char** argv, const ProgramKind& kind) {
  // The toolkit takes the options that it knows out of argv.
  const std::vector<std::string> arguments = GetCommandLineArray(argc, argv);
  std::optional<BenchSession> bench;
  try {
    bench.emplace(BenchPath());
  } catch (const Failure& failure) {
    std::cerr << kind.name << ": " << failure.Description() << '\n';
    return kWrongBench;
  }
  QApplication application(argc, argv);
  return ShowForm(application, *bench, arguments, kind);
}

}  // namespace mortane
