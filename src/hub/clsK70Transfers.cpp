// Receive, Send and Modify: loops over the table of transfers.
#include <algorithm>

#include "common/Text.h"
#include "hub/clsK70.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kSystemNameLine = "System Name";

}  // namespace

bool clsK70::Receive() {
  Progress(0);
  readTransfers_.clear();
  std::string failures = ReadSystemName();
  if (failures.empty()) readTransfers_.push_back(kSystemNameTransfer);
  for (std::size_t i = 0; i < transfers_.size(); ++i) {
    Progress(i + 1);
    const TransferStep& step = transfers_[i];
    const std::string failure = ReportOf(step.unit, step.read);
    if (failure.empty()) readTransfers_.push_back(step.unit);
    failures = AppendLine(std::move(failures), failure);
  }
  failures = AppendLine(std::move(failures), ReadTurretCounts());
  Progress(transfers_.size() + 1);
  if (!failures.empty()) prompts().MsgBox(failures, box::kCritical);
  return failures.empty();
}

bool clsK70::Send() {
  Progress(0);
  sentTransfers_.clear();
  std::string failures = WriteSystemName();
  if (failures.empty()) sentTransfers_.push_back(kSystemNameTransfer);
  for (std::size_t i = 0; i < transfers_.size(); ++i) {
    Progress(i + 1);
    const TransferStep& step = transfers_[i];
    if (!step.gate()) continue;
    const std::string failure = ReportOf(step.unit, step.write);
    if (failure.empty()) sentTransfers_.push_back(step.unit);
    failures = AppendLine(std::move(failures), failure);
  }
  Progress(transfers_.size() + 1);
  if (!failures.empty()) prompts().MsgBox(failures, box::kCritical, "Send");
  return failures.empty();
}

std::string clsK70::Modify() {
  std::string differences;
  std::string failures;
  if (Entry().Name() != SystemName) differences = "SystemName:" + SystemName;
  for (const TransferStep& step : transfers_) {
    if (step.gate()) failures = AppendLine(std::move(failures), step.modify(differences));
  }
  if (!failures.empty()) prompts().MsgBox(failures, box::kCritical, "Modify");
  return differences;
}

bool clsK70::WasRead(std::string_view transfer) const {
  return std::find(readTransfers_.begin(), readTransfers_.end(), transfer) != readTransfers_.end();
}

bool clsK70::WasSent(std::string_view transfer) const {
  return std::find(sentTransfers_.begin(), sentTransfers_.end(), transfer) != sentTransfers_.end();
}

bool clsK70::IsSent(std::string_view transfer) const {
  if (transfer == kSystemNameTransfer) return true;
  const auto step = std::find_if(transfers_.begin(), transfers_.end(),
                                 [&](const TransferStep& row) { return row.unit == transfer; });
  return step != transfers_.end() && step->gate();
}

std::string clsK70::ReadSystemName() {
  return LineIfFailed(kSystemNameLine, [this] { SystemName = Entry().Name(); });
}

std::string clsK70::WriteSystemName() {
  return LineIfFailed(kSystemNameLine, [this] {
    if (Entry().Name() != SystemName) {
      Mic.PutSystemName(FirstCharacters(SystemName, kSystemNameLength));
    }
  });
}

// Kept: unlike Connect, this changes no mounted value when a turret has lost its addresses.
std::string clsK70::ReadTurretCounts() {
  std::string failures;
  for (const Turret& turret : turrets_) {
    std::int32_t count = 0;
    const std::string failure =
        LineIfFailed(turret.failureLabel, [&] { count = TurretCount(turret); });
    if (!failure.empty()) std::erase(readTransfers_, turret.transfer);
    failures = AppendLine(std::move(failures), failure);
    for (std::int32_t* stored : turret.counts) *stored = count;
  }
  return failures;
}

// The system name is a step before those of the units.
void clsK70::Progress(std::size_t stepsDone) const {
  prompts().ShowProgress(static_cast<int>(stepsDone), static_cast<int>(transfers_.size()) + 1);
}

}  // namespace mortane
