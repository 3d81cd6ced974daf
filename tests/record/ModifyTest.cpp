// What Modify lists, beside what a comparison calls changed.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "common/DigitCode.h"
#include "common/Numbers.h"
#include "drives/clsControlOther.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"
#include "objectives/clsLimitation.h"
#include "record/ReceivedRig.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

struct Label {
  ItemKind kind;
  std::string_view label;  // '#' stands for the position
};
constexpr std::array kLabels{
    Label{ItemKind::SystemName, "SystemName"},
    Label{ItemKind::ObjectiveAddress, "Nosepiece[#]"},
    Label{ItemKind::ObjectiveCode, "Nosepiece Optional[#]"},
    Label{ItemKind::ObjectiveName, "Nosepiece Optional[#]"},
    Label{ItemKind::CubeAddress, "Filter Cube[#]"},
    Label{ItemKind::CubeCode, "Filter Cube Optional Cube[#]"},
    Label{ItemKind::CubeName, "Filter Cube Optional Cube[#]"},
    Label{ItemKind::ExciterName, "Filter Cube Optional Item Exciter[#]"},
    Label{ItemKind::DichroicName, "Filter Cube Optional Item Dichroic[#]"},
    Label{ItemKind::BarrierName, "Filter Cube Optional Item Barrier[#]"},
    Label{ItemKind::CondenserAddress, "Condenser[#]"},
    Label{ItemKind::CondenserName, "Optional Condenser[#]"},
    Label{ItemKind::LowerLimit, "Control FocusDrive[DownLimitation]"},
    Label{ItemKind::FocusEscape, "Control FocusDrive[EscapeMode]"},
    Label{ItemKind::StageEscape, "Control FocusDrive[EscapeMode]"},
    Label{ItemKind::StageCompensation, "Control XYStage[FocusCompensation]"},
    Label{ItemKind::FocusKnob, "Control Other[FocusDrive Auto]"},
    Label{ItemKind::StageKnob, "Control Other[XYStage Auto]"},
    Label{ItemKind::Buzzer, "Control Other[Buzzer]"},
    Label{ItemKind::BodySwitches, "Control Other[Switch]"},
    Label{ItemKind::HandSwitches, "Control Other[Tactor Switch]"},
    Label{ItemKind::RemoteSwitches, "Control Other[B_KM_R Switch]"},
    Label{ItemKind::RemoteLed, "Control Other[B_KM_R SwitchLED]"},
    Label{ItemKind::HandMode, "TactorSwitch Function[Mode]"},
    Label{ItemKind::HandSide, "TactorSwitch Function[XY Knob]"},
    Label{ItemKind::HandSwitch, "TactorSwitch Function[#]"},
    // It has no line in Modify's list; this one stands for it here.
    Label{ItemKind::FocusCompensation, "Control FocusDrive[FocusCompensation]"},
};

template <typename Rows, typename Line>
std::string LineOf(const Rows& rows, const std::string& word, Line&& line) {
  for (const auto& row : rows) {
    if (row.word == word) return line(row);
  }
  ADD_FAILURE() << word;
  return {};
}

std::string LabelOf(const ConfigurationItem& item) {
  const std::string& position = item.key.position;
  switch (item.kind) {
    case ItemKind::NosepieceLimit:
      return "Nosepiece Limit[" +
             (position == "WaferImmersion" ? std::string("Immersion Type") : position) + "]";
    case ItemKind::ObservationInterlock:
      return LineOf(kObservationAccessories, position,
                    [](const auto& row) { return std::string(row.line); });
    case ItemKind::NosepieceInterlock:
      return LineOf(kOtherAccessories, position,
                    [](const auto& row) { return std::string(row.line); });
    case ItemKind::LightPathInterlock:
      return LineOf(kOtherAccessories, position, [](const auto& row) {
        return "InterLock Light Path [" + std::string(row.pathItem) + "]";
      });
    case ItemKind::ZoomInterlock:
      return LineOf(kOtherAccessories, position, [](const auto& row) {
        return "InterLock Optical Zoom [" + std::string(row.pathItem) + "]";
      });
    case ItemKind::Offset:
      return LineOf(kOffsetAccessories, position,
                    [](const auto& row) { return std::string(row.difference); });
    case ItemKind::BodySwitch:
      return "Switch Function[" + DigitToChar(ToLong(position)) + "]";
    default:
      break;
  }
  for (const Label& row : kLabels) {
    if (row.kind != item.kind) continue;
    std::string label(row.label);
    if (const auto place = label.find('#'); place != std::string::npos) {
      label.replace(place, 1, position);
    }
    return label;
  }
  ADD_FAILURE() << KeyText(item.key);
  return {};
}

// The part of a line that names the item.
std::string LabelOf(const std::string& line) {
  if (line.starts_with("SystemName:")) return "SystemName";
  return line.substr(0, line.find(']') + 1);
}

Keys LabelsOf(const std::string& list) {
  std::set<std::string> labels;
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t end = std::min(list.find("\r\n", at), list.size());
    labels.insert(LabelOf(list.substr(at, end - at)));
    at = end + 2;
  }
  return {labels.begin(), labels.end()};
}

