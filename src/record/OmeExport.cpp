#include "record/OmeExport.h"

#include <array>
#include <vector>

#include "common/Numbers.h"
#include "common/Text.h"
#include "document/Dom.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "hub/clsK70.h"
#include "model/OptionCodes.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsNosepiece.h"
#include "record/SafeText.h"

namespace mortane {
namespace {

constexpr std::string_view kSchema = "http://www.openmicroscopy.org/Schemas/OME/2016-06";
constexpr std::string_view kModel = "K70";

struct ImmersionRow {
  std::string_view type;
  std::string_view immersion;
};
constexpr std::array<ImmersionRow, 3> kImmersions{
    {{"Dry", "Air"}, {"Oil", "Oil"}, {"Water", "Water"}}};
constexpr std::string_view kOtherImmersion = "Other";

bool IsFree(std::string_view name) {
  return Trim(name).empty() || IsVacant(name);
}

// A wavelength or a width in nanometres; only digits and a point are one.
std::optional<double> Nanometres(std::string_view text) {
  if (text.empty() || text.find_first_not_of("0123456789.") != std::string_view::npos) {
    return std::nullopt;
  }
  const std::optional<double> value = ParseNumber(text, PointFormat());
  return value && *value > 0 ? value : std::nullopt;
}

// "LP 515" or "LP515".
std::optional<double> Behind(std::string_view name, std::string_view opening) {
  if (!name.starts_with(opening)) return std::nullopt;
  name.remove_prefix(opening.size());
  if (name.starts_with(' ')) name.remove_prefix(1);
  return Nanometres(name);
}

std::string Text(double value) {
  return ShortestGeneral(value, PointFormat());
}

// Appends one element after another, with attributes as pairs.
class Writer {
 public:
  DomNode Add(DomNode parent, std::string_view element) {
    const DomNode node = document_.CreateElement(element);
    parent.Append(node);
    return node;
  }
  DomNode Root() {
    DomNode root = document_.CreateElement("OME");
    root.SetAttribute("xmlns", kSchema);
    document_.Append(root);
    return root;
  }
  std::string ToText() const { return document_.ToText() + "\n"; }

