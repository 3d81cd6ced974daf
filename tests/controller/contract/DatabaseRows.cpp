#include "controller/contract/MemberRows.h"

namespace mortane::controller::test {
namespace {

using Database = AccessoryDatabase;

// The list itself, and what its records share. The last record is an option, which can be written.
template <typename Record>
void AddList(std::vector<MemberRow>& rows, const std::string& name, std::int32_t count,
             const std::string& firstName, const std::string& lastCode,
             RecordList<Record> (Database::*list)() const) {
  const auto take = [list](const Microscope& root) { return (root.AccessoryDatabase().*list)(); };
  const auto first = [take](const Microscope& root) { return take(root).Item(1); };
  const auto last = [take, count](const Microscope& root) { return take(root).Item(count); };
  const std::string path = "AccessoryDatabase." + name;
  const std::string onFirst = path + ".Item(1).";
  const std::string onLast = path + ".Item(" + std::to_string(count) + ").";
  rows.push_back(Row(take, path + ".Count -> " + std::to_string(count),
                     [](const RecordList<Record>& l) { l.Count(); }));
  rows.push_back(Row(first, onFirst + "IsOption -> false", [](const Record& r) { r.IsOption(); }));
  rows.push_back(
      Row(first, onFirst + "Name -> \"" + firstName + "\"", [](const Record& r) { r.Name(); }));
  rows.push_back(Row(first, onFirst + "Code -> 1", [](const Record& r) { r.Code(); }));
  rows.push_back(Row(last, onLast + "IsOption -> true", [](const Record& r) { r.IsOption(); }));
  rows.push_back(Row(last, onLast + "Code -> " + lastCode, [](const Record& r) { r.Code(); }));
  rows.push_back(Row(last, onLast + "Name = \"Own\"", [](const Record& r) { r.PutName("Own"); }));
  rows.push_back(Row(last, onLast + "Name -> \"Own\"", [](const Record& r) { r.Name(); }));
}

void AddObjectives(std::vector<MemberRow>& rows) {
  using Record = ObjectiveRecord;
  const auto last = [](const Microscope& root) {
    return root.AccessoryDatabase().Nosepieces().Item(35);
  };
  const std::string path = "AccessoryDatabase.Nosepieces.Item(35).";
  rows.push_back(Row(last, path + "SetProperties(2, 3, 12.5, 0.17, 1.45)",
                     [](const Record& r) { r.SetProperties(2, 3, 12.5, 0.17, 1.45); }));
  rows.push_back(
      Row(last, path + "Magnification -> 12.5", [](const Record& r) { r.Magnification(); }));
  rows.push_back(Row(last, path + "NumericalAperture -> 1.45",
                     [](const Record& r) { r.NumericalAperture(); }));
  rows.push_back(
      Row(last, path + "WorkingDistance -> 0.17", [](const Record& r) { r.WorkingDistance(); }));
  rows.push_back(Row(last, path + "TypeCode -> 3", [](const Record& r) { r.TypeCode(); }));
  rows.push_back(Row(last, path + "SeriesCode -> 2", [](const Record& r) { r.SeriesCode(); }));
}

void AddCubes(std::vector<MemberRow>& rows) {
  using Record = FilterCubeRecord;
  const auto last = [](const Microscope& root) {
    return root.AccessoryDatabase().FilterCubes().Item(19);
  };
  const std::string path = "AccessoryDatabase.FilterCubes.Item(19).";
  rows.push_back(Row(last, path + "ExciterCode = 3", [](const Record& r) { r.PutExciterCode(3); }));
  rows.push_back(Row(last, path + "ExciterCode -> 3", [](const Record& r) { r.ExciterCode(); }));
  rows.push_back(
      Row(last, path + "DichroicCode = 4", [](const Record& r) { r.PutDichroicCode(4); }));
  rows.push_back(Row(last, path + "DichroicCode -> 4", [](const Record& r) { r.DichroicCode(); }));
  rows.push_back(Row(last, path + "BarrierCode = 5", [](const Record& r) { r.PutBarrierCode(5); }));
  rows.push_back(Row(last, path + "BarrierCode -> 5", [](const Record& r) { r.BarrierCode(); }));
}

void AddCount(std::vector<MemberRow>& rows, const std::string& member, std::int32_t count,
              std::int32_t (Database::*read)() const) {
  const auto database = [](const Microscope& root) { return root.AccessoryDatabase(); };
  rows.push_back(Row(database, "AccessoryDatabase." + member + " -> " + std::to_string(count),
                     [read](const Database& d) { (d.*read)(); }));
}

}  // namespace

std::vector<MemberRow> DatabaseRows() {
  std::vector<MemberRow> rows;
  AddList(rows, "Nosepieces", 35, "Plan A 2x", "249", &Database::Nosepieces);
  AddList(rows, "Condensers", 18, "Bright", "149", &Database::Condensers);
  AddList(rows, "Exciters", 20, "340/26", "249", &Database::Exciters);
  AddList(rows, "Barriers", 20, "LP 420", "249", &Database::Barriers);
  AddList(rows, "Dichroics", 18, "DM 400", "249", &Database::Dichroics);
  AddList(rows, "FilterCubes", 19, "Empty", "249", &Database::FilterCubes);
  AddObjectives(rows);
  AddCubes(rows);
  AddCount(rows, "CondenserCount", 9, &Database::CondenserCount);
  AddCount(rows, "ExciterCount", 11, &Database::ExciterCount);
  AddCount(rows, "DichroicCount", 9, &Database::DichroicCount);
  AddCount(rows, "BarrierCount", 11, &Database::BarrierCount);
  AddCount(rows, "FilterCubeCount", 10, &Database::FilterCubeCount);
  AddCount(rows, "ObjectiveSeriesCount", 6, &Database::ObjectiveSeriesCount);
  AddCount(rows, "ObjectiveTypeCount", 7, &Database::ObjectiveTypeCount);
  const auto series = [](const Microscope& root) {
    return root.AccessoryDatabase().ObjectiveSeries().Item(6);
  };
  const auto type = [](const Microscope& root) {
    return root.AccessoryDatabase().ObjectiveTypes().Item(7);
  };
  const auto condenser = [](const Microscope& root) {
    return root.AccessoryDatabase().Condensers().Item(4);
  };
  rows.push_back(Row(series, "AccessoryDatabase.ObjectiveSeries.Item(6).Name -> \"Epi\"",
                     [](const NamedItem& i) { i.Name(); }));
  rows.push_back(Row(type, "AccessoryDatabase.ObjectiveTypes.Item(7).Name -> \"Macro\"",
                     [](const NamedItem& i) { i.Name(); }));
  rows.push_back(Row(condenser, "AccessoryDatabase.Condensers.Item(4).SuitsAddress(3) -> 0",
                     [](const CondenserRecord& r) { r.SuitsAddress(3); }));
  rows.push_back(Row(condenser, "AccessoryDatabase.Condensers.Item(4).SuitsAddress(4) -> 1",
                     [](const CondenserRecord& r) { r.SuitsAddress(4); }));
  return rows;
}

}  // namespace mortane::controller::test
