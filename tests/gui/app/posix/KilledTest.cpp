// What a process that is killed in the middle of a random walk leaves of its unsent edits.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QRadioButton>
#include <QTest>
#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <optional>

#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "common/Failure.h"
#include "gui/walk/Monkey.h"
#include "support/Rig.h"
#include "support/Sample.h"
#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"

namespace mortane::test {
namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;
using std::chrono::steady_clock;

// Between two writings; a thousand in the program.
constexpr milliseconds kInterval{10};
// The toolkit's timers keep their time to a twentieth of it, in whole milliseconds.
constexpr milliseconds kLate{2};

using State = std::size_t;  // a number made of the text of the model's document

State StateOfText(const std::string& text) {
  return std::hash<std::string>()(text);
}

State StateNow() {
  DomDocument document;
  GetK70().WriteSections(document);
  return StateOfText(document.ToText());
}

nanoseconds Now() {
  return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch());
}

// One act of the walk, with the round of the event loop that follows it.
struct Turn {
  nanoseconds begin;
  nanoseconds end;
  State state;
  bool isPending;
};

struct Writing {
  nanoseconds begin;
  State state;
};

// In memory that both processes have; an entry is complete once it is counted.
struct Log {
  static constexpr int kMost = 2000;
  std::atomic<int> turns;
  std::atomic<int> writings;
  // The turn that has not ended changed the model, and the program has looked at that: where the
  // last edit was taken back, the file is gone.
  std::atomic<bool> mayHaveUndone;
  std::array<Turn, kMost> turn;
  std::array<Writing, kMost> writing;
};

class SharedLog {
 public:
  SharedLog()
      : memory_(::mmap(nullptr, sizeof(Log), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1,
                       0)) {
    if (memory_ == MAP_FAILED) throw std::runtime_error("mmap");
    new (memory_) Log{};
  }
  ~SharedLog() { ::munmap(memory_, sizeof(Log)); }
  SharedLog(const SharedLog&) = delete;
  SharedLog& operator=(const SharedLog&) = delete;

  Log* operator->() const { return static_cast<Log*>(memory_); }

 private:
  void* memory_;
};

// Notes what the form is about to write, and looks at what a turn changed before it ends.
class TimersSeen : public QObject {
 public:
  TimersSeen(const QWidget& form, SharedLog& log)
      : unsent_(*form.findChild<QTimer*>("UnsentTimer")), log_(log) {
    unsent_.installEventFilter(this);
    form.findChild<QTimer*>("PendingTimer")->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* timer, QEvent* event) override {
    if (event->type() == QEvent::Timer) timer == &unsent_ ? NoteWriting() : NoteLook();
    return false;
  }

 private:
  void NoteWriting() {
    if (log_->writings == Log::kMost) return;
    log_->writing[static_cast<std::size_t>(log_->writings.load())] = {Now(), StateNow()};
    ++log_->writings;
  }

  void NoteLook() {
    const int turns = log_->turns;
    if (turns > 0 && log_->turn[static_cast<std::size_t>(turns - 1)].state != StateNow()) {
      log_->mayHaveUndone = true;
    }
  }

  QTimer& unsent_;
  SharedLog& log_;
};

// A window that is not shown yet on a simulated instrument, and what is left of copies of it that
// were killed.
class KilledProcess : public testing::Test {
 protected:
  KilledProcess() {
    form = std::make_unique<MortaneMainForm>(FormServices{.k70 = ProvideK70(rig.library, prompts),
                                                          .library = rig.library,
                                                          .prompts = prompts,
                                                          .joystick = joystick,
                                                          .arguments = {"mortane"},
                                                          .backupFolder = folder.Path("backups"),
                                                          .unsentFolder = folder.Path("unsent")},
                                             MainPages());
    form->Load();
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(form.get(), &activation);
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
    form->findChild<QTimer*>("UnsentTimer")->setInterval(kInterval);
  }
  ~KilledProcess() override {
    form.reset();
    ReleaseK70();
  }

