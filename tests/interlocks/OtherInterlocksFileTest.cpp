// What follows nosepiece, light path and zoom, in a settings file.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

using Reader = std::string (clsInterLockOther::*)(const DomNode&);
using Getter = std::int32_t (clsInterLockOther::*)(std::int32_t) const;

// One of the three kinds of elements.
struct Kind {
  const char* element;
  Reader read;
  Getter state;
  std::string refused;  // opening of its line
  std::vector<std::pair<std::int32_t, std::string>> words;
};

const Kind kKinds[] = {
    {"OTHER",
     &clsInterLockOther::ReadDom,
     &clsInterLockOther::Status,
     "InterLock Other[",
     {{1, "ND"},
      {2, "DiaFStop"},
      {3, "DiaAStop"},
      {5, "Condenser"},
      {10, "OpticalZoom"},
      {11, "LightPath"},
      {12, "FoucusStage"},
      {14, "XYStage"}}},
    {"LIGHTPATH",
     &clsInterLockOther::ReadLPDom,
     &clsInterLockOther::LightPathStatus,
     "InterLock LightPath[",
     {{1, "ND"}, {2, "DiaFStop"}, {13, "EpiFStop"}}},
    {"ZOOM",
     &clsInterLockOther::ReadZMDom,
     &clsInterLockOther::ZoomStatus,
     "InterLock Zoom[",
     {{1, "ND"}, {2, "DiaFStop"}, {13, "EpiFStop"}}},
};

std::string Element(const std::string& name, const std::string& position, const std::string& code) {
  return "<" + name + " POSITION=\"" + position + "\" CODE=\"" + code + "\"/>";
}

std::string Read(clsInterLockOther& unit, const Kind& kind, const std::string& xml) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText(xml)) << xml;
  return (unit.*kind.read)(document.Children().at(0));
}

// The states of all three tables.
std::string States(const clsInterLockOther& unit) {
  std::string states;
  for (const Kind& kind : kKinds) {
    states += StatesOf(14, [&](std::int32_t k) { return (unit.*kind.state)(k); }) + "\n";
  }
  return states;
}

std::string InCapitals(std::string text) {
  for (char& c : text) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return text;
}

TEST(OtherInterlocksFile, HasTheThreeTablesOneAfterTheOther) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(FileTextOf(rig.units.ILOther),
            "<SECTION>" + Element("OTHER", "ND", "True") + Element("OTHER", "DiaFStop", "False") +
                Element("OTHER", "DiaAStop", "True") + Element("OTHER", "Condenser", "False") +
                Element("OTHER", "OpticalZoom", "False") + Element("OTHER", "LightPath", "True") +
                Element("OTHER", "FoucusStage", "True") + Element("OTHER", "XYStage", "True") +
                Element("LIGHTPATH", "ND", "False") + Element("LIGHTPATH", "DiaFStop", "False") +
                Element("LIGHTPATH", "EpiFStop", "True") + Element("ZOOM", "ND", "False") +
                Element("ZOOM", "DiaFStop", "True") + Element("ZOOM", "EpiFStop", "False") +
                "</SECTION>");
}

TEST(OtherInterlocksFile, LeavesOutEveryUnknownEntry) {
  Rig rig("Hub");
  EXPECT_EQ(FileTextOf(rig.units.ILOther), "<SECTION/>");
  rig.ConnectAndReceive();
  EXPECT_EQ(FileTextOf(rig.units.ILOther), "<SECTION>" + Element("OTHER", "OpticalZoom", "False") +
                                               Element("OTHER", "LightPath", "False") +
                                               Element("LIGHTPATH", "EpiFStop", "False") +
                                               Element("ZOOM", "EpiFStop", "False") + "</SECTION>");
}

TEST(OtherInterlocksFile, HasANumberThatIsNeitherOnNorOffAsUnknown) {
  Rig rig("Harbour");
  rig.instrument().Interlock(1, 3) = 2;
  rig.ConnectAndReceive();
  EXPECT_TRUE(
      FileTextOf(rig.units.ILOther).starts_with("<SECTION>" + Element("OTHER", "ND", "Unknown")));
}

