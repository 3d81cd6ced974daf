#include "Acts.h"

#include <QAbstractButton>
#include <QAction>
#include <QWidget>
#include <algorithm>
#include <array>

#include "widgets/CommandKey.h"

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

using enum MayChange;

struct ActRow {
  const char* name;
  Allowed allowed;
};

// Menu items, keys and buttons by their names, those of the tool bar by their captions.
constexpr std::array kActs{
    ActRow{"MenuFileOpen", {Everything, MayCall::Reads}},
    ActRow{"MenuFileSave", {ShownPage, MayCall::Nothing}},
    ActRow{"MenuConnectSelect", {Everything, MayCall::Everything}},
    ActRow{"MenuConnectReceive", {Everything, MayCall::Reads}},
    ActRow{"MenuConnectSend", {ShownPage, MayCall::Everything}},
    ActRow{"Open", {Everything, MayCall::Reads}}, ActRow{"Save", {ShownPage, MayCall::Nothing}},
    ActRow{"Select", {Everything, MayCall::Everything}},
    ActRow{"Receive", {Everything, MayCall::Reads}},
    ActRow{"Send", {ShownPage, MayCall::Everything}},
    ActRow{"ImageCommand_0", {Everything, MayCall::Everything}},
    ActRow{"ImageCommand_1", {Everything, MayCall::Reads}},
    ActRow{"ImageCommand_2", {ShownPage, MayCall::Everything}},
    ActRow{"ButtonPending", {ControlsOnly, MayCall::Reads}},  // leads to a page
    ActRow{"OpenKept", {Everything, MayCall::Reads}},
    // The wizard's.
    ActRow{"ButtonSend", {ShownPage, MayCall::Everything}},
    ActRow{"ButtonFinish", {ShownPage, MayCall::Everything}},
    ActRow{"optSetupMode_2", {Everything, MayCall::Reads}},  // opens a file
};

// What loads a page, by its name or class. Loading asks the controller.
constexpr std::array kLoaders{
    "mortane::PageButton", "mortane::SectionOption", "mortane::StepButton", "ButtonNext",
    "ButtonPrevious",      "ButtonFinish",           "mortane::TabStrip",   "ButtonPending",
};

// The pages of the drives make moves ready when they are loaded.
constexpr std::array kWritesOfLoading{
    "NosepieceDevice.BeginPositioning()", "NosepieceDevice.BeginZPositioning()",
    "XYDriveDevice.MoveProfile = ",       "ZDriveDevice.MoveProfile = ",
    "ZDriveDevice.MoveOption = ",
};

// Controls of a page that make calls themselves, and how those begin.
struct CallRow {
  const char* control;
  const char* opening;
};

constexpr std::array kCalls{
    CallRow{"CheckRealMove", "NosepieceDevice"},
    CallRow{"ControlFocusDriveCtl1", "ZDriveDevice"},
    CallRow{"ControlXYStageCtl1", "XYDriveDevice"},
};

// A move is begun and awaited at the microscope's entry in the list.
constexpr std::array<std::string_view, 2> kMoves{".AsyncMode = ", ".WaitMove("};
constexpr std::array kMovers{"ControlFocusDriveCtl1", "ControlXYStageCtl1"};

bool IsOfMove(const std::string& line, const std::set<QString>& worked) {
  const bool moves = std::any_of(kMoves.begin(), kMoves.end(), [&](std::string_view call) {
    return line.find(call) != std::string::npos;
  });
  return moves && std::any_of(kMovers.begin(), kMovers.end(), [&](const char* page) {
           return worked.contains(QLatin1String(page));
         });
}

bool IsOf(const std::string& line, const std::set<QString>& worked) {
  return std::any_of(kCalls.begin(), kCalls.end(), [&](const CallRow& row) {
    return line.starts_with(row.opening) && worked.contains(QLatin1String(row.control));
  });
}

bool IsOfLoading(const std::string& line) {
  return std::any_of(kWritesOfLoading.begin(), kWritesOfLoading.end(),
                     [&](const char* opening) { return line.starts_with(opening); });
}

}  // namespace

ActsGiven::ActsGiven(QWidget& window) {
  for (QAction* action : window.findChildren<QAction*>()) {
    connect(action, &QAction::triggered, this, [this, action] {
      Note(action->objectName().isEmpty() ? action->text() : action->objectName());
    });
  }
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    connect(button, &QAbstractButton::clicked, this,
            [this, button] { Note(button->objectName()); });
  }
  for (CommandKey* key : window.findChildren<CommandKey*>()) {
    connect(key, &CommandKey::commanded, this, [this, key] { Note(key->objectName()); });
  }
}

QString ActsGiven::Text() const {
  return QStringList(names_.begin(), names_.end()).join(u", "_s);
}

Allowed ActsGiven::Allows() const {
  Allowed allowed;
  for (const ActRow& row : kActs) {
    if (!names_.contains(QLatin1String(row.name))) continue;
    allowed.change = std::max(allowed.change, row.allowed.change);
    allowed.calls = std::max(allowed.calls, row.allowed.calls);
  }
  return allowed;
}

bool LoadsPage(const std::set<QString>& worked) {
  return std::any_of(kLoaders.begin(), kLoaders.end(),
                     [&](const char* name) { return worked.contains(QLatin1String(name)); });
}

std::string UnexpectedCall(const controller::Journal& journal, MayCall allowed,
                           const std::set<QString>& worked) {
  if (allowed == MayCall::Everything) return {};
  const bool reads = allowed == MayCall::Reads || LoadsPage(worked);
  const std::vector<std::string>& lines = reads ? journal.Writes() : journal.Lines();
  const auto found = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
    return !IsOf(line, worked) && !IsOfMove(line, worked) && !(reads && IsOfLoading(line));
  });
  return found == lines.end() ? std::string() : *found;
}

}  // namespace mortane::test