Keys LabelsOf(const std::vector<ItemChange>& changes) {
  std::set<std::string> labels;
  for (const ItemChange& change : changes) labels.insert(LabelOf(change.to));
  return {labels.begin(), labels.end()};
}

// Why a label may stand on one side alone.
struct Asymmetry {
  std::string_view reason;
  bool (*explains)(ReceivedRig& rig, const std::string& label);
};

bool KnowsEscape(ReceivedRig& rig) {
  return rig.instrument().escapeMode >= 0;
}

const std::array kNotListed{
    Asymmetry{"the focus compensation is not compared",
              [](ReceivedRig&, const std::string& label) {
                return label == "Control FocusDrive[FocusCompensation]";
              }},
    Asymmetry{
        "the buzzer is compared with the copy last read, not with all that are commanded",
        [](ReceivedRig&, const std::string& label) { return label == "Control Other[Buzzer]"; }},
    Asymmetry{"an escape mode that the controller does not tell counts as off",
              [](ReceivedRig& rig, const std::string& label) {
                return label == "Control FocusDrive[EscapeMode]" && !KnowsEscape(rig);
              }},
    Asymmetry{"units 5 and 6 name three accessories of the observation alone",
              [](ReceivedRig& rig, const std::string& label) {
                return label.starts_with("InterLock Observation[") &&
                       !rig.k70.Controller(controllerunit::kBody);
              }},
    Asymmetry{"an LED that no option stands for is not listed",
              [](ReceivedRig& rig, const std::string& label) {
                return label == "Control Other[B_KM_R SwitchLED]" &&
                       rig.k70.COther.curR_TLPOLED > 2;
              }},
};
const std::array kNotChanged{
    Asymmetry{"limits that no number of the controller stands for are listed, and not sent",
              [](ReceivedRig& rig, const std::string& label) {
                return label.starts_with("Nosepiece Limit[") && rig.k70.curLimit.curSkip > 1;
              }},
    Asymmetry{
        "a read that failed leaves values that are listed, and unknown to the comparison",
        [](ReceivedRig& rig, const std::string& label) {
          return (label.starts_with("Nosepiece Optional[") && !rig.k70.WasRead("DbNosepiece")) ||
                 (label.starts_with("Filter Cube Optional Cube[") && !rig.k70.WasRead("dbFilter"));
        }},
    Asymmetry{"an escape mode that the controller does not tell counts as off",
              [](ReceivedRig& rig, const std::string& label) {
                return label == "Control FocusDrive[EscapeMode]" && !KnowsEscape(rig);
              }},
    Asymmetry{"the buzzer of unit 5 is compared, and not commanded",
              [](ReceivedRig& rig, const std::string& label) {
                return label == "Control Other[Buzzer]" &&
                       rig.k70.Controller(controllerunit::kUnit5);
              }},
};

template <std::size_t kCount>
void ExpectReasons(const Keys& labels, const std::array<Asymmetry, kCount>& asymmetries,
                   ReceivedRig& rig, const char* side, std::set<std::string_view>& used) {
  for (const std::string& label : labels) {
    bool explained = false;
    for (const Asymmetry& asymmetry : asymmetries) {
      if (!asymmetry.explains(rig, label)) continue;
      explained = true;
      used.insert(asymmetry.reason);
    }
    EXPECT_TRUE(explained) << label << " " << side;
  }
}

TEST(Modify, ListsWhatTheComparisonCallsChangedButForWhatHasAReason) {
  std::set<std::string_view> notListed;
  std::set<std::string_view> notChanged;
  std::map<std::string, DomDocument> files;
  for (const std::string& name : benches::Names()) files[name] = ReceivedRig(name).File();
  ASSERT_TRUE(files["odd values"].LoadText(R"(<Setup>
      <NOSEPIECE><LIMIT POSITION="Skip" CODE="StageDown"/></NOSEPIECE>
      <CONTROL><OTHER><B_KM_RSwitchLED CODE="Off"/></OTHER></CONTROL></Setup>)"));
  std::size_t number = 0;
  for (const std::string& target : benches::Names()) {
    std::vector<std::string> sources = ColumnsOfRow(number++, benches::Names(), 3);
    sources.emplace_back("odd values");
    for (const std::string& source : sources) {
      SCOPED_TRACE(testing::Message() << "the file of " << source << " on " << target);
      const DomDocument& file = files[source];
      ReceivedRig rig(target);
      const ConfigurationState held = StateOf(rig.k70);
      rig.Read(file);
      const Keys changed = LabelsOf(Compare(rig.k70, held, &file).changed);
      const Keys listed = LabelsOf(rig.k70.Modify());
      ExpectReasons(Without(changed, listed), kNotListed, rig, "is not listed", notListed);
      ExpectReasons(Without(listed, changed), kNotChanged, rig, "is listed alone", notChanged);
    }
  }
  // A reason that nothing needs is none.
  for (const Asymmetry& row : kNotListed) EXPECT_TRUE(notListed.contains(row.reason)) << row.reason;
  for (const Asymmetry& row : kNotChanged) {
    EXPECT_TRUE(notChanged.contains(row.reason)) << row.reason;
  }
}

}  // namespace
}  // namespace mortane::test
