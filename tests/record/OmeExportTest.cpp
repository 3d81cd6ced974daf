#include "record/OmeExport.h"

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "common/Numbers.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "model/ElementFields.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsNosepiece.h"
#include "record/HostileNames.h"
#include "record/ReceivedRig.h"

namespace mortane::test {
namespace {

struct Row {
  const char* name;
  std::optional<double> cutIn;
  std::optional<double> cutOut;
};

TEST(TheRangeInAFiltersName, IsTakenWhereTheNameGivesItPlainly) {
  const Row rows[] = {
      {"365/10", 360, 370}, {"387/11", 381.5, 392.5}, {"472.5/30", 457.5, 487.5},
      {"LP 515", 515, {}},  {"LP515", 515, {}},       {"SP 700", {}, 700},
      {"10/19", 0.5, 19.5},
  };
  for (const Row& row : rows) {
    const auto range = RangeInName(row.name);
    ASSERT_TRUE(range) << row.name;
    EXPECT_EQ(range->cutIn, row.cutIn) << row.name;
    EXPECT_EQ(range->cutOut, row.cutOut) << row.name;
  }
}

TEST(TheRangeInAFiltersName, IsNoneElsewhere) {
  for (const char* name :
       {"",        "Quad",    "DM 495", "365",   "365/",   "/10",        "365/10/5", "365-10",
        "365/-10", "-365/10", "LP",     "LP ",   "LP x",   "LP  515",    "515 LP",   "365/10 nm",
        "10/20",   "0/0",     "365/0",  "1e2/5", "BA 515", "----------", "LP 0",     "365 /10"}) {
    EXPECT_FALSE(RangeInName(name)) << name;
  }
}

struct Exported {
  explicit Exported(const clsK70& k70) {
    EXPECT_TRUE(document.LoadText(OmeXml(k70))) << document.Problem();
    const auto roots = document.Children();
    EXPECT_EQ(roots.size(), 1U);
    EXPECT_EQ(roots[0].Name(), "OME");
    instrument = roots[0].Children().at(0);
    EXPECT_EQ(instrument.Name(), "Instrument");
  }

  // "Objective ID=Objective:1 Model=..." for each child, those of a child in brackets.
  static std::string Line(const DomNode& node) {
    std::string line = node.Name();
    for (const DomAttribute& attribute : node.Attributes()) {
      line += " " + attribute.name + "=" + attribute.value;
    }
    for (const DomNode& child : node.Children()) line += " [" + Line(child) + "]";
    return line;
  }
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (const DomNode& node : instrument.Children()) lines.push_back(Line(node));
    return lines;
  }

