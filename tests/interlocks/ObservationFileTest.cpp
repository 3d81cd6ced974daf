// What follows a change of the observation method, in a settings file.
#include <gtest/gtest.h>

#include "interlocks/InterlockRig.h"

namespace mortane::test {
namespace {

std::string Element(const std::string& position, const std::string& code) {
  return "<OBSERVATION POSITION=\"" + position + "\" CODE=\"" + code + "\"/>";
}

// A section of eleven elements with these codes.
std::string Section(const Lines& codes) {
  const Lines words{"ND",         "DiaFStop", "DiaAStop",  "Lamp",        "Condenser", "FilterCube",
                    "EpiShutter", "Analyzer", "Nosepiece", "OpticalZoom", "LightPath"};
  std::string text = "<SECTION>";
  for (std::size_t i = 0; i < words.size(); ++i) text += Element(words[i], codes[i]);
  return text + "</SECTION>";
}

TEST(ObservationFile, HasElevenElementsWithTheirWords) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(FileTextOf(rig.units.ILObservation),
            Section({"False", "False", "False", "True", "True", "True", "False", "False", "False",
                     "False", "False"}));
}

TEST(ObservationFile, HasEveryUnknownEntryAsUnknown) {
  const Rig rig("Harbour");
  EXPECT_EQ(FileTextOf(rig.units.ILObservation), Section(Lines(11, "Unknown")));
}

TEST(ObservationFile, HasANumberThatIsNeitherOnNorOffAsUnknown) {
  Rig rig("Harbour");
  rig.instrument().Interlock(1, 1) = 2;
  rig.ConnectAndReceive();
  EXPECT_TRUE(
      FileTextOf(rig.units.ILObservation).starts_with("<SECTION>" + Element("ND", "Unknown")));
}

struct WordRow {
  const char* word;
  std::int32_t number;
};

TEST(ObservationFile, WordsAreReadInCapitalsAndInSmallLetters) {
  for (const WordRow& row :
       {WordRow{"nd", 1}, WordRow{"ND", 1}, WordRow{"DIAFSTOP", 2}, WordRow{"diaastop", 3},
        WordRow{"LAMP", 4}, WordRow{"CONDENSER", 5}, WordRow{"filtercube", 6},
        WordRow{"EPISHUTTER", 7}, WordRow{"analyzer", 8}, WordRow{"nosePIECE", 9},
        WordRow{"opticalzoom", 10}, WordRow{"LIGHTPATH", 11}}) {
    Rig rig("Harbour");
    clsInterLockObservation& unit = rig.units.ILObservation;
    EXPECT_EQ(ReadElement(unit, Element(row.word, "TRUE")), "");
    for (std::int32_t k = 1; k <= 11; ++k) {
      EXPECT_EQ(unit.Status(k), k == row.number ? 1 : -1) << row.word << ' ' << k;
    }
    EXPECT_EQ(ReadElement(unit, Element(row.word, "false")), "");
    EXPECT_EQ(unit.Status(row.number), 0) << row.word;
    EXPECT_EQ(ReadElement(unit, Element(row.word, "uNknown")), "");
    EXPECT_EQ(unit.Status(row.number), 0) << row.word;
  }
}

TEST(ObservationFile, ARefusedElementIsNamedAsItStandsInTheFile) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.ILObservation, R"(<x position="epi shutter" code="true"/>)"),
            "InterLock Observation[epi shutter]");
  EXPECT_EQ(ReadElement(rig.units.ILObservation, R"(<x POSITION="EPISHUTTER" CODE="yes"/>)"),
            "InterLock Observation[EPISHUTTER]");
}

TEST(ObservationFile, WhatIsNotMountedIsStoredAndNeverSent) {
  Rig rig("Harbour");
  Fit(rig.instrument(), 2, kNotMounted);
  Fit(rig.instrument(), 9, kSensorOnly);
  rig.ConnectAndReceive();
  EXPECT_EQ(ReadElement(rig.units.ILObservation, Element("DiaFStop", "True")), "");
  EXPECT_EQ(ReadElement(rig.units.ILObservation, Element("Nosepiece", "True")), "");
  EXPECT_EQ(rig.units.ILObservation.Status(2), 1);
  EXPECT_EQ(rig.units.ILObservation.Status(9), 1);
  EXPECT_EQ(rig.units.ILObservation.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
  EXPECT_EQ(rig.journal.Lines().size(), 9U);
}

}  // namespace
}  // namespace mortane::test
