// The pages of the drives on a microscope whose drives stand somewhere.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <string>
#include <type_traits>
#include <vector>

#include "drawings/MoveCross.h"
#include "drives/CaptionedFrame.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "drives/PositionTableCtl.h"
#include "gui/drives/DrivePageUnits.h"
#include "gui/support/PageActs.h"
#include "support/Rows.h"
#include "widgets/OptionGroup.h"
#include "widgets/TextField.h"

namespace mortane::test {

// What follows a call that failed in the journal.
inline constexpr const char* kFailed = " ! LIB:80004005";

inline constexpr const char* kWrongValue = "Please Input right value.";
inline constexpr const char* kMoveStop = "Move Stop?";
inline constexpr const char* kTeach =
    "Please move Focus Position with Handle.\r\nIf Focus Position is OK, Click OK Button";
inline constexpr const char* kTeachCaption = "Move Focus Postion";

inline ControlFocusDriveCtl* MakeControlFocusDriveCtl(DrivePageUnits& k70) {
  return new ControlFocusDriveCtl(k70.CZDrive, [&k70](bool follows) {
    k70.ILOther.Status(accessory::kZFocusDrive, follows ? kInterlockOn : kInterlockOff);
  });
}

inline ControlXYStageCtl* MakeControlXYStageCtl(DrivePageUnits& k70) {
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

// An axis of a drive: its member in the controller, and its operations as the boxes call them.
struct DriveAxisRow {
  std::string member;
  std::string read;
  std::string move;
  std::int32_t at;  // where it stands

  std::string Read(std::int32_t steps) const { return member + " -> " + std::to_string(steps); }
  std::string Write(std::int32_t steps) const { return member + " = " + std::to_string(steps); }
};

// What both pages have in common. Rows count from 0.
template <typename PageKind>
class DrivePageRig : public PageRig {
 public:
  struct StepRow {
    Control<MoveButton> PageKind::*button;
    std::int32_t steps;
    std::size_t axis = 0;
  };

  DrivePageRig(Bench bench, PageKind* (*make)(DrivePageUnits&))
      : PageRig(Standing(std::move(bench)), Link::Reported), page(Show(make(k70()))) {
    Forget();
  }

  std::string text(const TextField* field) { return field->text().toStdString(); }
  TextField& field(int row, std::size_t axis = 0) {
    return *page.FrameNosepiece->field(static_cast<std::size_t>(row), axis);
  }
  std::string shown(int row, std::size_t axis = 0) { return text(&field(row, axis)); }
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
    ShowTeaching();
  }
  explicit FocusRig(std::string_view bench = "Harbour") : FocusRig(benches::Named(bench)) {}

  static std::vector<DriveAxisRow> Axes() {
    return {{"ZDriveDevice.Position", "GetPosition", "Move", 400}};
  }
  static std::vector<StepRow> Steps() {
    return {{&ControlFocusDriveCtl::ButtonUpLarge, 50},
            {&ControlFocusDriveCtl::ButtonUpSmall, 1},
            {&ControlFocusDriveCtl::ButtonDownLarge, -50},
            {&ControlFocusDriveCtl::ButtonDownSmall, -1}};
  }
  static std::vector<std::string> Preparation() {
    return {"NosepieceDevice.BeginZPositioning()", "ZDriveDevice.MoveProfile = 9",
            "ZDriveDevice.MoveOption = 0"};
  }
  // Of the move to 100 micrometres on the first axis, 0 on others.
  static constexpr int kWaitMs = 1080;

  clsControlZDrive& drive() { return k70().CZDrive; }
  std::int32_t& stands(std::size_t /*axis*/ = 0) { return instrument().zDrive.position; }
  std::int32_t stored(int row, std::size_t /*axis*/ = 0) { return drive().Position(row + 1); }
  // Each loading hides it.
  void ShowTeaching() {
    page.FrameZNose->show();
    QApplication::processEvents();
  }
  void ExpectQuestion(Answer answer, std::function<void()> during = {}) {
    prompts.ExpectBox(kTeach, box::kOkCancel, answer, kTeachCaption, std::move(during));
  }
  // Clicks the option and answers the box.
  void Select(int row, Answer answer = Answer::Cancel) {
    ExpectQuestion(answer);
    ClickButton(*page.optNosepiece->button(row));
    if (answer == Answer::Cancel) Forget();
  }
};

class StageRig : public DrivePageRig<ControlXYStageCtl> {
 public:
  explicit StageRig(Bench bench) : DrivePageRig(std::move(bench), MakeControlXYStageCtl) {}
  explicit StageRig(std::string_view bench = "Harbour") : StageRig(benches::Named(bench)) {}

  static std::vector<DriveAxisRow> Axes() {
    return {{"XYDriveDevice.PositionX", "GetPositionX", "MoveX", -50},
            {"XYDriveDevice.PositionY", "GetPositionY", "MoveY", 60}};
  }
  static std::vector<StepRow> Steps() {
    return {
        {&ControlXYStageCtl::ButtonLeftLarge, -50, 0}, {&ControlXYStageCtl::ButtonLeftSmall, -1, 0},
        {&ControlXYStageCtl::ButtonRightLarge, 50, 0}, {&ControlXYStageCtl::ButtonRightSmall, 1, 0},
        {&ControlXYStageCtl::ButtonUpLarge, -50, 1},   {&ControlXYStageCtl::ButtonUpSmall, -1, 1},
        {&ControlXYStageCtl::ButtonDownLarge, 50, 1},  {&ControlXYStageCtl::ButtonDownSmall, 1, 1}};
  }
  static std::vector<std::string> Preparation() {
    return {"NosepieceDevice.BeginPositioning()", "XYDriveDevice.MoveProfile = 9"};
  }
  static constexpr int kWaitMs = 1106;

  clsControlXYDrive& stage() { return k70().CXYDrive; }
  clsControlXYDrive& drive() { return stage(); }
  std::int32_t& stands(std::size_t axis = 0) {
    auto& drive = instrument().xyDrive;
    return axis == 0 ? drive.positionX : drive.positionY;
  }
  std::int32_t stored(int row, std::size_t axis = 0) {
    return axis == 0 ? stage().PositionX(row + 1) : stage().PositionY(row + 1);
  }
  TextField& fieldX(int row) { return *page.TextNosepieceX[static_cast<std::size_t>(row)]; }
  TextField& fieldY(int row) { return *page.TextNosepieceY[static_cast<std::size_t>(row)]; }
  std::string shownX(int row) { return text(&fieldX(row)); }
  std::string shownY(int row) { return text(&fieldY(row)); }
  void ShowTeaching() {}
  void ExpectQuestion(Answer /*answer*/) {}
  void Select(int row) {
    ClickButton(*page.optNosepiece->button(row));
    Forget();
  }
};

using DriveRigs = testing::Types<FocusRig, StageRig>;

struct DriveRigName {
  template <typename RigKind>
  static std::string GetName(int /*index*/) {
    return std::is_same_v<RigKind, FocusRig> ? "Focus" : "Stage";
  }
};

}  // namespace mortane::test
