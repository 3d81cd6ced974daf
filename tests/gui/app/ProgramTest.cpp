// The built program itself on a display of its own, worked from outside.
#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>

#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"
#include "support/DeviceNamesLock.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

constexpr int kPatienceMs = 20000;

// A virtual display with nothing on it. The server chooses its number. It must not start afresh
// when its last client leaves, just as the program is connecting.
class Display {
 public:
  Display() {
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

class Program : public testing::Test {
 protected:
  void SetUp() override { ASSERT_GT(display_.Name().size(), 1) << "Xvfb did not start"; }
  ~Program() override {
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
    program.start(MORTANE_PROGRAM, arguments);
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
  QStringList AwaitWindows(qsizetype count) {
    QDeadlineTimer patience(kPatienceMs);
    QStringList windows;
    while (!patience.hasExpired()) {
      windows = Tool({"search", "--onlyvisible", "--name", "^Mortane$"});
      if (windows.size() == count) break;
      QThread::msleep(50);
    }
    EXPECT_EQ(windows.size(), count) << program_.readAllStandardError().toStdString();
    windows.resize(count);
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
    QFile statistics(QStringLiteral("/proc/%1/stat").arg(program_.processId()));
    if (!statistics.open(QIODevice::ReadOnly)) return 0;
    const QByteArrayList fields = statistics.readAll().split(')').back().split(' ');
    constexpr qsizetype kUserTicks = 12;  // counted behind the program's name
    return fields.size() <= kUserTicks + 1
               ? 0
               : fields[kUserTicks].toLongLong() + fields[kUserTicks + 1].toLongLong();
  }
  // Leaves by the menu and answers the question.
  void Exit() {
    const QString window = AwaitWindows(1).front();
    AwaitRest();
    Press(window, {"alt+f", "x"});
    Press(AwaitWindows(2).front(), {"Return"});
    EXPECT_TRUE(program_.waitForFinished(kPatienceMs));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0);
  }

  TempFolder config_;
  DeviceNamesLock lock_;
  Display display_;
  QProcess program_;
};

TEST_F(Program, StartsOnTheSimulatorAndEndsByItsMenu) {
  Start({"/sim"});
  Press(AwaitWindows(2).front(), {"Return"});
  Exit();
}

TEST_F(Program, EndsWithoutAMicroscope) {
  Start({});
  Press(AwaitWindows(2).front(), {"Return"});
  EXPECT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 0);
}

TEST_F(Program, RefusesASecondCopyOnOneDeviceUntilTheFirstIsGoneHoweverItWent) {
  Start({"/SIM"});
  Press(AwaitWindows(2).front(), {"Return"});
  AwaitWindows(1);
  QProcess second;
  Start(second, {"/SIM"});
  Press(AwaitWindows(3).front(), {"Return"});
  EXPECT_TRUE(second.waitForFinished(kPatienceMs)) << "refused";
  EXPECT_EQ(second.exitCode(), 0);
  program_.kill();
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  Start({"/SIM"});
  Press(AwaitWindows(2).front(), {"Return"});
  Exit();
}

TEST_F(Program, KeepsInItsBenchFileWhatWasSent) {
  const TempFolder folder;
  const std::string bench = folder.Path("bench.xml");
  controller::WriteBenchFile(bench, controller::benches::Named("Harbour"));
  Start({}, bench);
  const QString window = AwaitWindows(1).front();
  AwaitRest();
  Tool({"windowfocus", "--sync", window});
  // The page button, the name field, its new text.
  Tool({"mousemove", "--window", window, "52", "110", "click", "1"});
  Tool({"key", "Tab", "ctrl+a"});
  Tool({"type", "Bay 4"});
  Tool({"key", "Return", "alt+c"});
  Tool({"key", "n"});
  QDeadlineTimer patience(kPatienceMs);
  const auto name = [&] { return controller::ReadBenchFile(bench).instruments[1].name; };
  while (name() != "Bay 4" && !patience.hasExpired()) QThread::msleep(50);
  EXPECT_EQ(name(), "Bay 4");
  Exit();
}

TEST_F(Program, RefusesAWrongBenchFileWithOneLineAndCodeTwo) {
  const TempFolder folder;
  for (const char* content : {"", "no bench", "<Other/>"}) {
    const std::string bench = folder.Write("bench.xml", content);
    Start({"/SIM"}, bench);
    ASSERT_TRUE(program_.waitForFinished(kPatienceMs)) << content;
    EXPECT_EQ(program_.exitCode(), 2) << content;
    const QByteArray errors = program_.readAllStandardError();
    EXPECT_EQ(errors.count('\n'), 1) << errors.toStdString();
    EXPECT_TRUE(errors.contains("bench.xml")) << errors.toStdString();
  }
  Start({"/SIM"}, folder.Path("missing.xml"));
  ASSERT_TRUE(program_.waitForFinished(kPatienceMs));
  EXPECT_EQ(program_.exitCode(), 2);
}

}  // namespace
}  // namespace mortane::test
