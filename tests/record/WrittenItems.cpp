#include "record/WrittenItems.h"

#include <gtest/gtest.h>

#include <array>
#include <regex>
#include <set>
#include <string_view>

#include "common/DigitCode.h"
#include "common/Text.h"
#include "controller/ControllerNumbers.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"

namespace mortane::test {
namespace {

// A member that is one item.
struct Member {
  std::string_view path;
  std::string_view key;
};
constexpr std::array kMembers{
    Member{"SystemName", "SYSTEM QHRMNAME NAME"},
    Member{"ZDriveDevice.FocusCompensation", "CONTROL FOCUSDRIVE/FocusCompensation CODE"},
    Member{"ZDriveDevice.LowerLimit", "CONTROL FOCUSDRIVE/DownLimitation CODE"},
    Member{"ZDriveDevice.KnobAuto", "CONTROL OTHER/FocusDrive AUTO"},
    Member{"XYDriveDevice.FocusCompensation", "CONTROL XYSTAGE/FocusCompensation CODE"},
    Member{"XYDriveDevice.KnobAuto", "CONTROL OTHER/XYStage AUTO"},
    Member{"XYDriveDevice.HandleMode", "TACTOR SWITCH/SETTING HANDLE"},
    Member{"NDFilterDevice.OffsetCode", "INTERLOCK OFFSET ND CODE"},
    Member{"FieldStopDevice.OffsetCode", "INTERLOCK OFFSET DiaFStop CODE"},
    Member{"EpiFieldStopDevice.OffsetCode", "INTERLOCK OFFSET EpiFStop CODE"},
    Member{"ApertureStopDevice.OffsetCode", "INTERLOCK OFFSET DiaAStop CODE"},
    Member{"RemoteLED(7)", "CONTROL OTHER/B_KM_RSwitchLED CODE"},
    Member{"EnableSwitch(0, 0)", "CONTROL OTHER/Switch CODE"},
    Member{"DisableSwitch(0, 0)", "CONTROL OTHER/Switch CODE"},
    Member{"EnableSwitch(4, 0)", "CONTROL OTHER/TactorSwitch CODE"},
    Member{"DisableSwitch(4, 0)", "CONTROL OTHER/TactorSwitch CODE"},
    Member{"EnableSwitch(7, 0)", "CONTROL OTHER/B_KM_RSwitch CODE"},
    Member{"DisableSwitch(7, 0)", "CONTROL OTHER/B_KM_RSwitch CODE"},
};

struct Turret {
  std::string_view device;
  std::string_view section;
};
constexpr std::array kTurrets{Turret{"NosepieceDevice", "NOSEPIECE"},
                              Turret{"FilterCubeDevice", "FILTER"},
                              Turret{"CondenserDevice", "CONDENSER"}};

struct Records {
  std::string_view list;
  std::string_view element;  // with its section
  int base;
};
constexpr std::array kRecords{
    Records{"Nosepieces", "NOSEPIECE OPTION", 240}, Records{"FilterCubes", "FILTER OPTION", 240},
    Records{"Exciters", "FILTER EXCITER", 240},     Records{"Dichroics", "FILTER DICHROIC", 240},
    Records{"Barriers", "FILTER BARRIER", 240},     Records{"Condensers", "CONDENSER OPTION", 140}};

// What the controller's limitation numbers 1 to 18 stand for: whether turning to lower
// magnifications, to empty positions and to immersion objectives is free, refused or delayed.
struct Limits {
  int lower;
  int skip;
  int immersion;
  bool operator==(const Limits&) const = default;
};
constexpr Limits kNoLimits{-1, -1, -1};
constexpr std::array<Limits, 18> kLimits{{{0, 0, 0},
                                          {0, 1, 0},
                                          {1, 0, 0},
                                          {1, 1, 0},
                                          {2, 0, 0},
                                          {2, 1, 0},
                                          {0, 0, 1},
                                          {0, 1, 1},
                                          {0, 0, 2},
                                          {0, 1, 2},
                                          {1, 0, 1},
                                          {1, 1, 1},
                                          {1, 0, 2},
                                          {1, 1, 2},
                                          {2, 0, 1},
                                          {2, 1, 1},
                                          {2, 0, 2},
                                          {2, 1, 2}}};

Limits LimitsOf(int number) {
  return number >= 1 && number <= 18 ? kLimits[static_cast<std::size_t>(number - 1)] : kNoLimits;
}

template <typename Rows>
std::string WordOf(const Rows& rows, int number) {
  for (const auto& row : rows) {
    if (row.number == number) return std::string(row.word);
  }
  ADD_FAILURE() << "accessory " << number;
  return {};
}

std::string InterlockKey(int item, int cause) {
  switch (cause) {
    case trigger::kObservation:
      return "INTERLOCK OBSERVATION " + WordOf(kObservationAccessories, item) + " CODE";
    case trigger::kNosepiece:
      return "INTERLOCK OTHER " + WordOf(kOtherAccessories, item) + " CODE";
    case trigger::kLightPath:
      return "INTERLOCK LIGHTPATH " + WordOf(kOtherAccessories, item) + " CODE";
    default:
      return "INTERLOCK ZOOM " + WordOf(kOtherAccessories, item) + " CODE";
  }
}

std::string Unquoted(std::string text) {
  if (text.size() >= 2 && text.front() == '"') text = text.substr(1, text.size() - 2);
  return text;
}

struct PatternTable {
  std::regex place{R"((\w+)\.Positions\((\d+)\)\.Code)"};
  std::regex record{R"((AccessoryDatabase\.(\w+)\.Item\(\d+\))\.(\w+))"};
  std::regex condenser{R"re(SendCommand\("cONS(\d).*(\d)"\))re"};
  std::regex buzzerCall{R"(Buzzer(On|Off)\((\d+)\))"};
  std::regex properties{R"((AccessoryDatabase\.Nosepieces\.Item\(\d+\))\.SetProperties\((.*)\))"};
  std::regex interlockCall{R"(ControllerSettings\.(?:Set|Clear)Interlock\((\d+), (\d+)\))"};
  std::regex switchCall{R"re(ControllerSettings\.SetSwitchFunction\((\d+), "(.)", ".*"\))re"};
};

const PatternTable& Patterns() {
  static const PatternTable table;
  return table;
}

class Reader {
 public:
  explicit Reader(const NumbersBefore& before) : before_(before) {}

