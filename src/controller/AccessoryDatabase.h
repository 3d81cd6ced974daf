// The controller's database of objectives, condensers and filters, members in the library's
// order. Collections count from 1.
#pragma once

#include "controller/Proxy.h"

namespace mortane::controller {

class DatabaseRecord : public Proxy {
 public:
  using Proxy::Proxy;
  // True for a record that the user may define; writing any other fails.
  bool IsOption() const { return GetBoolean("IsOption"); }
  std::string Name() const { return GetText("Name"); }
  void PutName(const std::string& name) const { Put("Name", name); }
  std::int32_t Code() const { return GetLong("Code"); }
};

class ObjectiveRecord : public DatabaseRecord {
 public:
  using DatabaseRecord::DatabaseRecord;
  double Magnification() const { return GetDouble("Magnification"); }
  double NumericalAperture() const { return GetDouble("NumericalAperture"); }
  // Millimetres.
  double WorkingDistance() const { return GetDouble("WorkingDistance"); }
  std::int32_t TypeCode() const { return GetLong("TypeCode"); }
  std::int32_t SeriesCode() const { return GetLong("SeriesCode"); }
  // Writes the five values of an optional record at once; the distance is in millimetres.
  void SetProperties(std::int32_t series, std::int32_t type, double magnification,
                     double workingDistance, double numericalAperture) const {
    Call("SetProperties", {series, type, magnification, workingDistance, numericalAperture});
  }
};

class CondenserRecord : public DatabaseRecord {
 public:
  using DatabaseRecord::DatabaseRecord;
  // 1 when the record fits that cassette address, from 1.
  std::int32_t SuitsAddress(std::int32_t address) const {
    return GetLong("SuitsAddress", {address});
  }
};

class FilterCubeRecord : public DatabaseRecord {
 public:
  using DatabaseRecord::DatabaseRecord;
  std::int32_t ExciterCode() const { return GetLong("ExciterCode"); }
  void PutExciterCode(std::int32_t code) const { Put("ExciterCode", code); }
  std::int32_t DichroicCode() const { return GetLong("DichroicCode"); }
  void PutDichroicCode(std::int32_t code) const { Put("DichroicCode", code); }
  std::int32_t BarrierCode() const { return GetLong("BarrierCode"); }
  void PutBarrierCode(std::int32_t code) const { Put("BarrierCode", code); }
};

// An entry of a list of names.
class NamedItem : public Proxy {
 public:
  using Proxy::Proxy;
  std::string Name() const { return GetText("Name"); }
};

template <typename Record>
class RecordList : public Proxy {
 public:
  using Proxy::Proxy;
  // index from 1; out of range raises a failure.
  Record Item(std::int32_t index) const { return Record(GetObject("Item", {index})); }
  std::int32_t Count() const { return GetLong("Count"); }
};

class AccessoryDatabase : public Proxy {
 public:
  using Proxy::Proxy;
  RecordList<ObjectiveRecord> Nosepieces() const { return List<ObjectiveRecord>("Nosepieces"); }
  RecordList<CondenserRecord> Condensers() const { return List<CondenserRecord>("Condensers"); }
  RecordList<DatabaseRecord> Exciters() const { return List<DatabaseRecord>("Exciters"); }
  RecordList<DatabaseRecord> Barriers() const { return List<DatabaseRecord>("Barriers"); }
  RecordList<DatabaseRecord> Dichroics() const { return List<DatabaseRecord>("Dichroics"); }
  RecordList<FilterCubeRecord> FilterCubes() const { return List<FilterCubeRecord>("FilterCubes"); }
  // Numbers of fixed records, options not counted.
  std::int32_t CondenserCount() const { return GetLong("CondenserCount"); }
  std::int32_t ExciterCount() const { return GetLong("ExciterCount"); }
  std::int32_t DichroicCount() const { return GetLong("DichroicCount"); }
  std::int32_t BarrierCount() const { return GetLong("BarrierCount"); }
  std::int32_t FilterCubeCount() const { return GetLong("FilterCubeCount"); }
  std::int32_t ObjectiveSeriesCount() const { return GetLong("ObjectiveSeriesCount"); }
  std::int32_t ObjectiveTypeCount() const { return GetLong("ObjectiveTypeCount"); }
  // Their counts are ObjectiveSeriesCount and ObjectiveTypeCount.
  RecordList<NamedItem> ObjectiveSeries() const { return List<NamedItem>("ObjectiveSeries"); }
  RecordList<NamedItem> ObjectiveTypes() const { return List<NamedItem>("ObjectiveTypes"); }

 private:
  template <typename Record>
  RecordList<Record> List(std::string_view member) const {
    return RecordList<Record>(GetObject(member));
  }
};

}  // namespace mortane::controller
