#include "Walk.h"

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <thread>

#include "Acts.h"
#include "ModelRanges.h"
#include "ModelWatch.h"
#include "Monkey.h"
#include "SecondCopy.h"
#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "controller/Faults.h"
#include "controller/Journal.h"
#include "controller/Latency.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/WizardSteps.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

constexpr std::size_t kMostLines = 10;
constexpr int kMostStarts = 20;
// Shorter than the walk's events are long, so that no second click is taken for a double one.
constexpr int kDoubleClickMs = 1;

// One in so many events begins or ends it, one in so many calls has it.
constexpr std::uint32_t kFaultEvery = 40;
constexpr std::uint32_t kFaultEndsEvery = 10;
constexpr std::uint32_t kSecondCopyEvery = 60;
constexpr std::uint32_t kClickEvery = 150;
constexpr std::uint32_t kDelayEvery = 1000;
// A fault strikes one of so many calls to come.
constexpr std::uint32_t kFaultWithin = 80;

// Any other box would be one that the program does not have.
constexpr std::string_view kBoxes[] = {
    "Can't Load Xml",
    "XML File Write Error",
    "XML Tactor DataFile Write Error",
    "Cannot write ",
    "The manual is not installed.",
    "Please Input right value.",
    "SystemName = ",  // of fifteen characters, which a file may not bring
    "This position is related with Observation Method.",
    "Exit Setup?",
    "Save Settings?",
    "Other Application has already used this Microscope.",
    "Device Connect Error.",
    "Not Available",
    "MoveStart Error!!",
    "Move Stop?",
    "Please move Focus Position",
    "Upper Limit lower than Lower Limit.",
    "Focus Knob Setting is changed to",
    "XYstage Knob Setting is changed to",
};

// What the standard library says is no report of a failure.
constexpr std::string_view kOwnFaults[] = {"std::", "basic_string", "vector::", "map::", "bad_"};

bool IsOwnFault(const std::string& text) {
  return std::any_of(std::begin(kOwnFaults), std::end(kOwnFaults),
                     [&](std::string_view words) { return text.find(words) != std::string::npos; });
}

template <typename Openings>
bool BeginsWithAny(const std::string& text, const Openings& openings) {
  return std::any_of(std::begin(openings), std::end(openings),
                     [&](std::string_view opening) { return text.starts_with(opening); });
}

// Those of the tree that are no configuration of this walk, in the same order everywhere.
std::vector<std::string> ForeignFiles(const TempFolder& folder) {
  std::vector<std::string> files{folder.Write("bad.xml", "<Setup><FILTER><ITEM"),
                                 folder.Path("none.xml")};
  for (const char* place : {MORTANE_GOLDEN_FILES, MORTANE_FUZZ_CORPUS}) {
    for (const auto& entry : std::filesystem::directory_iterator(place)) {
      files.push_back(entry.path().string());
    }
  }
  std::sort(files.begin() + 2, files.end());
  return files;
}

class Walker {
 public:
  explicit Walker(const WalkPlan& plan)
      : plan_(plan),
        random_(plan.seed),
        simulated_(controller::benches::Named(plan.bench)),
        prompts_(random_,
                 {folder_.Path("one.xml"), folder_.Path("two.xml"), folder_.Path("missing/3.xml")},
                 ForeignFiles(folder_)),
        second_(simulated_, random_) {
    prompts_.mayEnd = true;
  }
  ~Walker() { End(); }
  Walker(const Walker&) = delete;
  Walker& operator=(const Walker&) = delete;

  std::vector<std::string> Run() {
    for (event_ = 0; event_ < plan_.events && lines_.size() < kMostLines; ++event_) {
      if (!form_ && !Start()) break;
      Event();
    }
    return lines_;
  }

 private:
  // A microscope of the bench's list is chosen without a question.
  std::vector<std::string> Arguments() {
    const std::vector<controller::Instrument>& instruments = simulated_.bench().instruments;
    return {"mortane", instruments.size() == 1 ? "/SIM" : instruments.back().name};
  }

  // The window may ask for a microscope at its start, and ends when it gets none.
  bool Start() {
    for (int i = 0; i < kMostStarts; ++i) {
      Open();
      if (QTest::qWaitFor([this] { return form_->IsStarted(); }) && form_->isVisible()) {
        model_.emplace(*form_, GetK70());
        given_.emplace(*form_);
        return true;
      }
      End();
    }
    Fail("the window does not start");
    return false;
  }

  void Open() {
    faults_.Clear();
    second_.Leave();
    FormServices services{.k70 = ProvideK70(library_, prompts_),
                          .library = library_,
                          .prompts = prompts_,
                          .joystick = joystick_,
                          .arguments = Arguments(),
                          .placeFile = folder_.Path("place"),
                          .applicationData = folder_.Path("data"),
                          .backupFolder = folder_.Path("backups"),
                          .unsentFolder = folder_.Path("unsent")};
    if (plan_.window == WalkedWindow::Main) {
      form_ = std::make_unique<MortaneMainForm>(services, MainPages());
    } else {
      form_ = std::make_unique<SadrelMainForm>(services, WizardSteps());
    }
    monkey_.emplace(*form_, random_);
    form_->Load();
    form_->show();
  }