  // Until it is killed. It begins on one of the pages with much to edit.
  void Walk(unsigned seed) {
    random.seed(seed);
    form->show();
    form->optMenu[1 + seed % (kPageCount - 1)]->setChecked(true);
    TimersSeen seen(*form, log);
    const auto* pending = form->findChild<QAbstractButton*>("ButtonPending");
    Monkey monkey(*form->FrameControl, random);  // seldom a command, which may leave nothing unsent
    while (log->turns < Log::kMost) {
      const nanoseconds begin = Now();
      monkey.Act();
      log->turn[static_cast<std::size_t>(log->turns.load())] = {begin, Now(), StateNow(),
                                                                !pending->isHidden()};
      ++log->turns;
      log->mayHaveUndone = false;
    }
  }

  // Some turns, and some time into the next or into a writing.
  void AwaitSome(std::mt19937& kills) const {
    const int turns = 5 + static_cast<int>(kills() % 15);
    while (log->turns < turns) ::usleep(100);
    const int writings = log->writings;
    const bool untilWriting = kills() % 2 == 0;
    for (int i = 0; untilWriting && log->writings == writings && i < 200; ++i) ::usleep(100);
    ::usleep(static_cast<useconds_t>(kills() % 4'000));
  }

  // The file that is left.
  [[nodiscard]] std::optional<std::string> Left() const {
    std::optional<std::string> text;
    if (!std::filesystem::exists(folder.Path("unsent"))) return text;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path("unsent"))) {
      if (entry.path().filename() == "Unsent.xml") text = TempFolder::Read(entry.path().string());
    }
    return text;
  }

  // The writing that made the file: the last one, or the one before it where the last was not
  // ended.
  [[nodiscard]] const Writing* Ended(State state) const {
    for (int back = 1; back <= 2 && back <= log->writings; ++back) {
      const Writing& writing = log->writing[static_cast<std::size_t>(log->writings - back)];
      if (writing.state == state) return &writing;
    }
    return nullptr;
  }

  // Whether an edit, which is not in the file, was made longer before the last turn than an
  // interval.
  [[nodiscard]] bool HasLost(const Writing* ended) const {
    if (ended == nullptr && log->mayHaveUndone) return false;
    const auto turns = static_cast<std::size_t>(log->turns.load());
    std::size_t first = turns;  // with such an edit
    for (std::size_t i = turns; i-- > 0 && log->turn[i].isPending;) {
      const Turn& turn = log->turn[i];
      if (ended != nullptr && (turn.end < ended->begin || turn.state == ended->state)) break;
      first = i;
    }
    // An edit at the end of a turn is seen in the next.
    if (first + 1 >= turns) return false;
    const nanoseconds latest = log->turn[first + 1].end + kInterval + kLate;
    return log->turn[turns - 1].begin > latest;
  }

  SharedLog log;
  TempFolder folder;
  std::mt19937 random;
  RigLibrary rig{benches::Named("Harbour")};
  MonkeyPrompts prompts{random, {folder.Path("one.xml"), folder.Path("two.xml")}};
  ScriptedJoystick joystick;
  std::unique_ptr<MortaneMainForm> form;
};

TEST_F(KilledProcess, LosesTheEditsOfItsLastMomentAndLeavesNoHalfFile) {
  std::mt19937 kills(1);
  int files = 0;
  const auto count = static_cast<unsigned>(CountOf(12, 100));
  for (unsigned kill = 0; kill < count; ++kill) {
    std::filesystem::remove_all(folder.Path("unsent"));
    log->turns = 0;
    log->writings = 0;
    log->mayHaveUndone = false;
    ChildProcess walker([&](const ChildProcess::Side&) {
      Walk(kill);
      return 0;
    });
    AwaitSome(kills);
    ::kill(walker.Id(), SIGKILL);
    EXPECT_EQ(walker.Wait(), -SIGKILL);
    const std::optional<std::string> left = Left();
    const Writing* ended = nullptr;
    if (left) {
      ++files;
      ended = Ended(StateOfText(*left));
      EXPECT_NE(ended, nullptr) << "walk " << kill << ": no state of the model";
    }
    EXPECT_FALSE(HasLost(ended)) << "walk " << kill << ", " << log->turns << " turns, "
                                 << log->writings << " writings";
  }
  EXPECT_GT(files, static_cast<int>(count) / 4) << "killed too early to tell";
}

}  // namespace
}  // namespace mortane::test
