#include "record/ReportTables.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/Numbers.h"
#include "common/Text.h"
#include "model/OptionCodes.h"
#include "objectives/clsDbNosepiece.h"
#include "record/ItemIndex.h"
#include "record/ItemWords.h"

namespace mortane {
namespace {

using enum ItemKind;

struct SectionRow {
  std::string_view title;
  std::string_view drawingOf;
  TurretKindDrawn drawing;
  ItemKind address;  // of the turret that is drawn
  std::vector<ItemKind> kinds;
};

const std::array<SectionRow, 6>& SectionTable() {
  static const std::array<SectionRow, 6> table{{
      {"Objective",
       "Nosepiece",
       TurretKindDrawn::Objectives,
       ObjectiveAddress,
       {ObjectiveAddress, NosepieceLimit, ObjectiveCode, ObjectiveName}},
      {"Filter Cube",
       "Filter Turret",
       TurretKindDrawn::Tiles,
       CubeAddress,
       {CubeAddress, CubeCode, CubeName, ExciterName, DichroicName, BarrierName}},
      {"Condenser",
       "Condenser Turret",
       TurretKindDrawn::Tiles,
       CondenserAddress,
       {CondenserAddress, CondenserName}},
      {"InterLock",
       "",
       TurretKindDrawn::Tiles,
       Unknown,
       {ObservationInterlock, NosepieceInterlock, LightPathInterlock, ZoomInterlock, Offset}},
      {"Control",
       "",
       TurretKindDrawn::Tiles,
       Unknown,
       {FocusCompensation, LowerLimit, FocusEscape, StageEscape, StageCompensation, FocusKnob,
        FocusSensitivity, StageKnob, StageSensitivity, Buzzer, BodySwitches, HandSwitches,
        RemoteSwitches, RemoteLed}},
      {"Switch", "", TurretKindDrawn::Tiles, Unknown, {BodySwitch, HandMode, HandSide, HandSwitch}},
  }};
  return table;
}

// The name of a user's record stands in the row of its values.
bool HasRowOfItsCode(ItemKind kind) {
  return kind == ObjectiveName || kind == CubeName;
}

bool IsUsersName(ItemKind kind) {
  return kind == ExciterName || kind == DichroicName || kind == BarrierName ||
         kind == CondenserName;
}

bool IsFreeName(std::string_view name) {
  return Trim(name).empty() || IsVacant(name);
}

// One state in the words of its tables.
class StateWords {
 public:
  explicit StateWords(const ConfigurationState& state) : state_(state), index_(state.items) {}

  const ConfigurationItem* Find(const ItemKey& key) const { return index_.Find(key); }

  // A user's objective or cube begins with its name.
  std::string ValueOf(const ConfigurationItem& item) const {
    std::string value = ValueInWords(item, state_.names);
    if (item.kind != ObjectiveCode && item.kind != CubeCode) return value;
    const ConfigurationItem* name = NameOf(item);
    return name == nullptr ? value : ValueInWords(*name, state_.names) + ": " + value;
  }

  // Of the user's records one without a name and values is free.
  bool IsFree(const ConfigurationItem& item) const {
    if (IsUsersName(item.kind)) return IsFreeName(item.value);
    if (item.kind != ObjectiveCode && item.kind != CubeCode) return false;
    const ConfigurationItem* name = NameOf(item);
    return (name == nullptr || IsFreeName(name->value)) &&
           ValueInWords(item, state_.names) == kNoMagnification;
  }

  TurretPlace PlaceOf(const ConfigurationItem& item) const {
    const std::string name = ValueInWords(item, state_.names);
    if (IsFreeName(name)) return {};
    if (item.kind != ObjectiveAddress) return {name, name, std::nullopt};
    const auto magnification = state_.names.Magnification(ToLong(item.value, PointFormat()));
    if (!magnification) return {name, name, std::nullopt};
    const std::string mark = MagnificationText(*magnification);
    return {mark, mark + ", " + name, magnification};
  }

 private:
  const ConfigurationItem* NameOf(const ConfigurationItem& item) const {
    ItemKey key = item.key;
    key.attribute = "NAME";
    return index_.Find(key);
  }

  const ConfigurationState& state_;
  ItemIndex index_;
};

// The rows of one section. Free records of the user are told together.
class SectionBuilder {
 public:
  SectionBuilder(const ReportContent& content, const StateWords& words, const StateWords* before)
      : content_(content), words_(words), before_(before) {}

