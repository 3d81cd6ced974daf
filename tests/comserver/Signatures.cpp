#include "comserver/Signatures.h"

#include <algorithm>
#include <array>

namespace mortane::comserver {
namespace {

struct ArgumentRow {
  std::string_view member;
  std::size_t index;
  VARTYPE type;
};

// Every other argument is a long.
constexpr std::array kArguments{
    ArgumentRow{"SendCommand", 0, VT_BSTR},       ArgumentRow{"QueryCommand", 0, VT_BSTR},
    ArgumentRow{"SetSwitchFunction", 1, VT_BSTR}, ArgumentRow{"SetSwitchFunction", 2, VT_BSTR},
    ArgumentRow{"SwitchFunction", 1, VT_BSTR},    ArgumentRow{"SetProperties", 2, VT_R8},
    ArgumentRow{"SetProperties", 3, VT_R8},       ArgumentRow{"SetProperties", 4, VT_R8},
    ArgumentRow{"UseBench", 0, VT_BSTR},
};

struct WrittenRow {
  std::string_view member;
  VARTYPE type;
};

// Every other value is a long.
constexpr std::array kWritten{
    WrittenRow{"CurrentDevice", VT_DISPATCH},
    WrittenRow{"SystemName", VT_BSTR},
    WrittenRow{"Name", VT_BSTR},
    WrittenRow{"AsyncMode", VT_BOOL},
    WrittenRow{"HandleMode", VT_I2},
    WrittenRow{"SwitchEnable", VT_I2},
    WrittenRow{"LED", VT_I2},
};

}  // namespace

VARTYPE ArgumentType(std::string_view member, std::size_t index) {
  const auto row = std::find_if(kArguments.begin(), kArguments.end(), [&](const ArgumentRow& each) {
    return each.member == member && each.index == index;
  });
  return row == kArguments.end() ? VARTYPE{VT_I4} : row->type;
}

VARTYPE WrittenType(std::string_view member) {
  const auto row = std::find_if(kWritten.begin(), kWritten.end(),
                                [&](const WrittenRow& each) { return each.member == member; });
  return row == kWritten.end() ? VARTYPE{VT_I4} : row->type;
}

}  // namespace mortane::comserver
