#include "support/RandomModel.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/Numbers.h"
#include "common/Text.h"
#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "hub/clsK70.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {
namespace {

// Characters that a file must mask, that take several bytes, and that stand at an end as blanks.
constexpr std::array<std::string_view, 16> kCharacters{
    "A", "z", "7",  " ",  "<",        "&",        "\"",           "'",
    ">", "-", "\t", "\n", "\xC3\xBC", "\xC2\xB5", "\xE9\x8F\xA1", "\xF0\x9F\x94\xAC"};

class Random {
 public:
  explicit Random(std::mt19937& random) : random_(random) {}

  // From `least` to `most`.
  std::int32_t Number(std::int32_t least, std::int32_t most) {
    const auto span = static_cast<std::uint32_t>(most - least) + 1;
    return least + static_cast<std::int32_t>(random_() % span);
  }

  std::string Text(std::int32_t longest) {
    std::string text;
    for (std::int32_t i = Number(0, longest); i > 0; --i) {
      text += kCharacters[static_cast<std::size_t>(Number(0, kCharacters.size() - 1))];
    }
    return RightTrim(text);  // as a name comes out of a file
  }

  std::string Decimal(std::int32_t most, std::int32_t digits) {
    std::int32_t scale = 1;
    for (std::int32_t i = 0; i < digits; ++i) scale *= 10;
    return ShortestGeneral(static_cast<double>(Number(0, most * scale)) / scale, PointFormat());
  }

 private:
  std::mt19937& random_;
};

template <typename Field>
void MakeKnown(Field& field, Random& random, std::int32_t least, std::int32_t most) {
  if (field != -1) field = static_cast<Field>(random.Number(least, most));
}

void MakeTurrets(clsK70& k70, Random& random) {
  for (std::int32_t i = 1; i <= k70.curNosepiece.Count; ++i) {
    k70.curNosepiece.code(i, random.Number(0, kHighestCode));
  }
  for (std::int32_t i = 1; i <= k70.curFilter.Count; ++i) {
    k70.curFilter.code(i, random.Number(0, kHighestCode));
  }
  for (std::int32_t i = 1; i <= k70.curCondenser.Count; ++i) {
    k70.curCondenser.code(i, random.Number(0, kCondenserOptionBase + kOptionPositions));
  }
  MakeKnown(k70.curLimit.curIncrease, random, 0, 1);
  MakeKnown(k70.curLimit.curSkip, random, 0, 1);
  MakeKnown(k70.curLimit.curImmersion, random, 0, 1);
}

void MakeOptions(clsK70& k70, Random& random) {
  for (std::int32_t position = 1; position <= kOptionPositions; ++position) {
    k70.DbNosepiece.Set_DbNosepiece(
        position, random.Text(15), random.Number(0, k70.DbNosepiece.SeriesCount()),
        random.Number(0, k70.DbNosepiece.TypesCount()), random.Decimal(200, 1),
        random.Decimal(40, 2), random.Decimal(2, 2), random.Number(0, 9));
    k70.dbFilter.Set_DbFilterOption(position, random.Text(10), random.Number(0, 249),
                                    random.Number(0, 249), random.Number(0, 249));
    const auto name = static_cast<std::int32_t>(kOptionNameLength);
    k70.Exciter.Name(kOptionBase + position, random.Text(name));
    k70.Dichroic.Name(kOptionBase + position, random.Text(name));
    k70.Barrier.Name(kOptionBase + position, random.Text(name));
    k70.dbcon.Name(kCondenserOptionBase + position, random.Text(name));
  }
}

void MakeInterlocks(clsK70& k70, Random& random) {
  for (std::int32_t item = 1; item <= 11; ++item) {
    k70.ILObservation.Status(item, random.Number(0, 1));
  }
  for (std::int32_t item = 1; item <= accessory::kCount; ++item) {
    k70.ILOther.Status(item, random.Number(0, 1));
    k70.ILOther.LightPathStatus(item, random.Number(0, 1));
    k70.ILOther.ZoomStatus(item, random.Number(0, 1));
  }
  MakeKnown(k70.ILOffset.curND, random, 0, 9);
  MakeKnown(k70.ILOffset.curFStop, random, 0, 9);
  MakeKnown(k70.ILOffset.curEpiFStop, random, 0, 9);
  MakeKnown(k70.ILOffset.curAStop, random, 0, 9);
}

void MakeControls(clsK70& k70, Random& random) {
  MakeKnown(k70.CZDrive.curFocusCompensation, random, 1, 3);
  MakeKnown(k70.CZDrive.curLowerLimit, random, 0, 1);
  k70.CZDrive.SetEscape(0, static_cast<std::int16_t>(random.Number(0, 1)));
  k70.CZDrive.SetEscape(1, static_cast<std::int16_t>(random.Number(0, 1)));
  MakeKnown(k70.CXYDrive.curFocusCompensation, random, 1, 3);
  MakeKnown(k70.COther.curAutoZ, random, 0, 1);
  MakeKnown(k70.COther.curAutoXY, random, 0, 1);
  MakeKnown(k70.COther.curBuzzer, random, 0, 1);
  MakeKnown(k70.COther.curSwEnable, random, 0, 1);
  MakeKnown(k70.COther.curTactorSwEnable, random, 0, 1);
  MakeKnown(k70.COther.curR_TLPOSwEnable, random, 0, 1);
}

void MakeSwitches(clsK70& k70, Random& random) {
  for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i) {
    k70.curSwitch.Func(i, static_cast<std::int16_t>(random.Number(0, 51)));
  }
  for (std::int16_t i = 1; i <= clsControlTactor::SwitchCount; ++i) {
    k70.curTactor.Func(i, static_cast<std::int16_t>(random.Number(0, 51)));
  }
  k70.curTactor.ControlMode = static_cast<std::int16_t>(random.Number(0, 1));
  k70.curTactor.HandleMode = static_cast<std::int16_t>(random.Number(0, 1));
}

}  // namespace

void MakeRandom(clsK70& k70, std::mt19937& generator) {
  Random random(generator);
  k70.SystemName = random.Text(14);
  MakeTurrets(k70, random);
  MakeOptions(k70, random);
  MakeInterlocks(k70, random);
  MakeControls(k70, random);
  MakeSwitches(k70, random);
}

}  // namespace mortane::test