  ReportSection Build(const SectionRow& row) const {
    ReportSection section;
    section.title = row.title;
    section.drawing = row.drawing;
    for (const ItemKind kind : row.kinds) AddKind(kind, section);
    if (row.address == Unknown) return section;
    for (const ConfigurationItem& item : content_.state.items) {
      if (item.kind == row.address) section.places.push_back(words_.PlaceOf(item));
    }
    if (!section.places.empty()) section.drawingOf = row.drawingOf;
    return section;
  }

 private:
  void AddKind(ItemKind kind, ReportSection& section) const {
    std::string free;
    for (const ConfigurationItem& item : content_.state.items) {
      if (item.kind != kind || HasOwnRow(item)) continue;
      ReportRow row = RowOf(item);
      if (!row.changed && words_.IsFree(item)) {
        free += (free.empty() ? "" : ", ") + item.key.position;
      } else {
        section.rows.push_back(std::move(row));
      }
    }
    if (free.empty()) return;
    ItemKey key;
    key.position = free;
    section.rows.push_back({NameInWords(key, kind), std::string(kNoMagnification), {}, false});
  }

  // A name whose values are missing from the file has a row of its own.
  bool HasOwnRow(const ConfigurationItem& item) const {
    if (!HasRowOfItsCode(item.kind)) return false;
    ItemKey key = item.key;
    key.attribute = "CODE";
    return words_.Find(key) != nullptr;
  }

  ReportRow RowOf(const ConfigurationItem& item) const {
    ReportRow row{NameInWords(item.key, item.kind), words_.ValueOf(item), {}, false};
    if (before_ == nullptr) return row;
    const ConfigurationItem* old = before_->Find(item.key);
    if (old != nullptr) row.before = before_->ValueOf(*old);
    row.changed = old == nullptr || row.before != row.value || !HaveSameValue(*old, item);
    return row;
  }

  const ReportContent& content_;
  const StateWords& words_;
  const StateWords* before_;
};

}  // namespace

std::vector<ReportRow> HeadRows(const ReportContent& content) {
  std::vector<ReportRow> rows;
  for (const ConfigurationItem& item : content.state.items) {
    if (item.kind != SystemName) continue;
    rows.push_back(
        {NameInWords(item.key, item.kind), ValueInWords(item, content.state.names), {}, false});
  }
  const std::pair<const char*, const std::string*> lines[] = {
      {"Device", &content.device}, {"Date", &content.time}, {"Program", &content.version}};
  for (const auto& [name, value] : lines) {
    if (!value->empty()) rows.push_back({name, *value, {}, false});
  }
  return rows;
}

std::vector<ReportRow> ChangedRows(const ReportContent& content) {
  std::vector<ReportRow> rows;
  if (!content.before) return rows;
  const Differences differences = DifferencesOf(content.before->items, content.state.items);
  for (const ItemChange& change : differences.changed) {
    rows.push_back({NameInWords(change.to.key, change.to.kind),
                    ValueInWords(change.to, content.state.names),
                    ValueInWords(change.from, content.before->names), true});
  }
  for (const ConfigurationItem& item : differences.onlyFirst) {
    rows.push_back({NameInWords(item.key, item.kind), std::string(kNoMagnification),
                    ValueInWords(item, content.before->names), true});
  }
  for (const ConfigurationItem& item : differences.onlySecond) {
    rows.push_back({NameInWords(item.key, item.kind), ValueInWords(item, content.state.names),
                    std::string(kNoMagnification), true});
  }
  return rows;
}

std::vector<ReportSection> SectionsOf(const ReportContent& content) {
  const StateWords words(content.state);
  std::optional<StateWords> before;
  if (content.before) before.emplace(*content.before);
  const SectionBuilder builder(content, words, before ? &*before : nullptr);
  std::vector<ReportSection> sections;
  for (const SectionRow& row : SectionTable()) {
    ReportSection section = builder.Build(row);
    if (!section.rows.empty()) sections.push_back(std::move(section));
  }
  ReportSection others{"Others", {}, TurretKindDrawn::Tiles, {}, {}};
  for (const ConfigurationItem& item : content.state.items) {
    if (item.kind == Unknown) others.rows.push_back({KeyText(item.key), item.value, {}, false});
  }
  if (!others.rows.empty()) sections.push_back(std::move(others));
  return sections;
}

}  // namespace mortane
