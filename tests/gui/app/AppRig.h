// The main window on a simulated instrument, and helpers that work it as a person does.
#pragma once

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "support/Rig.h"
#include "support/ScriptedJoystick.h"
#include "widgets/Page.h"

namespace mortane::test {

inline constexpr char kExitQuestion[] = "Exit Setup?\r\nPush OK to Exit.";
inline constexpr char kMainCaption[] = "Mortane";

// The simulated microscope and one real one for each name.
inline Bench Microscopes(std::initializer_list<const char*> names) {
  Bench bench = benches::Named("Quay");
  for (const char* name : names) {
    bench.instruments.push_back(benches::InstrumentNamed("Harbour"));
    bench.instruments.back().name = name;
  }
  return bench;
}

// A page that only tells when it is called.
class FakePage : public Page {
 public:
  FakePage(std::string name, std::vector<std::string>& calls, QWidget* parent)
      : Page(parent), name_(std::move(name)), calls_(calls) {}

  void LoadData() override {
    calls_.push_back(name_ + ".LoadData");
    if (onLoad) onLoad();
  }
  void SaveData() override { calls_.push_back(name_ + ".SaveData"); }

  std::function<void()> onLoad;

 protected:
  std::string name_;
  std::vector<std::string>& calls_;
};

// The page that also keeps positions and has something to do after a Send.
class FakeControlPage : public FakePage {
 public:
  using FakePage::FakePage;
  void SetNosePostiton() override { calls_.push_back(name_ + ".SetNosePostiton"); }
  void SendData() override { calls_.push_back(name_ + ".SendData"); }
};

// Six fakes, named 0 to 5; `enabled` are the answers of their rules.
class FakePages {
 public:
  PageTable Table() {
    PageTable table = MainPages();
    for (std::size_t i = 0; i < kPageCount; ++i) {
      table[i].make = [this, i](MortaneMainForm& form, const FormServices&) -> Page* {
        const std::string name = std::to_string(i);
        if (i != kPageCount - 1) return pages[i] = new FakePage(name, calls, form.FrameControl);
        return pages[i] = new FakeControlPage(name, calls, form.FrameControl);
      };
      table[i].isEnabled = [this, i](const clsK70&) { return enabled[i]; };
    }
    return table;
  }

  std::array<bool, kPageCount> enabled{true, true, true, true, true, true};
  std::array<FakePage*, kPageCount> pages{};
  std::vector<std::string> calls;
};

// Lines "0.operation" to "5.operation".
inline std::vector<std::string> OfAllPages(const std::string& operation) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < kPageCount; ++i) {
    lines.push_back(std::to_string(i) + "." + operation);
  }
  return lines;
}

// The window and everything under it. Boxes and file dialogs are scripted, the other dialogs
// are the real ones.
template <typename Form = MortaneMainForm, auto OwnTable = MainPages>
class BasicAppRig : public RigLibrary {
 public:
  using Table = decltype(OwnTable());

  // With the window's own pages, or those of a table of its kind.
  explicit BasicAppRig(Bench bench, std::vector<std::string> arguments = {},
                       const Table& pages = OwnTable())
      : RigLibrary(std::move(bench)) {
    clsK70& k70 = ProvideK70(library, prompts);
    arguments.insert(arguments.begin(), "mortane");
    form = std::make_unique<Form>(
        FormServices{k70, library, prompts, joystick, std::move(arguments)}, pages);
  }
  ~BasicAppRig() {
    form.reset();
    ReleaseK70();
  }

  // Loads and shows the window, and waits until the start path has come to its end.
  void Start() {
    form->Load();
    form->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
    prompts.ClearRecords();
    journal.Clear();
  }

  template <typename Control>
  Control& Find(const char* name) {
    auto* control = form->template findChild<Control*>(QLatin1String(name));
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *control;
  }

  // What a close box or the system menu does; true when the window has closed.
  bool RequestClose() {
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(form.get(), &event);  // sending it would make it the program's own
    return event.isAccepted();
  }

  // The instrument that a bench of one microscope is about.
  Instrument& instrument() { return simulated.bench().instruments.back(); }

  // Calls of the log that begin with the given opening.
  int CountLog(std::string_view opening) const {
    int count = 0;
    for (const std::string& line : prompts.Log()) count += line.starts_with(opening) ? 1 : 0;
    return count;
  }

  ScriptedJoystick joystick;
  std::unique_ptr<Form> form;
};
using AppRig = BasicAppRig<>;

// Works the next dialog of a kind while a modal call stands, and fails when none comes.
template <typename Dialog>
class WhenShown {
 public:
  explicit WhenShown(std::function<void(Dialog&)> act) : act_(std::move(act)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
      auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer_.stop();
      seen_ = true;
      act_(*dialog);
    });
    timer_.start(0);
  }
  ~WhenShown() { EXPECT_TRUE(seen_) << "the dialog never came"; }
  WhenShown(const WhenShown&) = delete;
  WhenShown& operator=(const WhenShown&) = delete;

 private:
  QTimer timer_;
  std::function<void(Dialog&)> act_;
  bool seen_ = false;
};

}  // namespace mortane::test
