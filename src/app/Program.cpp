#include "app/Program.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLocale>
#include <optional>
#include <utility>

#include "app/ApplyTheme.h"
#include "app/Manual.h"
#include "app/ProgramForm.h"
#include "app/QtPrompts.h"
#include "app/RecentFiles.h"
#include "app/StartOptions.h"
#include "app/UnsentEdits.h"
#include "app/WindowPlace.h"
#include "common/Failure.h"
#include "common/Numbers.h"
#include "hub/SessionLibrary.h"
#include "hub/clsK70.h"
#include "platform/CommandLine.h"
#include "platform/Joystick.h"
#include "platform/Sleep.h"
#include "platform/SpecialFolder.h"
#include "platform/StartNotice.h"
#include "record/Backups.h"

namespace mortane {
namespace {

constexpr int kCannotStart = 2;

// What the user types and reads follows the operating system.
NumberFormat FormatOf(const QLocale& locale) {
  return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

// What the library has to say in the middle of a call is shown when the program is at rest: a box
// would run its own loop of events.
class Notices {
 public:
  explicit Notices(std::string program) : program_(std::move(program)) {}

  void Add(const std::string& text) { texts_.push_back(text); }
  void Show() {
    for (const std::string& text : std::exchange(texts_, {})) ShowStartNotice(program_, text);
  }

 private:
  std::string program_;
  std::vector<std::string> texts_;
};

LibraryWish WishOf(const StartOptions& options, const ProgramKind& kind, Notices& notices) {
  LibraryWish wish = WishOfEnvironment();
  if (!options.journal.empty()) wish.journal = options.journal;
  wish.program = VersionText(kind.name);
  wish.tell = [&notices](const std::string& text) { notices.Add(text); };
  return wish;
}

int ShowForm(QApplication& application, SessionLibrary& session, Notices& notices,
             const std::vector<std::string>& arguments, const ProgramKind& kind) {
  QApplication::setApplicationName(QLatin1String(kind.title));
  // The desktop finds the entry of the program by this name, and its icon by the entry.
  QApplication::setDesktopFileName(QLatin1String(kind.name));
  ApplyTheme(application);
  SetSystemNumberFormat(FormatOf(QLocale::system()));
  QtPrompts prompts(SleepMilliseconds, RecentFiles(UsersPlaceFile(), UsersDocuments()));
  if (!session.Complaint().empty()) {
    prompts.MsgBox(session.Complaint(), box::kOk + box::kExclamation);
  }
  SystemJoystick joystick;
  clsK70& k70 = ProvideK70(session.Library(), prompts);
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &application, [&session, &notices] {
                     session.Keep();
                     notices.Show();
                   });

  std::unique_ptr<ProgramForm> form =
      kind.makeForm({.k70 = k70,
                     .library = session.Library(),
                     .prompts = prompts,
                     .joystick = joystick,
                     .arguments = arguments,
                     .placeFile = UsersPlaceFile(),
                     .applicationData = GetSpecialFolder(kApplicationDataFolder),
                     .backupFolder = Backups::DefaultFolder(),
                     .unsentFolder = UnsentEdits::DefaultFolder(),
                     .manualFolder = ManualFolder()});
  prompts.ShowProgressOn(form->Progress());
  form->Load();
  form->show();
  const int result = QApplication::exec();
  // The pages refer to the model, and the model reports through the prompts what fails as it ends.
  form.reset();
  ReleaseK70();
  return result;
}

int Tell(const ProgramKind& kind, const std::string& answer) {
  return ShowStartAnswer(kind.title, answer) ? 0 : kCannotStart;
}

}  // namespace

int RunProgram(int argc, char** argv, const ProgramKind& kind) {
  // The toolkit takes the options that it knows out of argv.
  StartOptions options;
  Notices notices(kind.name);
  std::optional<SessionLibrary> session;
  try {
    options = ReadStartOptions(GetCommandLineArray(argc, argv));
    if (options.help) return Tell(kind, HelpText(kind.name, kind.description));
    if (options.version) return Tell(kind, VersionText(kind.name));
    session.emplace(WishOf(options, kind, notices));
  } catch (const Failure& failure) {
    ShowStartNotice(kind.name, failure.Description());
    return kCannotStart;
  }
  QApplication application(argc, argv);
  notices.Show();
  const int result = ShowForm(application, *session, notices, options.arguments, kind);
  // The end of a session that is replayed tells the calls that were not made.
  session.reset();
  notices.Show();
  return result;
}

}  // namespace mortane
