// The other controls in a settings file.
#include "drives/OtherControls.h"

namespace mortane::test {
namespace {

std::string Element(const std::string& children) {
  return "<OTHER>" + children + "</OTHER>";
}

TEST(OtherControlsFile, NamesEachItemInOrderAndNoSensitivity) {
  Rig rig("DeckRemote");
  rig.ConnectAndReceive();
  rig.units.COther.curSensitivityZ = rig.units.COther.curSensitivityXY = 1;
  EXPECT_EQ(FileTextOf(rig.units.COther),
            R"(<SECTION><OTHER><FocusDrive AUTO="Unknown"/><XYStage AUTO="Unknown"/>)"
            R"(<Buzzer CODE="False"/><Switch CODE="Unknown"/><TactorSwitch CODE="Unknown"/>)"
            R"(<B_KM_RSwitch CODE="True"/><B_KM_RSwitchLED CODE="Bright"/></OTHER></SECTION>)");
}

struct FieldRow {
  const char* child;
  const char* attribute;
  std::int32_t clsControlOther::*field;
};

constexpr FieldRow kTruths[] = {
    {"FocusDrive", "AUTO", &clsControlOther::curAutoZ},
    {"XYStage", "AUTO", &clsControlOther::curAutoXY},
    {"Buzzer", "CODE", &clsControlOther::curBuzzer},
    {"Switch", "CODE", &clsControlOther::curSwEnable},
    {"TactorSwitch", "CODE", &clsControlOther::curTactorSwEnable},
    {"B_KM_RSwitch", "CODE", &clsControlOther::curR_TLPOSwEnable},
};

std::string Child(const FieldRow& row, std::string_view word) {
  return std::string("<") + row.child + " " + row.attribute + "=\"" + std::string(word) + "\"/>";
}

struct WordRow {
  std::int32_t value;
  const char* word;
};

// A buzzer that sounds is 0, and so "False".
TEST(OtherControlsFile, ItemsAreTrueFalseOrUnknown) {
  for (const FieldRow& field : kTruths) {
    for (const WordRow& row :
         {WordRow{0, "False"}, WordRow{1, "True"}, WordRow{2, "Unknown"}, WordRow{-1, "Unknown"}}) {
      Rig rig("Harbour");
      rig.units.COther.*field.field = row.value;
      EXPECT_NE(FileTextOf(rig.units.COther).find(Child(field, row.word)), std::string::npos)
          << field.child << row.value;
    }
  }
}

TEST(OtherControlsFile, ItemsAreReadWithoutRegardToCase) {
  for (const FieldRow& field : kTruths) {
    for (const WordRow& row : {WordRow{1, "True"}, WordRow{1, "tRUE"}, WordRow{0, "False"},
                               WordRow{0, "FALSE"}, WordRow{7, "Unknown"}, WordRow{7, "unknown"}}) {
      Rig rig("Harbour");
      rig.units.COther.*field.field = 7;
      EXPECT_EQ(ReadElement(rig.units.COther, Element(Child(field, row.word))), "");
      EXPECT_EQ(rig.units.COther.*field.field, row.value) << field.child << ' ' << row.word;
    }
  }
  Rig rig("Harbour");
  EXPECT_EQ(
      ReadElement(rig.units.COther, Element(R"(<focusDRIVE auto="true"/><SWITCH code="TRUE"/>)")),
      "");
  EXPECT_EQ(ValuesOf(rig.units.COther), "1 -1 -1 -1 -1 1 -1 -1 -1");
}

TEST(OtherControlsFile, ASensitivityIsUnderstood) {
  for (const WordRow& row :
       {WordRow{1, "Coarse"}, WordRow{2, "MEDIUM"}, WordRow{3, "fine"}, WordRow{7, "unknown"}}) {
    Rig rig("Harbour");
    rig.units.COther.curSensitivityZ = rig.units.COther.curSensitivityXY = 7;
    const std::string code = " CODE=\"" + std::string(row.word) + "\"/>";
    EXPECT_EQ(ReadElement(rig.units.COther, Element("<FocusDrive" + code)), "");
    EXPECT_EQ(rig.units.COther.curSensitivityZ, row.value);
    EXPECT_EQ(rig.units.COther.curSensitivityXY, 7);
    EXPECT_EQ(ReadElement(rig.units.COther, Element("<XYStage" + code)), "");
    EXPECT_EQ(rig.units.COther.curSensitivityXY, row.value);
  }
}

TEST(OtherControlsFile, AKnobMayHaveBothAttributesInAnyOrder) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.COther, Element(R"(<FocusDrive CODE="Fine" AUTO="False"/>)"
                                                  R"(<XYStage AUTO="True" CODE="Medium"/>)")),
            "");
  EXPECT_EQ(ValuesOf(rig.units.COther), "0 1 3 2 -1 -1 -1 -1 -1");
  EXPECT_EQ(ReadElement(rig.units.COther, Element(R"(<XYStage CODE="x" AUTO="False"/>)")),
            "Control Other XY Stage Sensitivity");
  EXPECT_EQ(ValuesOf(rig.units.COther), "0 0 3 2 -1 -1 -1 -1 -1");
}

