// A virtual display of its own for programs that a test works from outside.
#pragma once

#include <sys/prctl.h>

#include <QFile>
#include <QProcess>
#include <QRect>
#include <QtEndian>
#include <array>
#include <csignal>

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
