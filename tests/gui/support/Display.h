// A virtual display of its own for programs that a test works from outside.
#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <QFile>
#include <QProcess>
#include <QRect>
#include <QtEndian>
#include <array>
#include <csignal>
#include <cstdio>

#include "support/TempFolder.h"

namespace mortane::test {

inline constexpr int kPatienceMs = 20000;

// The process ends with this one, also when this one is killed: a program that lived on would hold
// its microscope against the tests that come later.
inline void EndWithThisProcess(QProcess& process) {
  process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

// The server chooses its number. It must not start afresh when its last client leaves, just as the
// program is connecting. What it shows stands in a file.
class Display {
 public:
  Display() {
    EndWithThisProcess(server_);
    server_.start("Xvfb",
                  {"-displayfd", "1", "-screen", "0", "1400x900x24", "-fbdir",
                   QString::fromStdString(folder_.Path("")), "-nolisten", "tcp", "-noreset"});
    if (server_.waitForReadyRead(kPatienceMs)) name_ = ":" + server_.readLine().trimmed();
  }
  ~Display() {
    server_.terminate();
    server_.waitForFinished(kPatienceMs);
  }
  const QString& Name() const { return name_; }

  // The lines that xdotool answers; no argument has a quotation mark. A fork of this process would
  // copy the sanitizer's page tables, which takes longer than xdotool; popen starts it without.
  QStringList Tool(const QStringList& arguments) const {
    const QString command = QStringLiteral("DISPLAY=%1 timeout %2 xdotool '%3'")
                                .arg(name_)
                                .arg(kPatienceMs / 1000)
                                .arg(arguments.join("' '"));
    std::FILE* const pipe = ::popen(command.toUtf8().constData(), "r");
    if (pipe == nullptr) return {};
    QByteArray lines;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe)) {
      lines.append(part.data(), static_cast<qsizetype>(size));
    }
    constexpr int kTimeoutEnded = 124;
    EXPECT_NE(WEXITSTATUS(::pclose(pipe)), kTimeoutEnded) << command.toStdString();
    return QString::fromUtf8(lines).split('\n', Qt::SkipEmptyParts);
  }

  // The pixels of an area, to be compared; empty when there are none.
  QByteArray Pixels(const QRect& area) const {
    QFile screen(QString::fromStdString(folder_.Path("Xvfb_screen0")));
    if (!screen.open(QIODevice::ReadOnly)) return {};
    // The header of a window dump: numbers of 32 bits, the most significant byte first.
    std::array<quint32, 25> header{};
    if (screen.read(reinterpret_cast<char*>(header.data()), sizeof header) != sizeof header) {
      return {};
    }
    const auto number = [&](std::size_t i) { return qint64{qFromBigEndian(header[i])}; };
    constexpr qint64 kColorBytes = 12;
    const qint64 start = number(0) + number(19) * kColorBytes;
    const qint64 pixelBytes = number(11) / 8;
    const qint64 lineBytes = number(12);
    QByteArray pixels;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      screen.seek(start + y * lineBytes + area.left() * pixelBytes);
      pixels += screen.read(area.width() * pixelBytes);
    }
    return pixels;
  }

 private:
  TempFolder folder_;
  QProcess server_;
  QString name_;
};

}  // namespace mortane::test