TEST(OtherControlsFile, TheLedIsNotReadAsItIsWritten) {
  for (const WordRow& row : {WordRow{0, "Off"}, WordRow{1, "Dark"}, WordRow{2, "Bright"},
                             WordRow{3, "Unknown"}, WordRow{-1, "Unknown"}}) {
    Rig rig("Harbour");
    rig.units.COther.curR_TLPOLED = row.value;
    EXPECT_NE(FileTextOf(rig.units.COther)
                  .find("<B_KM_RSwitchLED CODE=\"" + std::string(row.word) + "\"/>"),
              std::string::npos)
        << row.value;
  }
  for (const WordRow& row :
       {WordRow{1, "Bright"}, WordRow{2, "dark"}, WordRow{3, "OFF"}, WordRow{7, "Unknown"}}) {
    Rig rig("Harbour");
    rig.units.COther.curR_TLPOLED = 7;
    EXPECT_EQ(ReadElement(rig.units.COther,
                          Element("<B_KM_RSwitchLED CODE=\"" + std::string(row.word) + "\"/>")),
              "");
    EXPECT_EQ(rig.units.COther.curR_TLPOLED, row.value) << row.word;
  }
}

// Bright becomes dark and dark bright with each round; off becomes 3 and then unknown.
TEST(OtherControlsFile, TheLedChangesWithEachRound) {
  const auto round = [](clsControlOther& other) {
    DomDocument document;
    EXPECT_TRUE(document.LoadText(FileTextOf(other)));
    EXPECT_EQ(other.ReadDom(document.Children().at(0).Children().at(0)), "");
    return other.curR_TLPOLED;
  };
  Rig rig("DeckRemote");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.COther.curR_TLPOLED, 2);
  EXPECT_EQ(round(rig.units.COther), 1);
  EXPECT_EQ(round(rig.units.COther), 2);
  rig.units.COther.curR_TLPOLED = 0;
  EXPECT_EQ(round(rig.units.COther), 3);
  EXPECT_EQ(Differences(rig.units.COther), "");
  EXPECT_EQ(round(rig.units.COther), 3);
}

TEST(OtherControlsFile, OfOurOwnIsReadInSilenceOnEveryInstrument) {
  for (const std::string& bench : benches::Names()) {
    Rig rig(bench);
    rig.Connect();
    EXPECT_EQ(rig.units.COther.ReadSdk(), "");
    DomDocument document;
    ASSERT_TRUE(document.LoadText(FileTextOf(rig.units.COther)));
    const DomNode element = document.Children().at(0).Children().at(0);
    const std::string before = ValuesOf(rig.units.COther);
    const std::int32_t led = rig.units.COther.curR_TLPOLED;
    EXPECT_EQ(rig.units.COther.ReadDom(element), "") << bench;
    rig.units.COther.curR_TLPOLED = led;
    EXPECT_EQ(ValuesOf(rig.units.COther), before) << bench;
  }
}

TEST(OtherControlsFile, OfUnknownsLeavesWhatWasRead) {
  Rig source("Shell");
  source.ConnectAndReceive();
  DomDocument document;
  ASSERT_TRUE(document.LoadText(FileTextOf(source.units.COther)));
  Rig rig("Quay");
  rig.ConnectAndReceive();
  const std::string before = ValuesOf(rig.units.COther);
  EXPECT_EQ(rig.units.COther.ReadDom(document.Children().at(0).Children().at(0)), "");
  EXPECT_EQ(ValuesOf(rig.units.COther), before);
}

TEST(OtherControlsFile, AnItemThatIsRefusedLeavesTheOthersToBeTaken) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.COther,
                        Element(R"(<Buzzer CODE="x"/><Switch CODE="y"/><TactorSwitch CODE="z"/>)"
                                R"(<B_KM_RSwitch CODE="True"/>)")),
            "Control Other TactorSwitch\r\nControl Other TactorSwitch\r\n"
            "Control Other TactorSwitch");
  EXPECT_EQ(ValuesOf(rig.units.COther), "-1 -1 -1 -1 -1 -1 -1 1 -1");
}

}  // namespace
}  // namespace mortane::test