  DomDocument document;
  DomNode instrument;
};

// A line of the document stands in two literals where it is long.
// NOLINTBEGIN(bugprone-suspicious-missing-comma)
TEST(AnInstrumentAsOmeXml, HoldsWhatIsMounted) {
  ReceivedRig rig("Quay");
  rig.k70.curNosepiece.code(3, 0);
  EXPECT_EQ(
      Exported(rig.k70).Lines(),
      (std::vector<std::string>{
          "Microscope Model=K70",
          "Objective ID=Objective:1 Model=Plan A 4x NominalMagnification=4 LensNA=0.1 "
          "WorkingDistance=30 WorkingDistanceUnit=mm Immersion=Air",
          "Objective ID=Objective:2 Model=Plan A 20x NominalMagnification=20 LensNA=0.4 "
          "WorkingDistance=1.2 WorkingDistanceUnit=mm Immersion=Air",
          "Objective ID=Objective:4 Model=Plan F 100x Oil NominalMagnification=100 LensNA=1.3 "
          "WorkingDistance=0.16 WorkingDistanceUnit=mm Immersion=Oil",
          "Objective ID=Objective:5 Model=Super C 40x NominalMagnification=40 LensNA=0.95 "
          "WorkingDistance=0.25 WorkingDistanceUnit=mm Immersion=Air",
          "Objective ID=Objective:6 Model=Clinic 25x NominalMagnification=25 LensNA=0.95 "
          "WorkingDistance=1.98 WorkingDistanceUnit=mm Immersion=Water",
          "FilterSet ID=FilterSet:1 Model=UV Blue [ExcitationFilterRef ID=Filter:1-excitation] "
          "[DichroicRef ID=Dichroic:1] [EmissionFilterRef ID=Filter:1-emission]",
          "FilterSet ID=FilterSet:2 Model=Violet [ExcitationFilterRef ID=Filter:2-excitation] "
          "[DichroicRef ID=Dichroic:2] [EmissionFilterRef ID=Filter:2-emission]",
          "FilterSet ID=FilterSet:3 Model=Cyan [ExcitationFilterRef ID=Filter:3-excitation] "
          "[DichroicRef ID=Dichroic:3] [EmissionFilterRef ID=Filter:3-emission]",
          "FilterSet ID=FilterSet:4 Model=Green LP [ExcitationFilterRef ID=Filter:4-excitation] "
          "[DichroicRef ID=Dichroic:4] [EmissionFilterRef ID=Filter:4-emission]",
          "FilterSet ID=FilterSet:5 Model=Red [ExcitationFilterRef ID=Filter:5-excitation] "
          "[DichroicRef ID=Dichroic:5] [EmissionFilterRef ID=Filter:5-emission]",
          "FilterSet ID=FilterSet:6 Model=Empty",
          "Filter ID=Filter:1-excitation Model=365/10 Type=BandPass "
          "[TransmittanceRange CutIn=360 CutInUnit=nm CutOut=370 CutOutUnit=nm]",
          "Filter ID=Filter:1-emission Model=460/50 Type=BandPass "
          "[TransmittanceRange CutIn=435 CutInUnit=nm CutOut=485 CutOutUnit=nm]",
          "Filter ID=Filter:2-excitation Model=405/20 Type=BandPass "
          "[TransmittanceRange CutIn=395 CutInUnit=nm CutOut=415 CutOutUnit=nm]",
          "Filter ID=Filter:2-emission Model=480/40 Type=BandPass "
          "[TransmittanceRange CutIn=460 CutInUnit=nm CutOut=500 CutOutUnit=nm]",
          "Filter ID=Filter:3-excitation Model=436/20 Type=BandPass "
          "[TransmittanceRange CutIn=426 CutInUnit=nm CutOut=446 CutOutUnit=nm]",
          "Filter ID=Filter:3-emission Model=480/40 Type=BandPass "
          "[TransmittanceRange CutIn=460 CutInUnit=nm CutOut=500 CutOutUnit=nm]",
          "Filter ID=Filter:4-excitation Model=480/30 Type=BandPass "
          "[TransmittanceRange CutIn=465 CutInUnit=nm CutOut=495 CutOutUnit=nm]",
          "Filter ID=Filter:4-emission Model=LP 515 Type=LongPass "
          "[TransmittanceRange CutIn=515 CutInUnit=nm]",
          "Filter ID=Filter:5-excitation Model=560/40 Type=BandPass "
          "[TransmittanceRange CutIn=540 CutInUnit=nm CutOut=580 CutOutUnit=nm]",
          "Filter ID=Filter:5-emission Model=630/75 Type=BandPass "
          "[TransmittanceRange CutIn=592.5 CutInUnit=nm CutOut=667.5 CutOutUnit=nm]",
          "Dichroic ID=Dichroic:1 Model=DM 400",
          "Dichroic ID=Dichroic:2 Model=DM 430",
          "Dichroic ID=Dichroic:3 Model=DM 455",
          "Dichroic ID=Dichroic:4 Model=DM 505",
          "Dichroic ID=Dichroic:5 Model=DM 595"}));
}
// NOLINTEND(bugprone-suspicious-missing-comma)

// Objectives of each kind, and a lens of which the database knows no series.
TEST(AnInstrumentAsOmeXml, TellsTheImmersionThatTheTypeSays) {
  const std::pair<std::int32_t, const char*> rows[] = {
      {2, "Air"}, {7, "Oil"}, {16, "Water"}, {4, "Other"}, {1, "Other"}};
  for (const auto& [code, immersion] : rows) {
    ReceivedRig rig("Quay");
    rig.k70.curNosepiece.code(1, code);
    const Exported exported(rig.k70);
    EXPECT_EQ(ElementFields(exported.instrument.Children().at(1)).Text("Immersion"), immersion)
        << code;
  }
  ReceivedRig attic("Attic");
  attic.k70.curNosepiece.code(1, 8);
  EXPECT_EQ(Exported(attic.k70).Lines().at(1),
            "Objective ID=Objective:1 Model=Lost 50x NominalMagnification=50");
  attic.k70.curNosepiece.code(1, 5);
  EXPECT_EQ(Exported(attic.k70).Lines().at(1),
            "Objective ID=Objective:1 NominalMagnification=60 LensNA=0.85 WorkingDistance=0.35 "
            "WorkingDistanceUnit=mm Immersion=Other");
}

class AnExportOf : public ::testing::TestWithParam<std::string> {};

// As the schema orders them; every reference has its element, and every id stands once.
TEST_P(AnExportOf, ABenchHoldsTogether) {
  ReceivedRig rig(GetParam());
  const std::vector<std::string> order{"Microscope", "Objective", "FilterSet", "Filter",
                                       "Dichroic"};
  const Exported exported(rig.k70);
  std::size_t reached = 0;
  std::set<std::string> ids;
  std::set<std::string> references;
  for (const DomNode& node : exported.instrument.Children()) {
    while (reached < order.size() && order[reached] != node.Name()) ++reached;
    ASSERT_LT(reached, order.size()) << node.Name();
    const std::string id = ElementFields(node).Text("ID");
    EXPECT_TRUE(ids.insert(id).second) << id;
    for (const DomNode& child : node.Children()) {
      if (child.Name().ends_with("Ref")) references.insert(ElementFields(child).Text("ID"));
    }
  }
  for (const std::string& id : references) EXPECT_TRUE(ids.contains(id)) << id;
}

TEST_P(AnExportOf, ABenchIsTheSameEveryTime) {
  ReceivedRig rig(GetParam());
  const std::string first = OmeXml(rig.k70);
  rig.k70.Receive();
  EXPECT_EQ(OmeXml(rig.k70), first);
}

INSTANTIATE_TEST_SUITE_P(Benches, AnExportOf, ::testing::ValuesIn(benches::Names()),
                         [](const auto& bench) { return bench.param; });

TEST(AnInstrumentAsOmeXml, WithoutTurretsIsTheMicroscopeAlone) {
  Rig rig("Quay");
  EXPECT_EQ(Exported(rig.k70).Lines(), (std::vector<std::string>{"Microscope Model=K70"}));
}

TEST(AnInstrumentAsOmeXml, TakesHostileNames) {
  for (const std::string& name : HostileNames()) {
    ReceivedRig rig("Quay");
    rig.k70.DbNosepiece.Set_DbNosepiece(1, name, 1, 1, "10", "1", "0.5", 0);
    rig.k70.dbFilter.Set_DbFilterOption(1, name, 241, 241, 241);
    rig.k70.Exciter.Name(241, name);
    rig.k70.curNosepiece.code(1, 241);
    rig.k70.curFilter.code(1, 241);
    EXPECT_GT(Exported(rig.k70).Lines().size(), 8U) << name.substr(0, 40);
  }
}

}  // namespace
}  // namespace mortane::test
