#include "controller/simulator/BenchFile.h"

#include <array>

#include "common/Failure.h"
#include "controller/simulator/BenchElements.h"

namespace mortane::controller {
namespace bench_file {
namespace {

constexpr std::string_view kRoot = "Bench";

constexpr std::array<std::string_view, 7> kUnits{"1", "2", "3", "4", "5", "6", "7"};
constexpr std::array<std::string_view, accessory::kCount> kAccessories{
    "NDFilter", "FieldStop", "ApertureStop", "Lamp",      "Condenser", "FilterCube",   "Shutter",
    "Analyzer", "Nosepiece", "Zoom",         "LightPath", "ZDrive",    "EpiFieldStop", "XYDrive"};
constexpr std::array<std::string_view, kBodySwitches> kBodyKeys{
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "A", "B", "C", "D", "E", "F", "G"};
constexpr std::array<std::string_view, kHandSwitches> kHandKeys{
    "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "A", "B", "C", "D", "E"};

constexpr std::array kDatabaseRows{
    Row<Listed<&DatabaseData::series>>("Series"),
    Row<Listed<&DatabaseData::types>>("Type"),
    Row<Listed<&DatabaseData::objectives>>("Objective"),
    Row<Listed<&DatabaseData::condensers>>("Condenser"),
    Row<Listed<&DatabaseData::exciters>>("Exciter"),
    Row<Listed<&DatabaseData::dichroics>>("Dichroic"),
    Row<Listed<&DatabaseData::barriers>>("Barrier"),
    Row<Listed<&DatabaseData::cubes>>("Cube"),
};

struct DatabaseKind {
  using Owner = Instrument;

  static void Read(const DomNode& node, Instrument& instrument, Seen& seen) {
    CheckFirst(node, seen, node.Name());
    for (const DomAttribute& attribute : node.Attributes()) {
      RaiseAt(node, "unknown attribute \"" + attribute.name + "\"");
    }
    ReadChildren(node, instrument.database, kDatabaseRows);
  }
  static void Write(DomDocument& document, DomNode parent, std::string_view name,
                    const Instrument& instrument) {
    if (instrument.database == DatabaseData()) return;
    WriteChildren(document, AppendElement(document, parent, name), instrument.database,
                  kDatabaseRows);
  }
};

constexpr std::array kInstrumentRows{
    Row<Keyed<&Instrument::units, kUnits>>("Unit"),
    Row<Single<&Instrument::buzzers>>("Buzzers"),
    Row<Single<&Instrument::switches>>("Switches"),
    Row<Keyed<&Instrument::accessories, kAccessories>>("Accessory"),
    Row<Listed<&Instrument::nosepiece>>("NosepiecePlace"),
    Row<Listed<&Instrument::filterCubes>>("FilterCubePlace"),
    Row<Listed<&Instrument::condensers>>("CondenserPlace"),
    Row<Single<&Instrument::zDrive>>("ZDrive"),
    Row<Single<&Instrument::xyDrive>>("XYDrive"),
    Row<Keyed<&Instrument::interlocks, kAccessories>>("Interlock"),
    Row<Keyed<&Instrument::bodySwitches, kBodyKeys>>("BodySwitch"),
    Row<Keyed<&Instrument::handSwitches, kHandKeys>>("HandSwitch"),
    Row<DatabaseKind>("Database"),
};

struct InstrumentKind {
  using Owner = Bench;

  static void Read(const DomNode& node, Bench& bench, Seen& /*seen*/) {
    Instrument& instrument = bench.instruments.emplace_back();
    ReadAttributes(node, instrument);
    ReadChildren(node, instrument, kInstrumentRows);
  }
  static void Write(DomDocument& document, DomNode parent, std::string_view name,
                    const Bench& bench) {
    for (const Instrument& instrument : bench.instruments) {
      const DomNode element = AppendElement(document, parent, name);
      WriteAttributes(element, instrument);
      WriteChildren(document, element, instrument, kInstrumentRows);
    }
  }
};

constexpr std::array kBenchRows{
    Row<Single<&Bench::fiber>>("Fiber"),
    Row<InstrumentKind>("Instrument"),
};

Bench BenchOf(const DomNode& root) {
  if (root.Name() != kRoot) RaiseAt(root, "the root of a bench file is <Bench>");
  for (const DomAttribute& attribute : root.Attributes()) {
    RaiseAt(root, "unknown attribute \"" + attribute.name + "\"");
  }
  Bench bench;
  ReadChildren(root, bench, kBenchRows);
  if (bench.instruments.empty()) RaiseAt(root, "there is no <Instrument>");
  return bench;
}

DomDocument DocumentOf(const Bench& bench) {
  DomDocument document;
  const DomNode root = document.CreateElement(kRoot);
  document.Append(root);
  WriteChildren(document, root, bench, kBenchRows);
  return document;
}

}  // namespace
}  // namespace bench_file

Bench ReadBenchFile(const std::string& path) {
  DomDocument document;
  if (!document.Load(path)) RaiseOwnFailure(kConversionError, document.Problem());
  try {
    for (const DomNode& node : document.Children()) {
      if (node.IsElement()) return bench_file::BenchOf(node);
    }
  } catch (const Failure& failure) {
    throw Failure(failure.Source(), failure.Number(), path + ": " + failure.Description());
  }
  RaiseOwnFailure(kConversionError, path + ": no element.");
}

void WriteBenchFile(const std::string& path, const Bench& bench) {
  bench_file::DocumentOf(bench).Save(path);
}

std::string BenchFileText(const Bench& bench) {
  return bench_file::DocumentOf(bench).ToText();
}

}  // namespace mortane::controller