  void Read(const std::string& line) {
    static const std::regex kFailed(R"(.* ! \w+:[0-9A-F]{8})");
    const bool failed = line.find(" ! ") != std::string::npos && std::regex_match(line, kFailed);
    if (failed) return;  // was not written
    // A name may hold either sign.
    const std::size_t arrow = line.find(" -> ");
    const std::size_t sign = line.find(" = ");
    if (arrow < sign) {
      held_[line.substr(0, arrow)] = line.substr(arrow + 4);
    } else if (sign < arrow) {
      ReadPut(line.substr(0, sign), line.substr(sign + 3));
    } else {
      ReadCall(line);
    }
  }

  std::vector<std::string> Keys() const { return {keys_.begin(), keys_.end()}; }

 private:
  void Add(const std::string& key) { keys_.insert(key); }

  bool AddMember(const std::string& path) {
    for (const Member& member : kMembers) {
      if (member.path != path) continue;
      Add(std::string(member.key));
      return true;
    }
    return false;
  }

  void ReadPut(const std::string& path, const std::string& value) {
    std::smatch match;
    if (path == "NosepieceDevice.Limitation") return ReadLimits(std::stoi(value));
    if (path == "ControllerSettings.EscapeMode") return ReadEscape(std::stoi(value));
    if (std::regex_match(path, match, Patterns().place)) {
      for (const Turret& turret : kTurrets) {
        if (turret.device != match[1].str()) continue;
        return Add(std::string(turret.section) + " ITEM " + match[2].str() + " CODE");
      }
    }
    if (std::regex_match(path, match, Patterns().record)) {
      return ReadRecord(match[1], match[2], match[3], value);
    }
    if (!AddMember(path)) ADD_FAILURE() << path << " = " << value;
  }

