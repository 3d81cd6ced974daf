#include "objectives/clsDbNosepiece.h"

#include "common/CheckedIndex.h"
#include "common/ErrorTrap.h"
#include "common/FailureText.h"
#include "common/Numbers.h"
#include "model/ElementFields.h"
#include "model/OptionRecords.h"

namespace mortane {
namespace {

// Kept: ReadSdk's line alone says "Nosepieces".
constexpr std::string_view kReadFailure = "Nosepieces Optional (";
constexpr std::string_view kFailure = "Nosepiece Optional (";
constexpr std::string_view kItem = "Nosepiece Optional[";

constexpr std::size_t kTypeLength = 20;

constexpr std::array<double, 15> kMagnifications{0,  1,  1.5, 2,  2.5, 4,   5,  10,
                                                 20, 40, 50,  60, 100, 150, 200};

std::string PlainMagnificationText(double value) {
  return value == 0 ? std::string(kNoMagnification) : ShortestGeneral(value);
}

double MagnificationOf(std::string_view text) {
  if (text == kNoMagnification) return 0;
  if (text.ends_with('x')) text.remove_suffix(1);
  return ToDouble(text);
}

std::int32_t HighestIndex(std::size_t count) {
  return static_cast<std::int32_t>(count) - 1;
}

template <typename List>
bool Has(const List& list, std::int32_t index) {
  return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

// position 0 to 9.
std::size_t IndexOfOption(std::int32_t position) {
  return static_cast<std::size_t>(kOptionBase) + static_cast<std::size_t>(position);
}

bool IsWithin(double value, double highest) {
  return value >= 0 && value <= highest;
}

}  // namespace

std::string MagnificationText(double value) {
  return value == 0 ? std::string(kNoMagnification) : ShortestGeneral(value) + "x";
}

std::int32_t clsDbNosepiece::AdoptiveCondenser(std::int32_t code) const {
  return Has(condensers_, code) ? condensers_[static_cast<std::size_t>(code)] : 0;
}

std::string clsDbNosepiece::Name(std::int32_t code) const {
  return Has(objectives_, code) ? objectives_[static_cast<std::size_t>(code)].name : std::string();
}

double clsDbNosepiece::Magnification(std::int32_t code) const {
  if (!Has(objectives_, code)) return 0;
  return objectives_[static_cast<std::size_t>(code)].values.magnification;
}

std::int32_t clsDbNosepiece::SeriesCode(std::int32_t code) const {
  return Has(objectives_, code) ? objectives_[static_cast<std::size_t>(code)].values.series : 0;
}

std::int32_t clsDbNosepiece::SeriesCount() const {
  return lists_.series.HighestIndex();
}

std::string clsDbNosepiece::Series(std::int32_t index) const {
  return lists_.series.Name(index);
}

std::int32_t clsDbNosepiece::TypesCount() const {
  return lists_.types.HighestIndex();
}

std::string clsDbNosepiece::Types(std::int32_t index) const {
  return lists_.types.Name(index);
}

std::int32_t clsDbNosepiece::MagCount() const {
  return HighestIndex(kMagnifications.size());
}

std::string clsDbNosepiece::Mag(std::int32_t index) const {
  if (!Has(kMagnifications, index)) return {};
  return MagnificationText(kMagnifications[static_cast<std::size_t>(index)]);
}

std::int32_t clsDbNosepiece::Get_DbNosepiecePocket(std::int32_t nSeri, std::int32_t& npos,
                                                   std::string& sType, std::string& sMag,
                                                   std::string& sWD, std::string& sNA,
                                                   std::string& sName) const {
  for (std::string* text : {&sType, &sMag, &sWD, &sNA, &sName}) text->clear();
  if (nSeri < 0 || nSeri > SeriesCount()) return -1;
  if (npos >= HighestIndex(kCodes)) return -1;
  for (std::size_t code = CheckedIndex(npos + 1, 0, kCodes); code < kCodes; ++code) {
    const Objective& objective = objectives_[code];
    if (objective.values.series != nSeri) continue;
    sType = FirstCharacters(Types(objective.values.type), kTypeLength);
    sMag = MagnificationText(objective.values.magnification);
    sWD = ShortestGeneral(objective.values.workingDistance);
    sNA = ShortestGeneral(objective.values.numericalAperture);
    sName = FirstCharacters(objective.name, kObjectiveNameLength);
    npos = static_cast<std::int32_t>(code);
    return npos;
  }
  return -1;
}

void clsDbNosepiece::Get_DbNosepieceOption(std::int32_t npos, std::string& sName,
                                           std::int32_t& nSeries, std::int32_t& nType,
                                           std::string& sMag, std::string& sWD, std::string& sNA,
                                           std::int32_t& nCondenser) const {
  if (!IsOptionPosition(npos)) {
    for (std::string* text : {&sName, &sMag, &sWD, &sNA}) text->clear();
    nSeries = -1;
    nType = -1;
    return;
  }
  const std::size_t code = IndexOfOption(npos);
  const Objective& objective = objectives_[code];
  sName = FirstCharacters(objective.name, kShownObjectiveNameLength);
  nSeries = objective.values.series;
  nType = objective.values.type;
  sMag = PlainMagnificationText(objective.values.magnification);
  sWD = ShortestGeneral(objective.values.workingDistance);
  sNA = ShortestGeneral(objective.values.numericalAperture);
  nCondenser = condensers_[code];
}

void clsDbNosepiece::Set_DbNosepiece(std::int32_t npos, std::string_view sName,
                                     std::int32_t nSeries, std::int32_t nType,
                                     std::string_view sMag, std::string_view sWD,
                                     std::string_view sNA, std::int32_t nCondenser) {
  if (npos != 0 && !IsOptionPosition(npos)) return;
  const std::size_t code = IndexOfOption(npos);
  objectives_[code] = {FirstCharacters(sName, kObjectiveNameLength),
                       {nSeries, nType, MagnificationOf(sMag), ToDouble(sWD), ToDouble(sNA)}};
  condensers_[code] = nCondenser;
}

bool clsDbNosepiece::StaysWhenStored(std::int32_t npos) const {
  if (!IsOptionPosition(npos)) return true;
  std::string name;
  std::string magnification;
  std::string workingDistance;
  std::string numericalAperture;
  ObjectiveValues values;
  std::int32_t condenser = 0;
  Get_DbNosepieceOption(npos, name, values.series, values.type, magnification, workingDistance,
                        numericalAperture, condenser);
  values.magnification = MagnificationOf(magnification);
  values.workingDistance = ToDouble(workingDistance);
  values.numericalAperture = ToDouble(numericalAperture);
  const Objective& held = objectives_[IndexOfOption(npos)];
  return name == held.name && values == held.values;
}

std::string clsDbNosepiece::ReadSdk() {
  // Kept: the condensers are not cleared; they change only when a record with a code is read.
  objectives_.assign(kCodes, {});
  if (!lists_.IsLoaded()) ReadDB();
  if (parent.IsMounted(accessory::kNosepiece) == kNotMounted) return {};
  return FailureOf(kReadFailure, [this] {
    ForEachRecord(parent.Mic.AccessoryDatabase().Nosepieces(),
                  [this](const controller::ObjectiveRecord& record) { ReadRecord(record); });
  });
}

// Kept: after a failure IsLoaded() can be true already, and no later read loads the rest.
void clsDbNosepiece::ReadDB() {
  try {
    lists_.Load(parent.Mic.AccessoryDatabase());
  } catch (const Failure& failure) {
    parent.prompts().MsgBox(OperationError("DbNosepiece.ReadDB", failure), box::kOk);
  }
}

void clsDbNosepiece::ReadRecord(const controller::ObjectiveRecord& record) {
  const std::int32_t code = record.Code();
  const std::size_t index = CheckedIndex(code, 0, kCodes);
  Objective& objective = objectives_[index];
  objective.name = record.Name();
  objective.values.series = record.SeriesCode();
  objective.values.type = record.TypeCode();
  objective.values.magnification = record.Magnification();
  objective.values.workingDistance = record.WorkingDistance();
  objective.values.numericalAperture = record.NumericalAperture();
  if (record.IsOption() && IsOptionPosition(code - kOptionBase)) {
    condensers_[index] = AskCode(code - kOptionBase).condenser;
  }
}

// Only the last twelve characters of the answer are the code; a prefix is ignored.
clsDbNosepiece::CodeAnswer clsDbNosepiece::AskCode(std::int32_t position) const {
  std::string code = LastCharacters(
      Trim(parent.Mic.QueryCommand("rONR" + std::to_string(position))), kObjectiveCodeLength);
  const std::int32_t condenser = CondenserDigit(code);
  return {std::move(code), condenser};
}

// Reads all values: when one of them cannot be read, the record is not written.
bool clsDbNosepiece::Differs(const controller::ObjectiveRecord& record, const Objective& stored) {
  const std::string name = record.Name();
  ObjectiveValues values;
  values.series = record.SeriesCode();
  values.type = record.TypeCode();
  values.magnification = record.Magnification();
  values.workingDistance = record.WorkingDistance();
  values.numericalAperture = record.NumericalAperture();
  return RightTrim(name) != RightTrim(stored.name) || values != stored.values;
}

std::string clsDbNosepiece::ModifySdk(std::string& list) const {
  return CollectDifferences(list, kFailure, [this](std::string& lines) {
    ForEachOption(parent.Mic.AccessoryDatabase().Nosepieces(),
                  [&](const controller::ObjectiveRecord& record) { CompareRecord(record, lines); });
  });
}

// A record that differs in its values and in its condenser gets two lines.
void clsDbNosepiece::CompareRecord(const controller::ObjectiveRecord& record,
                                   std::string& lines) const {
  const std::int32_t code = record.Code();
  const std::size_t index = CheckedIndex(code, 0, kCodes);
  const std::int32_t position = code - kOptionBase;
  const std::string line = ItemLine(kItem, position) + " " +
                           FirstCharacters(objectives_[index].name, kObjectiveNameLength);
  if (Differs(record, objectives_[index])) lines = AppendLine(lines, line);
  if (!IsOptionPosition(position)) return;
  if (AskCode(position).condenser != condensers_[index]) lines = AppendLine(lines, line);
}

std::string clsDbNosepiece::WriteSdk() const {
  WriteReport report(kFailure);
  report.Run([&] {
    WriteEachOption(
        report, parent.Mic.AccessoryDatabase().Nosepieces(),
        [&](const controller::ObjectiveRecord& record) { WriteRecord(record, report); });
  });
  return report.Lines();
}

void clsDbNosepiece::WriteRecord(const controller::ObjectiveRecord& record,
                                 WriteReport& report) const {
  const std::int32_t code = record.Code();
  const std::int32_t position = code - kOptionBase;
  ErrorTrap trap;
  WriteValues(record, code, trap);
  if (trap.TakeFailed()) report.Add(ItemLine(kItem, position));
  if (!IsOptionPosition(position)) return;
  report.Add(LineIfFailed(ItemLine(kItem, position), [&] { WriteCondenser(position); }));
}

// The values are written even if writing the name failed.
void clsDbNosepiece::WriteValues(const controller::ObjectiveRecord& record, std::int32_t code,
                                 ErrorTrap& trap) const {
  const Objective* stored = nullptr;
  bool differs = false;
  trap.Run([&] {
    stored = &objectives_[CheckedIndex(code, 0, kCodes)];
    differs = Differs(record, *stored);
  });
  if (!differs) return;
  trap.Run([&] { record.PutName(stored->name); });
  trap.Run([&] {
    const ObjectiveValues& values = stored->values;
    record.SetProperties(values.series, values.type, values.magnification, values.workingDistance,
                         values.numericalAperture);
  });
}

void clsDbNosepiece::WriteCondenser(std::int32_t position) const {
  const std::int32_t condenser = AdoptiveCondenser(kOptionBase + position);
  const CodeAnswer held = AskCode(position);
  if (held.condenser == condenser) return;
  if (CharacterCount(held.code) < kObjectiveCodeLength) {
    RaiseOwnFailure(kConversionError, "The objective code \"" + held.code + "\" is too short.");
  }
  parent.Mic.SendCommand("cONS" + std::to_string(position) +
                         FirstCharacters(held.code, kObjectiveCodeLength - 1) +
                         std::to_string(condenser));
}

bool clsDbNosepiece::IsLegal(const ObjectiveValues& values) const {
  return lists_.series.Has(values.series) && lists_.types.Has(values.type) &&
         IsWithin(values.magnification, kHighestMagnification) &&
         IsWithin(values.workingDistance, kHighestDistance) &&
         IsWithin(values.numericalAperture, kHighestAperture);
}

std::string clsDbNosepiece::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  const std::int32_t position = fields.Number("POSITION");
  const std::string text = fields.Text("CODE");
  const std::string name = RightTrim(fields.Text("NAME"));
  const ObjectiveValues values = DecodeObjective(text);
  if (CharacterCount(text) != kObjectiveCodeLength || !IsOptionPosition(position) ||
      CharacterCount(name) > kObjectiveNameLength || !IsLegal(values)) {
    return ItemLine(kItem, position);
  }
  const std::int32_t condenser = CondenserDigit(text);
  const std::size_t code = IndexOfOption(position);
  objectives_[code] = {name, values};
  condensers_[code] = condenser;
  return {};
}

void clsDbNosepiece::WriteDom(DomDocument& document, DomNode section) const {
  for (std::int32_t position = 1; position <= kOptionPositions; ++position) {
    const std::size_t code = IndexOfOption(position);
    DomNode element = document.CreateElement(kElement);
    element.SetAttribute("POSITION", std::to_string(position));
    element.SetAttribute("CODE", EncodeObjective(objectives_[code].values, condensers_[code]));
    element.SetAttribute("NAME", objectives_[code].name);
    section.Append(element);
  }
}

}  // namespace mortane