TEST(OtherInterlocksFile, EachWordOfATableIsReadInAnyCaseIntoThatTableAlone) {
  for (const Kind& kind : kKinds) {
    for (const auto& [number, word] : kind.words) {
      for (const std::string& written : {word, InCapitals(word)}) {
        Rig rig("Harbour");
        clsInterLockOther& unit = rig.units.ILOther;
        EXPECT_EQ(Read(unit, kind, Element(kind.element, written, "tRUE")), "");
        EXPECT_EQ((unit.*kind.state)(number), 1) << kind.element << ' ' << word;
        EXPECT_EQ(Read(unit, kind, Element(kind.element, written, "FALSE")), "");
        EXPECT_EQ((unit.*kind.state)(number), 0) << kind.element << ' ' << word;
        const std::string states = States(unit);
        EXPECT_EQ(std::count(states.begin(), states.end(), '-'), 41) << kind.element << ' ' << word;
      }
    }
  }
}

TEST(OtherInterlocksFile, AWordThatTheTableDoesNotHaveIsIgnoredInSilence) {
  const std::string all[] = {"ND",           "DiaFStop",    "DiaAStop", "Condenser", "OpticalZoom",
                             "LightPath",    "FoucusStage", "EpiFStop", "XYStage",   "FocusStage",
                             "Foucus Stage", "Lamp",        "1",        ""};
  for (const Kind& kind : kKinds) {
    for (const std::string& word : all) {
      if (std::any_of(kind.words.begin(), kind.words.end(),
                      [&](const auto& known) { return known.second == word; })) {
        continue;
      }
      Rig rig("Harbour");
      const std::string before = States(rig.units.ILOther);
      for (const char* code : {"True", "False", "Unknown"}) {
        EXPECT_EQ(Read(rig.units.ILOther, kind, Element(kind.element, word, code)), "");
        EXPECT_EQ(States(rig.units.ILOther), before) << kind.element << ' ' << word;
      }
    }
  }
}

TEST(OtherInterlocksFile, TheCodeUnknownLeavesTheTableAndGivesNoText) {
  for (const Kind& kind : kKinds) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    const std::string before = States(rig.units.ILOther);
    for (const auto& [number, word] : kind.words) {
      EXPECT_EQ(Read(rig.units.ILOther, kind, Element(kind.element, word, "unKnown")), "");
    }
    EXPECT_EQ(States(rig.units.ILOther), before) << kind.element;
  }
}

TEST(OtherInterlocksFile, ACodeThatIsNoWordGivesItsTextAlsoForAnUnknownPosition) {
  for (const Kind& kind : kKinds) {
    for (const char* position : {"ND", "nd", "EpiFStop", "Nobody", ""}) {
      for (const char* code : {"", "1", "On", " True", "Unknown "}) {
        Rig rig("Harbour");
        rig.ConnectAndReceive();
        const std::string before = States(rig.units.ILOther);
        EXPECT_EQ(Read(rig.units.ILOther, kind, Element(kind.element, position, code)),
                  kind.refused + position + "]");
        EXPECT_EQ(States(rig.units.ILOther), before) << kind.element;
      }
    }
  }
}

TEST(OtherInterlocksFile, AMissingAttributeIsAnEmptyText) {
  for (const Kind& kind : kKinds) {
    Rig rig("Harbour");
    const std::string name = kind.element;
    EXPECT_EQ(Read(rig.units.ILOther, kind, "<" + name + "/>"), kind.refused + "]");
    EXPECT_EQ(Read(rig.units.ILOther, kind, "<" + name + " POSITION=\"ND\" OTHER=\"True\"/>"),
              kind.refused + "ND]");
    EXPECT_EQ(Read(rig.units.ILOther, kind, "<" + name + " CODE=\"True\"/>"), "");
  }
}

TEST(OtherInterlocksFile, AttributesAreFoundInAnyCase) {
  for (const Kind& kind : kKinds) {
    Rig rig("Harbour");
    EXPECT_EQ(Read(rig.units.ILOther, kind, R"(<x position="nd" x="True" code="true"/>)"), "");
    EXPECT_EQ((rig.units.ILOther.*kind.state)(1), 1) << kind.element;
  }
}

// The copies that a read makes of the epi field stop are entries of the file like the others.
TEST(OtherInterlocksFile, TheCopiesOfTheEpiFieldStopAreReadBack) {
  Rig rig("Harbour");
  clsInterLockOther& unit = rig.units.ILOther;
  EXPECT_EQ(Read(unit, kKinds[0], Element("OTHER", "OpticalZoom", "True")), "");
  EXPECT_EQ(Read(unit, kKinds[0], Element("OTHER", "LightPath", "False")), "");
  EXPECT_EQ(unit.Status(10), 1);
  EXPECT_EQ(unit.Status(11), 0);
  EXPECT_EQ(unit.ZoomStatus(13), -1);
  EXPECT_EQ(unit.LightPathStatus(13), -1);
}

}  // namespace
}  // namespace mortane::test