  void End() {
    given_.reset();
    model_.reset();
    monkey_.reset();
    form_.reset();
    ReleaseK70();
  }

  bool OneIn(std::uint32_t count) { return random_() % count == 0; }

  void Trouble() {
    if (OneIn(kFaultEndsEvery)) faults_.Clear();
    if (OneIn(kFaultEvery)) faults_.FailCall(1 + random_() % kFaultWithin);
    if (OneIn(kSecondCopyEvery)) {
      const std::string wrong = second_.Act(GetK70().lConnectDevice);
      if (!wrong.empty()) Fail(wrong);
      if (model_->HasChanged()) Fail("the second copy changed the model");
    }
  }

  void BeforeCall() {
    if (!given_) return;  // before the walk
    if (OneIn(kClickEvery)) monkey_->PostClick();
    if (OneIn(kDelayEvery)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }

  void Event() {
    Trouble();
    model_->NoteChoices();
    prompts_.boxes.clear();
    prompts_.agreedToEnd = false;
    prompts_.askedToOpen = false;
    journal_.Clear();
    given_->Clear();
    monkey_->Act();
    CheckEffects();
    CheckBoxes();
    CheckWindow();
  }

  // Of another microscope or from a file that another one wrote.
  bool HasForeignValues() const { return plan_.bench == "Attic" || prompts_.openedForeign; }

  void CheckEffects() {
    Allowed allowed = given_->Allows();
    // The wizard's option for a file, which is no button that tells its clicks.
    if (prompts_.askedToOpen && monkey_->WorkedNames().contains(u"optSetupMode_2"_s)) {
      allowed = {MayChange::Everything, MayCall::Reads};
    }
    // Kept: a page that is loaded stores what it makes of values that it cannot show.
    if (HasForeignValues() && LoadsPage(monkey_->WorkedNames())) {
      // A second click may have left the page again.
      const bool known = !monkey_->HasPosted();
      allowed.change =
          std::max(allowed.change, known ? MayChange::ShownPage : MayChange::Everything);
    }
    for (const std::string& change :
         model_->TakeUnexplained(monkey_->Worked(), monkey_->WorkedNames(), allowed.change)) {
      Fail("CHANGE " + change);
    }
    const std::string call = UnexpectedCall(journal_, allowed.calls, monkey_->WorkedNames());
    if (!call.empty()) Fail("CALL " + call);
    if (HasForeignValues()) return;
    const std::string setting = OutOfRange(GetK70());
    if (!setting.empty()) Fail("OUT OF RANGE " + setting);
  }

  void CheckBoxes() {
    for (const std::string& text : prompts_.boxes) {
      const bool reported = faults_.Hits() > 0 || HasForeignValues();
      if (BeginsWithAny(text, kBoxes) || (reported && !IsOwnFault(text))) continue;
      Fail("BOX " + text);
    }
  }

  void CheckWindow() {
    if (prompts_.hourglasses != 0) Fail("the pointer is an hourglass");
    prompts_.hourglasses = 0;
    if (form_->isVisible()) return;
    const bool sent =
        plan_.window == WalkedWindow::Wizard && given_->Allows().calls == MayCall::Everything;
    if (!prompts_.agreedToEnd && !sent) Fail("the window has closed: " + Boxes());
    End();
  }

  std::string Boxes() const {
    std::string texts;
    for (const std::string& text : prompts_.boxes) texts += "[" + text + "]";
    return texts;
  }

  void Fail(const std::string& what) {
    lines_.push_back("event " + std::to_string(event_) + ", " +
                     (monkey_ ? monkey_->LastAct() : std::string("start")) +
                     (given_ ? ", " + given_->Text().toStdString() : std::string()) + ": " + what);
  }

  WalkPlan plan_;
  std::mt19937 random_;
  TempFolder folder_;
  controller::SimulatedLibrary simulated_;
  controller::FaultPlan faults_;
  controller::FaultyLibrary faulty_{simulated_, faults_};
  controller::LatencyLibrary slow_{faulty_, [this] { BeforeCall(); }};
  controller::Journal journal_;
  controller::JournalLibrary library_{slow_, journal_};
  MonkeyPrompts prompts_;
  ScriptedJoystick joystick_;
  SecondCopy second_;
  std::unique_ptr<ProgramForm> form_;
  std::optional<Monkey> monkey_;
  std::optional<ModelWatch> model_;
  std::optional<ActsGiven> given_;
  int event_ = 0;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> Walk(const WalkPlan& plan) {
  QApplication::setDoubleClickInterval(kDoubleClickMs);
  return Walker(plan).Run();
}

}  // namespace mortane::test
