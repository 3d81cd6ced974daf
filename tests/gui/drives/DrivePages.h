// The pages of the drives on a microscope whose drives stand somewhere.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <string>
#include <vector>

#include "drawings/MoveCross.h"
#include "drives/CaptionedFrame.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "drives/PositionTableCtl.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageRig.h"
#include "hub/clsK70.h"
#include "widgets/OptionGroup.h"
#include "widgets/TextField.h"

namespace mortane::test {

using Lines = std::vector<std::string>;

// What follows a call that failed in the journal.
inline constexpr const char* kFailed = " ! LIB:80004005";

inline constexpr const char* kWrongValue = "Please Input right value.";
inline constexpr const char* kMoveStop = "Move Stop?";
inline constexpr const char* kTeach =
    "Please move Focus Position with Handle.\r\nIf Focus Position is OK, Click OK Button";
inline constexpr const char* kTeachCaption = "Move Focus Postion";

inline ControlFocusDriveCtl* MakeControlFocusDriveCtl(clsK70& k70) {
  return new ControlFocusDriveCtl(k70.CZDrive, [&k70](bool follows) {
    k70.ILOther.Status(accessory::kZFocusDrive, follows ? kInterlockOn : kInterlockOff);
  });
}

inline ControlXYStageCtl* MakeControlXYStageCtl(clsK70& k70) {
  return new ControlXYStageCtl(k70.CXYDrive);
}

// Z at 400, X at -50, Y at 60, the nosepiece at address 3.
inline Bench Standing(Bench bench) {
  Instrument& instrument = bench.instruments.back();
  instrument.zDrive.position = 400;
  instrument.xyDrive.positionX = -50;
  instrument.xyDrive.positionY = 60;
  instrument.Accessory(accessory::kNosepiece).value = 3;
  return bench;
}

// What both pages have in common. Rows count from 0.
template <typename PageKind>
class DrivePageRig : public PageRig {
 public:
  DrivePageRig(Bench bench, PageKind* (*make)(clsK70&))
      : PageRig(Standing(std::move(bench)), Link::Reported), page(Show(make(k70()))) {
    Forget();
  }

  std::string text(const TextField* field) { return field->text().toStdString(); }
  void Forget() {
    journal.Clear();
    prompts.ClearRecords();
  }
  // The next box "Move Stop?".
  void ExpectWatch(int milliseconds, Answer answer, std::function<void()> during = {}) {
    prompts.ExpectTimedBox(milliseconds, kMoveStop, box::kOk, "", answer, std::move(during));
  }
  // The simulated time goes on while a box stands.
  std::function<void()> Pass(std::int64_t milliseconds) {
    return [this, milliseconds] { simulated.clock().Advance(milliseconds); };
  }

  PageKind& page;
};

// The focus drive page with its teaching section on show.
class FocusRig : public DrivePageRig<ControlFocusDriveCtl> {
 public:
  explicit FocusRig(Bench bench) : DrivePageRig(std::move(bench), MakeControlFocusDriveCtl) {
    page.FrameZNose->show();
    QApplication::processEvents();
  }
  explicit FocusRig(std::string_view bench = "Harbour") : FocusRig(benches::Named(bench)) {}

  clsControlZDrive& drive() { return k70().CZDrive; }
  TextField& field(int row) { return *page.TextNosepiece[static_cast<std::size_t>(row)]; }
  std::string shown(int row) { return text(&field(row)); }
  // Clicks the option and answers the box.
  void Select(int row, Answer answer = Answer::Cancel) {
    prompts.ExpectBox(kTeach, box::kOkCancel, answer, kTeachCaption);
    ClickButton(*page.optNosepiece->button(row));
    if (answer == Answer::Cancel) Forget();
  }
};

class StageRig : public DrivePageRig<ControlXYStageCtl> {
 public:
  explicit StageRig(Bench bench) : DrivePageRig(std::move(bench), MakeControlXYStageCtl) {}
  explicit StageRig(std::string_view bench = "Harbour") : StageRig(benches::Named(bench)) {}

  clsControlXYDrive& stage() { return k70().CXYDrive; }
  TextField& fieldX(int row) { return *page.TextNosepieceX[static_cast<std::size_t>(row)]; }
  TextField& fieldY(int row) { return *page.TextNosepieceY[static_cast<std::size_t>(row)]; }
  std::string shownX(int row) { return text(&fieldX(row)); }
  std::string shownY(int row) { return text(&fieldY(row)); }
  void Select(int row) {
    ClickButton(*page.optNosepiece->button(row));
    Forget();
  }
};

}  // namespace mortane::test
