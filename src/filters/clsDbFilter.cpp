#include "filters/clsDbFilter.h"

#include <algorithm>
#include <array>

#include "common/CheckedIndex.h"
#include "common/ErrorTrap.h"
#include "common/Numbers.h"
#include "model/ElementFields.h"
#include "model/OptionRecords.h"

namespace mortane {
namespace {

using controller::FilterCubeRecord;

constexpr std::size_t kCodes = kHighestCode + 1;

// Kept: ModifySdk's line has no blank before the bracket.
constexpr std::string_view kFailure = "Filter Cube Optional Cube (";
constexpr std::string_view kModifyFailure = "Filter Cube Optional Cube(";
constexpr std::string_view kItem = "Filter Cube Optional Cube[";

// The text form of the item codes: for each item a mark and three digits.
constexpr std::size_t kItemDigits = 3;
constexpr std::size_t kGroupLength = 1 + kItemDigits;
constexpr std::size_t kCodeTextLength = kFilterItems * kGroupLength;

// In the order in which a cube's record is written and in which its text names the items.
struct ItemMember {
  std::int32_t FilterCubeItems::*code;
  std::int32_t (FilterCubeRecord::*read)() const;
  void (FilterCubeRecord::*write)(std::int32_t) const;
  char mark;
};
constexpr std::array<ItemMember, kFilterItems> kItemMembers{{
    {&FilterCubeItems::exciter, &FilterCubeRecord::ExciterCode, &FilterCubeRecord::PutExciterCode,
     '1'},
    {&FilterCubeItems::dichroic, &FilterCubeRecord::DichroicCode,
     &FilterCubeRecord::PutDichroicCode, '2'},
    {&FilterCubeItems::barrier, &FilterCubeRecord::BarrierCode, &FilterCubeRecord::PutBarrierCode,
     '3'},
}};

bool IsCode(std::int32_t code) {
  return code >= 0 && static_cast<std::size_t>(code) < kCodes;
}

std::size_t OptionIndex(std::int32_t position) {
  return static_cast<std::size_t>(kOptionBase) + static_cast<std::size_t>(position);
}

// The sign of a negative code replaces a zero, so that the text keeps its length.
std::string ThreeDigits(std::int32_t code) {
  std::string text = std::to_string(code);
  const std::size_t sign = code < 0 ? 1U : 0U;
  if (text.size() < kItemDigits) text.insert(sign, kItemDigits - text.size(), '0');
  return text;
}

FilterCubeItems ReadItems(const FilterCubeRecord& record) {
  FilterCubeItems items;
  for (const ItemMember& item : kItemMembers) items.*item.code = (record.*item.read)();
  return items;
}

// The marks are ignored; only the digits count.
FilterCubeItems DecodeItems(std::string_view text) {
  FilterCubeItems items;
  for (const ItemMember& item : kItemMembers) {
    const std::string group = FirstCharacters(text, kGroupLength);
    text.remove_prefix(group.size());
    items.*item.code = ToLong(LastCharacters(group, kItemDigits), PointFormat());
  }
  return items;
}

std::string EncodeItems(const FilterCubeItems& items) {
  std::string text;
  for (const ItemMember& item : kItemMembers) text += item.mark + ThreeDigits(items.*item.code);
  return text;
}

bool AreLegal(const FilterCubeItems& items) {
  return std::all_of(kItemMembers.begin(), kItemMembers.end(), [&](const ItemMember& item) {
    return items.*item.code >= 0 && items.*item.code <= kHighestCode;
  });
}

template <typename Items>
std::string ShownName(const Items& items, std::int32_t code) {
  return code == 0 ? std::string() : FirstCharacters(items.Name(code), kOptionNameLength);
}

}  // namespace

clsDbFilter::clsDbFilter(ConnectedMicroscope& microscope, const clsDbExciter& exciters,
                         const clsDbDichroic& dichroics, const clsDbBarrier& barriers)
    : parent(microscope),
      exciters_(exciters),
      dichroics_(dichroics),
      barriers_(barriers),
      cubes_(kCodes) {}

std::string clsDbFilter::Name(std::int32_t code) const {
  return IsCode(code) ? cubes_[static_cast<std::size_t>(code)].name : std::string();
}

std::int32_t clsDbFilter::FixedCount() const {
  try {
    return parent.Mic.AccessoryDatabase().FilterCubeCount();
  } catch (const Failure&) {
    return 0;
  }
}

void clsDbFilter::Get_DbFilter(std::int32_t code, std::string& sName, std::string& sExciter,
                               std::string& sDichroic, std::string& sBarrier) const {
  for (std::string* text : {&sName, &sExciter, &sDichroic, &sBarrier}) text->clear();
  if (!IsCode(code)) return;
  const Cube& cube = cubes_[static_cast<std::size_t>(code)];
  sName = FirstCharacters(cube.name, kOptionNameLength);
  sExciter = ShownName(exciters_, cube.items.exciter);
  sDichroic = ShownName(dichroics_, cube.items.dichroic);
  sBarrier = ShownName(barriers_, cube.items.barrier);
}

void clsDbFilter::Get_DbFilterOption(std::int32_t npos, std::string& sName, std::int32_t& nExciter,
                                     std::int32_t& nDichroic, std::int32_t& nBarrier) const {
  const Cube cube =
      IsOptionPosition(npos) ? cubes_[OptionIndex(npos)] : Cube{std::string(), {-1, -1, -1}};
  sName = cube.name;
  nExciter = cube.items.exciter;
  nDichroic = cube.items.dichroic;
  nBarrier = cube.items.barrier;
}

void clsDbFilter::Set_DbFilterOption(std::int32_t npos, std::string_view sName,
                                     std::int32_t lExciter, std::int32_t lDichroic,
                                     std::int32_t lBarrier) {
  if (!IsOptionPosition(npos)) return;
  cubes_[OptionIndex(npos)] = {FirstCharacters(sName, kOptionNameLength),
                               {lExciter, lDichroic, lBarrier}};
}

std::string clsDbFilter::ReadSdk() {
  cubes_.assign(kCodes, {});
  if (parent.IsMounted(accessory::kFilterCube) == kNotMounted) return {};
  return FailureOf(kFailure, [this] {
    ForEachRecord(parent.Mic.AccessoryDatabase().FilterCubes(),
                  [this](const FilterCubeRecord& record) { ReadRecord(record); });
  });
}

void clsDbFilter::ReadRecord(const FilterCubeRecord& record) {
  const std::int32_t code = record.Code();
  Cube& cube = cubes_[CheckedIndex(code, 0, kCodes)];
  cube.name = record.Name();
  for (const ItemMember& item : kItemMembers) cube.items.*item.code = (record.*item.read)();
  DropUnknownItems(code, cube.items);
}

// Items beyond the table become 0 after a box; the cube keeps its other items.
void clsDbFilter::DropUnknownItems(std::int32_t code, FilterCubeItems& items) const {
  const auto isBeyond = [&](const ItemMember& item) { return items.*item.code > kHighestCode; };
  if (std::none_of(kItemMembers.begin(), kItemMembers.end(), isBeyond)) return;
  parent.prompts().MsgBox("*** DbFilter.DataError " + std::to_string(code), box::kOk);
  for (const ItemMember& item : kItemMembers) {
    if (isBeyond(item)) items.*item.code = 0;
  }
}

// Reads all values: when one of them cannot be read, the record is not written.
bool clsDbFilter::Differs(const FilterCubeRecord& record, const Cube& stored) {
  const std::string name = record.Name();
  const FilterCubeItems items = ReadItems(record);
  return RightTrim(name) != RightTrim(stored.name) || items != stored.items;
}

std::string clsDbFilter::ModifySdk(std::string& list) const {
  return CollectDifferences(list, kModifyFailure, [this](std::string& lines) {
    ForEachOption(parent.Mic.AccessoryDatabase().FilterCubes(),
                  [&](const FilterCubeRecord& record) { CompareRecord(record, lines); });
  });
}

void clsDbFilter::CompareRecord(const FilterCubeRecord& record, std::string& lines) const {
  const std::int32_t code = record.Code();
  const Cube& stored = cubes_[CheckedIndex(code, 0, kCodes)];
  if (!Differs(record, stored)) return;
  lines = AppendLine(lines, ItemLine(kItem, code - kOptionBase) + " " + stored.name);
}

std::string clsDbFilter::WriteSdk() const {
  WriteReport report(kFailure);
  report.Run([&] {
    WriteEachOption(report, parent.Mic.AccessoryDatabase().FilterCubes(),
                    [&](const FilterCubeRecord& record) { WriteRecord(record, report); });
  });
  return report.Lines();
}

// Each value is written even if writing the one before it failed.
void clsDbFilter::WriteRecord(const FilterCubeRecord& record, WriteReport& report) const {
  const std::int32_t code = record.Code();
  const Cube* stored = nullptr;
  bool differs = false;
  ErrorTrap trap;
  trap.Run([&] {
    stored = &cubes_[CheckedIndex(code, 0, kCodes)];
    differs = Differs(record, *stored);
  });
  if (differs) {
    trap.Run([&] { record.PutName(stored->name); });
    for (const ItemMember& item : kItemMembers) {
      trap.Run([&] { (record.*item.write)(stored->items.*item.code); });
    }
  }
  if (trap.TakeFailed()) report.Add(ItemLine(kItem, code - kOptionBase));
}

std::string clsDbFilter::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  const std::int32_t position = fields.Number("POSITION");
  const std::string text = fields.Text("CODE");
  const FilterCubeItems items = DecodeItems(text);
  if (CharacterCount(text) != kCodeTextLength || !IsOptionPosition(position) || !AreLegal(items)) {
    return ItemLine(kItem, position);
  }
  cubes_[OptionIndex(position)] = {RightTrim(fields.Text("NAME")), items};
  return {};
}

void clsDbFilter::WriteDom(DomDocument& document, DomNode section) const {
  for (std::int32_t position = 1; position <= kOptionPositions; ++position) {
    const Cube& cube = cubes_[OptionIndex(position)];
    DomNode element = document.CreateElement(kElement);
    element.SetAttribute("POSITION", std::to_string(position));
    element.SetAttribute("CODE", EncodeItems(cube.items));
    element.SetAttribute("NAME", cube.name);
    section.Append(element);
  }
}

}  // namespace mortane
