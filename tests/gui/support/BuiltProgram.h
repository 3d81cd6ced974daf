// A built program on a display of its own, worked from outside.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "gui/support/Display.h"
#include "support/DeviceNamesLock.h"
#include "support/TempFolder.h"

namespace mortane::test {

// Whether it came about before the patience ended.
inline bool Await(const std::function<bool()>& happened, int patienceMs = kPatienceMs) {
  return QTest::qWaitFor(happened, patienceMs);
}

// The program at `path`, whose windows bear `title`.
class BuiltProgram : public testing::Test {
 protected:
  BuiltProgram(const char* path, const char* title) : path_(path), title_(title) {}
  // One display for all tests of a suite: to start one takes as long as to start the program.
  static void SetUpTestSuite() { display_ = std::make_unique<Display>(); }
  static void TearDownTestSuite() { display_.reset(); }
  void SetUp() override { ASSERT_GT(display_->Name().size(), 1) << "Xvfb did not start"; }
  ~BuiltProgram() override {
    program_.kill();
    program_.waitForFinished(kPatienceMs);
  }

  void Start(const QStringList& arguments, const std::string& bench = {}) {
    Start(program_, arguments, bench);
  }
  void Start(QProcess& program, const QStringList& arguments, const std::string& bench = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display_->Name());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("MORTANE_BENCH", QString::fromStdString(bench));
    // Where no session before has left the place of its window.
    environment.insert("XDG_CONFIG_HOME", QString::fromStdString(config_.Path("config")));
    environment.insert("LSAN_OPTIONS", "suppressions=" MORTANE_KNOWN_LEAKS ":print_suppressions=0");
    program.setProcessEnvironment(environment);
    EndWithThisProcess(program);
    program.start(path_, arguments);
    ASSERT_TRUE(program.waitForStarted(kPatienceMs));
  }
  QStringList Tool(const QStringList& arguments) { return display_->Tool(arguments); }
  QStringList Windows(const QString& title) {
    return Tool({"search", "--onlyvisible", "--name", "^" + title + "$"});
  }
  // Visible windows of the program once there are that many, the smallest first.
  QStringList AwaitWindows(qsizetype count) { return AwaitWindows(count, title_); }
  QStringList AwaitWindows(qsizetype count, const QString& title) {
    // A look takes three processes, which a program that is starting does without.
    constexpr int kBetweenLooksMs = 40;
    QStringList windows;
    Await([&] {
      windows = Windows(title);
      const bool isThere = windows.size() == count;
      if (!isThere) QTest::qWait(kBetweenLooksMs);
      return isThere;
    });
    EXPECT_EQ(windows.size(), count) << program_.readAllStandardError().toStdString();
    windows.resize(count);  // rather a wrong window than none
    std::sort(windows.begin(), windows.end(), [this](const QString& a, const QString& b) {
      return Area(a).width() < Area(b).width();
    });
    return windows;
  }
  // Where the window stands on the display.
  QRect Area(const QString& window) {
    QRect area;
    for (const QString& line : Tool({"getwindowgeometry", "--shell", window})) {
      const int value = line.section('=', 1).toInt();
      if (line.startsWith("X=")) area.moveLeft(value);
      if (line.startsWith("Y=")) area.moveTop(value);
      if (line.startsWith("WIDTH=")) area.setWidth(value);
      if (line.startsWith("HEIGHT=")) area.setHeight(value);
    }
    return area;
  }
  void Press(const QString& window, const QStringList& keys) {
    Tool(QStringList{"windowfocus", "--sync", window, "key"} + keys);
  }
  // Acts, and waits until an area of the display is no more as it was before.
  void AwaitChange(const QRect& area, const std::function<void()>& act) {
    const QByteArray before = display_->Pixels(area);
    ASSERT_FALSE(before.isEmpty()) << "no picture of the display";
    act();
    EXPECT_TRUE(Await([&] { return display_->Pixels(area) != before; })) << "no change in sight";
  }
  // A window that is still loading its pages drops what was typed meanwhile. Once it rests, it
  // sleeps, and nothing wakes it from one look to the next.
  void AwaitRest() {
    constexpr int kLooks = 5;
    QByteArray before;
    int same = 0;
    EXPECT_TRUE(Await([&] {
      const QByteArray now = Activity();
      same = now == before && now.contains("S (sleeping)") ? same + 1 : 0;
      before = now;
      return same == kLooks;
    })) << "the program does not come to rest";
  }
  // Whether the program's thread sleeps, and how often it has begun to.
  QByteArray Activity() {
    QFile status(QStringLiteral("/proc/%1/status").arg(program_.processId()));
    if (!status.open(QIODevice::ReadOnly)) return {};
    QByteArray lines;
    for (const QByteArray& line : status.readAll().split('\n')) {
      if (line.startsWith("State:") || line.contains("ctxt_switches")) lines += line;
    }
    return lines;
  }
  void ExpectGoodEnd() {
    EXPECT_TRUE(program_.waitForFinished(kPatienceMs));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    errors_ = program_.readAllStandardError();
    EXPECT_EQ(program_.exitCode(), 0) << errors_.toStdString();
  }

  QString path_;
  QString title_;
  TempFolder config_;
  DeviceNamesLock lock_;
  static inline std::unique_ptr<Display> display_;
  QProcess program_;
  QByteArray errors_;  // of a program that has ended well
};

}  // namespace mortane::test