 private:
  DomDocument document_;
};

void SetName(DomNode node, std::string_view name) {
  node.SetAttribute("Model", Readable(Trim(name)));
}

// A value that is 0 is none.
void SetNumber(DomNode node, std::string_view attribute, double value) {
  if (value > 0) node.SetAttribute(attribute, Text(value));
}

std::string_view ImmersionOf(std::string_view type) {
  for (const ImmersionRow& row : kImmersions) {
    if (row.type == type) return row.immersion;
  }
  return kOtherImmersion;
}

// The walk over a series gives the values of a code as texts in the user's format; an objective of
// a series that does not exist has no others than name and magnification.
void AddObjective(Writer& writer, DomNode instrument, const clsDbNosepiece& objectives,
                  std::int32_t address, std::int32_t code) {
  const std::string name = objectives.Name(code);
  const double magnification = objectives.Magnification(code);
  if (IsVacant(name) || (Trim(name).empty() && magnification == 0)) return;
  std::string type;
  std::string mag;
  std::string distance;
  std::string aperture;
  std::string listed;
  std::int32_t found = code - 1;
  objectives.Get_DbNosepiecePocket(objectives.SeriesCode(code), found, type, mag, distance,
                                   aperture, listed);
  DomNode node = writer.Add(instrument, "Objective");
  node.SetAttribute("ID", "Objective:" + std::to_string(address));
  if (!Trim(name).empty()) SetName(node, name);
  SetNumber(node, "NominalMagnification", magnification);
  if (found != code) return;
  SetNumber(node, "LensNA", ToDouble(aperture));
  if (ToDouble(distance) > 0) {
    SetNumber(node, "WorkingDistance", ToDouble(distance));
    node.SetAttribute("WorkingDistanceUnit", "mm");
  }
  if (!IsFree(type)) node.SetAttribute("Immersion", ImmersionOf(Trim(type)));
}

struct Part {
  std::string reference;  // the element of the set
  std::string id;
  std::string name;
};

struct Cube {
  std::string id;
  std::string name;
  std::vector<Part> parts;  // filters and mirror in the order of the light
};

std::vector<Cube> MountedCubes(const clsK70& k70) {
  std::vector<Cube> cubes;
  for (std::int32_t address = 1; address <= k70.curFilter.Count; ++address) {
    std::string name;
    std::string exciter;
    std::string dichroic;
    std::string barrier;
    k70.dbFilter.Get_DbFilter(k70.curFilter.code(address), name, exciter, dichroic, barrier);
    if (IsFree(name)) continue;
    const std::string number = std::to_string(address);
    Cube cube{"FilterSet:" + number, name, {}};
    const std::array<Part, 3> parts{
        {{"ExcitationFilterRef", "Filter:" + number + "-excitation", exciter},
         {"DichroicRef", "Dichroic:" + number, dichroic},
         {"EmissionFilterRef", "Filter:" + number + "-emission", barrier}}};
    for (const Part& part : parts) {
      if (!IsFree(part.name)) cube.parts.push_back(part);
    }
    cubes.push_back(std::move(cube));
  }
  return cubes;
}

void AddFilter(Writer& writer, DomNode instrument, const Part& part) {
  DomNode node = writer.Add(instrument, "Filter");
  node.SetAttribute("ID", part.id);
  SetName(node, part.name);
  const std::optional<FilterRange> range = RangeInName(Trim(part.name));
  if (!range) return;
  const bool isBand = range->cutIn && range->cutOut;
  node.SetAttribute("Type", isBand ? "BandPass" : range->cutIn ? "LongPass" : "ShortPass");
  DomNode passed = writer.Add(node, "TransmittanceRange");
  if (range->cutIn) passed.SetAttribute("CutIn", Text(*range->cutIn));
  if (range->cutIn) passed.SetAttribute("CutInUnit", "nm");
  if (range->cutOut) passed.SetAttribute("CutOut", Text(*range->cutOut));
  if (range->cutOut) passed.SetAttribute("CutOutUnit", "nm");
}

// The schema wants all sets before all filters, and these before all mirrors.
void AddCubes(Writer& writer, DomNode instrument, const std::vector<Cube>& cubes) {
  for (const Cube& cube : cubes) {
    DomNode set = writer.Add(instrument, "FilterSet");
    set.SetAttribute("ID", cube.id);
    SetName(set, cube.name);
    for (const Part& part : cube.parts) writer.Add(set, part.reference).SetAttribute("ID", part.id);
  }
  const auto isMirror = [](const Part& part) { return part.reference == "DichroicRef"; };
  for (const Cube& cube : cubes) {
    for (const Part& part : cube.parts) {
      if (!isMirror(part)) AddFilter(writer, instrument, part);
    }
  }
  for (const Cube& cube : cubes) {
    for (const Part& part : cube.parts) {
      if (!isMirror(part)) continue;
      DomNode node = writer.Add(instrument, "Dichroic");
      node.SetAttribute("ID", part.id);
      SetName(node, part.name);
    }
  }
}

}  // namespace

std::optional<FilterRange> RangeInName(std::string_view name) {
  if (const auto from = Behind(name, "LP")) return FilterRange{from, std::nullopt};
  if (const auto to = Behind(name, "SP")) return FilterRange{std::nullopt, to};
  const std::size_t slash = name.find('/');
  if (slash == std::string_view::npos) return std::nullopt;
  const auto middle = Nanometres(name.substr(0, slash));
  const auto width = Nanometres(name.substr(slash + 1));
  if (!middle || !width || *width / 2 >= *middle) return std::nullopt;
  return FilterRange{*middle - *width / 2, *middle + *width / 2};
}

std::string OmeXml(const clsK70& k70) {
  Writer writer;
  DomNode instrument = writer.Add(writer.Root(), "Instrument");
  instrument.SetAttribute("ID", "Instrument:1");
  writer.Add(instrument, "Microscope").SetAttribute("Model", kModel);
  if (k70.IsMounted(accessory::kNosepiece) != kNotMounted) {
    for (std::int32_t address = 1; address <= k70.curNosepiece.Count; ++address) {
      AddObjective(writer, instrument, k70.DbNosepiece, address, k70.curNosepiece.code(address));
    }
  }
  if (k70.IsMounted(accessory::kFilterCube) != kNotMounted) {
    AddCubes(writer, instrument, MountedCubes(k70));
  }
  return writer.ToText();
}

}  // namespace mortane