  // Names with blanks at their ends are one name.
  void ReadRecord(const std::string& item, const std::string& list, const std::string& member,
                  const std::string& value) {
    const std::string held = held_.at(item + "." + member);
    if (RightTrim(Unquoted(held)) == RightTrim(Unquoted(value))) return;
    Add(OptionKey(item, list) + (member == "Name" ? " NAME" : " CODE"));
  }

  std::string OptionKey(const std::string& item, const std::string& list) const {
    for (const Records& records : kRecords) {
      if (records.list != list) continue;
      const int position = std::stoi(held_.at(item + ".Code")) - records.base;
      return std::string(records.element) + " " + std::to_string(position);
    }
    ADD_FAILURE() << list;
    return {};
  }

  void ReadCall(const std::string& call) {
    std::smatch match;
    if (std::regex_match(call, match, Patterns().properties)) {
      return ReadProperties(match[1], match[2]);
    }
    if (std::regex_match(call, match, Patterns().condenser)) {
      return Add("NOSEPIECE OPTION " + match[1].str() + " CODE");
    }
    if (std::regex_match(call, match, Patterns().buzzerCall)) {
      const int wanted = match[1] == "On" ? 1 : 0;
      if (before_.buzzers.at(std::stoi(match[2])) != wanted) Add("CONTROL OTHER/Buzzer CODE");
      return;
    }
    if (std::regex_match(call, match, Patterns().interlockCall)) {
      return Add(InterlockKey(std::stoi(match[1]), std::stoi(match[2])));
    }
    if (std::regex_match(call, match, Patterns().switchCall)) {
      return ReadSwitch(std::stoi(match[1]), match[2]);
    }
    if (!AddMember(call)) ADD_FAILURE() << call;
  }

  void ReadProperties(const std::string& item, const std::string& values) {
    std::string held;
    for (const char* member :
         {"SeriesCode", "TypeCode", "Magnification", "WorkingDistance", "NumericalAperture"}) {
      held += (held.empty() ? "" : ", ") + held_.at(item + "." + member);
    }
    if (held != values) Add(OptionKey(item, "Nosepieces") + " CODE");
  }

  void ReadSwitch(int unit, const std::string& position) {
    if (unit == switchunit::kHandController && position == "0") {
      return Add("TACTOR SWITCH/SETTING MODE");
    }
    Add((unit == switchunit::kBody ? "SWITCH SWITCH " : "TACTOR SWITCH/SWITCH ") +
        std::to_string(CharToDigit(position)) + " FUNCTION");
  }

  void ReadLimits(int number) {
    const Limits held = LimitsOf(before_.limitation);
    const Limits wanted = LimitsOf(number);
    if (held.lower != wanted.lower) Add("NOSEPIECE LIMIT LowerMagnification CODE");
    if (held.skip != wanted.skip) Add("NOSEPIECE LIMIT Skip CODE");
    if (held.immersion != wanted.immersion) Add("NOSEPIECE LIMIT WaferImmersion CODE");
  }

  // Bit 0 the focus drive, bit 1 the stage; the controller may tell no mode at all.
  void ReadEscape(int mode) {
    const int held = before_.escapeMode;
    const bool known = held >= 0 && held <= 3;
    if (!known || held % 2 != mode % 2) Add("CONTROL FOCUSDRIVE/Escape_ZDrive CODE");
    if (!known || held / 2 != mode / 2) Add("CONTROL FOCUSDRIVE/Escape_XYStage CODE");
  }

  const NumbersBefore& before_;
  std::map<std::string, std::string> held_;
  std::set<std::string> keys_;
};

}  // namespace

NumbersBefore::NumbersBefore(const controller::Instrument& instrument)
    : limitation(instrument.limitation),
      escapeMode(instrument.escapeMode),
      buzzers{{buzzer::kBody, instrument.buzzers.body},
              {buzzer::kHub, instrument.buzzers.hub},
              {buzzer::kHandController, instrument.buzzers.handController}} {}

std::vector<std::string> WrittenItems(const std::vector<std::string>& journal,
                                      const NumbersBefore& before) {
  Reader reader(before);
  for (const std::string& line : journal) reader.Read(line);
  return reader.Keys();
}

}  // namespace mortane::test
