// A built program on a display of its own, worked from outside.
#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>
#include <algorithm>
#include <csignal>
#include <string>

#include "support/DeviceNamesLock.h"
#include "support/TempFolder.h"

namespace mortane::test {

using namespace Qt::StringLiterals;

inline constexpr int kPatienceMs = 20000;

// The process ends with this one, also when this one is killed: a program that lived on would hold
// its microscope against the tests that come later.
inline void EndWithThisProcess(QProcess& process) {
  process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

// A virtual display with nothing on it. The server chooses its number. It must not start afresh
// when its last client leaves, just as the program is connecting.
class Display {
 public:
  Display() {
    EndWithThisProcess(server_);
    server_.start(
        "Xvfb", {"-displayfd", "1", "-screen", "0", "1400x900x24", "-nolisten", "tcp", "-noreset"});
    if (server_.waitForReadyRead(kPatienceMs)) name_ = ":" + server_.readLine().trimmed();
  }
  ~Display() {
    server_.terminate();
    server_.waitForFinished(kPatienceMs);
  }
  const QString& Name() const { return name_; }

 private:
  QProcess server_;
  QString name_;
};

// The program at `path`, whose windows bear `title`.
class BuiltProgram : public testing::Test {
 protected:
  BuiltProgram(const char* path, const char* title) : path_(path), title_(title) {}
  void SetUp() override { ASSERT_GT(display_.Name().size(), 1) << "Xvfb did not start"; }
  ~BuiltProgram() override {
    program_.kill();
    program_.waitForFinished(kPatienceMs);
  }

  void Start(const QStringList& arguments, const std::string& bench = {}) {
    Start(program_, arguments, bench);
  }
  void Start(QProcess& program, const QStringList& arguments, const std::string& bench = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display_.Name());
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
  QStringList Tool(QStringList arguments) {
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display_.Name());
    tool.setProcessEnvironment(environment);
    tool.start("xdotool", arguments);
    EXPECT_TRUE(tool.waitForFinished(kPatienceMs));
    return QString::fromUtf8(tool.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
  }
  // Visible windows of the program once there are that many, the smallest first.
  QStringList AwaitWindows(qsizetype count) { return AwaitWindows(count, title_); }
  QStringList AwaitWindows(qsizetype count, const QString& title) {
    QDeadlineTimer patience(kPatienceMs);
    QStringList windows;
    while (!patience.hasExpired()) {
      windows = Tool({"search", "--onlyvisible", "--name", "^" + title + "$"});
      if (windows.size() == count) break;
      QThread::msleep(50);
    }
    EXPECT_EQ(windows.size(), count) << program_.readAllStandardError().toStdString();
    windows.resize(count);  // rather a wrong window than none
    std::sort(windows.begin(), windows.end(),
              [this](const QString& a, const QString& b) { return Width(a) < Width(b); });
    return windows;
  }
  int Width(const QString& window) {
    for (const QString& line : Tool({"getwindowgeometry", "--shell", window})) {
      if (line.startsWith("WIDTH=")) return line.mid(6).toInt();
    }
    return 0;
  }
  void Press(const QString& window, const QStringList& keys) {
    Tool(QStringList{"windowfocus", "--sync", window, "key"} + keys);
  }
  // A window that is still loading its pages drops what was typed meanwhile; once it rests it takes
  // no time of the processor.
  void AwaitRest() {
    QDeadlineTimer patience(kPatienceMs);
    for (int rested = 0; rested < 3 && !patience.hasExpired();) {
      const qint64 before = ProcessorTicks();
      QThread::msleep(100);
      rested = ProcessorTicks() - before <= 1 ? rested + 1 : 0;
    }
  }
  // Of the program so far, as user and as system.
  qint64 ProcessorTicks() {
    QFile statistics(u"/proc/%1/stat"_s.arg(program_.processId()));
    if (!statistics.open(QIODevice::ReadOnly)) return 0;
    const QByteArrayList fields = statistics.readAll().split(')').back().split(' ');
    constexpr qsizetype kUserTicks = 12;  // counted behind the program's name
    return fields.size() <= kUserTicks + 1
               ? 0
               : fields[kUserTicks].toLongLong() + fields[kUserTicks + 1].toLongLong();
  }
  void ExpectGoodEnd() {
    EXPECT_TRUE(program_.waitForFinished(kPatienceMs));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0) << program_.readAllStandardError().toStdString();
  }

  QString path_;
  QString title_;
  TempFolder config_;
  DeviceNamesLock lock_;
  Display display_;
  QProcess program_;
};

}  // namespace mortane::test
