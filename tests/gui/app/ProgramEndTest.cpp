// The end of a program, in its own process: the window goes before the model that its pages use.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>

#include "app/Program.h"
#include "app/ProgramForm.h"
#include "common/Failure.h"
#include "hub/clsK70.h"

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
  void OnConnected() override {}

 private:
  clsK70& k70_;
};

// RunProgram makes an application, of which a process has one; so a child runs it.
TEST(ProgramEndDeathTest, DestroysTheWindowBeforeTheModel) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto run = [] {
    char name[] = "mortane";
    char simulator[] = "/SIM";
    char* arguments[] = {name, simulator, nullptr};
    qApp->~QApplication();  // it stands on the stack of main, to which this process never returns
    const int result = RunProgram(2, arguments, {"Mortane", [](const FormServices& services) {
                                                   return std::make_unique<LastLook>(services);
                                                 }});
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

}  // namespace
}  // namespace mortane::test
