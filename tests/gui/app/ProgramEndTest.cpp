// The beginning and the end of a program, in its own process: what it sets up, in which order
// things go, and the session's end.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTimer>

#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "app/Program.h"
#include "common/Failure.h"
#include "common/Numbers.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "hub/clsK70.h"
#include "support/TempFolder.h"
#include "widgets/ProgressLine.h"

namespace mortane::test {
namespace {

// A window whose page looks at the model to the end.
class LastLook : public ProgramForm {
 public:
  explicit LastLook(const FormServices& services)
      : ProgramForm(services, "Mortane"), k70_(services.k70) {}
  void Load() override {
    QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
  }
  ~LastLook() override {
    std::fprintf(stderr, "%s\n", &GetK70() == &k70_ ? "the same model" : "another model");
  }

 protected:
  void OnConnected(Outcome) override {}
  void ShowPending(const std::vector<ItemChange>&) override {}
  QString Chapter() const override { return {}; }

 private:
  clsK70& k70_;
};

constexpr int kAsked = 3;

// RunProgram makes an application, of which a process has one; so a child runs it. A box, which
// nobody would answer, ends it.
template <typename Form>
int RunInChild() {
  const TempFolder folder;
  controller::WriteBenchFile(folder.Path("bench.xml"), controller::benches::Named("Harbour"));
  qputenv("MORTANE_BENCH", folder.Path("bench.xml").c_str());
  qputenv("XDG_CONFIG_HOME", folder.Path("config").c_str());
  char name[] = "mortane";
  char* arguments[] = {name, nullptr};
  qApp->~QApplication();  // it stands on the stack of main, to which this process never returns
  return RunProgram(1, arguments, {"mortane", "Mortane", "", [](const FormServices& services) {
                                     auto form = std::make_unique<Form>(services);
                                     auto* watch = new QTimer(form.get());
                                     QObject::connect(watch, &QTimer::timeout, watch, [] {
                                       if (QApplication::activeModalWidget()) std::_Exit(kAsked);
                                     });
                                     watch->start(0);
                                     return form;
                                   }});
}

TEST(ProgramEndDeathTest, DestroysTheWindowBeforeTheModel) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto run = [] {
    const int result = RunInChild<LastLook>();
    try {
      GetK70();
      std::fprintf(stderr, "a model is left\n");
    } catch (const Failure&) {
      std::fprintf(stderr, "no model is left\n");
    }
    std::_Exit(result);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "the same model\nno model is left");
}

// A window that tells what the program has set up for it.
class Witness : public LastLook {
 public:
  explicit Witness(const FormServices& services) : LastLook(services) {
    SetContent(new QWidget(this));
  }
  void Load() override {
    const QLocale system = QLocale::system();
    const NumberFormat& format = SystemNumberFormat();
    const bool isSystems = format.decimalPoint == system.decimalPoint().toStdString() &&
                           format.groupSeparator == system.groupSeparator().toStdString();
    prompts().ShowProgress(1, 2);
    std::fprintf(stderr, "%s, %s, progress %g\n", qUtf8Printable(qApp->applicationName()),
                 isSystems ? "the system's numbers" : "other numbers", Progress()->fraction());
    LastLook::Load();
  }
};

TEST(ProgramStartDeathTest, GivesTheWindowItsTitleTheSystemsNumbersAndItsProgress) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(std::_Exit(RunInChild<Witness>()), testing::ExitedWithCode(0),
              "Mortane, the system's numbers, progress 0.5");
}

// The window of a session that ends as soon as the microscope is connected.
class LoggedOut : public MortaneMainForm {
 public:
  explicit LoggedOut(const FormServices& services) : MortaneMainForm(services, MainPages()) {}

 protected:
  void OnConnected(Outcome received) override {
    MortaneMainForm::OnConnected(received);
    QTimer::singleShot(0, this, [this] {
      QEvent end(QEvent::Quit);  // what the session's manager brings about
      QCoreApplication::sendEvent(qApp, &end);
      std::fprintf(stderr, isVisible() ? "still there\n" : "closed\n");
    });
  }
};

TEST(ProgramEndDeathTest, BySessionEndClosesTheWindowAndAsksNothing) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(std::_Exit(RunInChild<LoggedOut>()), testing::ExitedWithCode(0), "closed");
}

}  // namespace
}  // namespace mortane::test
