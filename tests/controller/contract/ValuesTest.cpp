// Values, enumerators and refusals of the bare transport, on every back end.
#include <array>
#include <cmath>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "controller/ControllerError.h"
#include "controller/FiberIlluminator.h"
#include "controller/SimulatedRig.h"
#include "controller/contract/BackEnd.h"

namespace mortane::controller::test {
namespace {

class Transport : public OnEachBackEnd {};
INSTANTIATE_TEST_SUITE_P(OnEachBackEnd, Transport, testing::ValuesIn(BackEndKinds()), KindName);

ObjectRef ObjectOf(const Value& value) {
  const auto* object = std::get_if<ObjectRef>(&value);
  return object == nullptr ? nullptr : *object;
}

TEST_P(Transport, KeepsTheKindOfEveryAnswer) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const ObjectRef objective = root.AccessoryDatabase().Nosepieces().Item(2).Object();
  EXPECT_EQ(root.XYDriveDevice().Object()->Get("HandleMode"), Value(std::int16_t{0}));
  EXPECT_EQ(root.ZDriveDevice().Object()->Get("KnobAuto"), Value(std::int32_t{1}));
  EXPECT_EQ(objective->Get("Magnification"), Value(4.0));
  EXPECT_EQ(objective->Get("WorkingDistance"), Value(30.0));
  EXPECT_EQ(objective->Get("IsOption"), Value(false));
  EXPECT_EQ(objective->Get("Name"), Value(std::string("Plan A 4x")));
  EXPECT_EQ(root.Object()->Call("BuzzerOn", {1}), Value());
}

TEST_P(Transport, CarriesTextsOfEveryScript) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const std::vector<std::string> texts{"",
                                       "Mikroskop",
                                       "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F",      // umlauts
                                       "\xE9\xA1\x95\xE5\xBE\xAE\xE9\x8F\xA1",  // Japanese
                                       "\xF0\x9F\x94\xAC \xF0\x9D\x94\x98",     // beyond 16 bits
                                       std::string("before\0after", 12),        // NUL inside
                                       std::string("\0", 1),                    // NUL alone
                                       " blanks ",
                                       "line\r\nend",
                                       "\"a\" & <b> 'c'"};
  for (const std::string& text : texts) {
    root.PutSystemName(text);
    EXPECT_EQ(root.DeviceList().Item(0).Name(), text);
  }
}

TEST_P(Transport, CarriesNumbersToTheirLastBit) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const ObjectiveRecord record = root.AccessoryDatabase().Nosepieces().Item(35);
  for (const double value : {0.1, -0.0, 1e-300, 1.7976931348623157e308, 4.9e-324, 2.5}) {
    record.SetProperties(1, 1, value, 0, 0);
    EXPECT_EQ(record.Magnification(), value);
    EXPECT_EQ(std::signbit(record.Magnification()), std::signbit(value));
  }
  for (const std::int32_t value : {0, -1, 32768, -32769, 2147483647, -2147483647 - 1}) {
    root.ControllerSettings().PutEscapeMode(value);
    EXPECT_EQ(root.ControllerSettings().EscapeMode(), value);
  }
  for (const int value : {0, -1, 32767, -32768}) {
    root.XYDriveDevice().PutHandleMode(static_cast<std::int16_t>(value));
    EXPECT_EQ(root.XYDriveDevice().HandleMode(), value);
  }
}

TEST_P(Transport, TakesBackAnObjectThatItHandedOut) {
  const auto backEnd = Make("Crowd");
  const Microscope root = NewRoot(backEnd->Library());
  const Microscope other = NewRoot(backEnd->Library());
  const DeviceEntry entry = other.DeviceList().Item(1);
  root.PutCurrentDevice(entry);
  entry.Connect();
  EXPECT_EQ(root.ControllerVersion(1), "V1.31");
}

TEST_P(Transport, RefusesAnObjectThatIsNoDeviceEntry) {
  const auto backEnd = Make();
  const Microscope root = NewRoot(backEnd->Library());
  EXPECT_EQ(FailureOf([&] { root.Object()->Put("CurrentDevice", root.DeviceList().Object()); }),
            "Simulator:80004005: The current device must be an entry of the device list.");
}

TEST_P(Transport, RefusesAnObjectOfAnotherLibrary) {
  const auto backEnd = Make();
  const Microscope root = NewRoot(backEnd->Library());
  SimulatedLibrary foreign(benches::Named("Quay"));
  EXPECT_THROW(root.PutCurrentDevice(NewRoot(foreign).DeviceList().Item(0)), Failure);
  EXPECT_EQ(FailureOf([&] { root.ControllerPresent(1); }),
            "Simulator:80004005: No current device.");
}

TEST_P(Transport, GivesAStateValueThatIsANumberAndAnObject) {
  const auto backEnd = Make("Watch");
  const Microscope root = ConnectedRoot(backEnd->Library(), 1);
  const Value state = root.NosepieceDevice().Object()->Get("Position");
  ASSERT_NE(ObjectOf(state), nullptr);
  EXPECT_EQ(ObjectOf(state)->Get(""), Value(std::int32_t{1}));
  EXPECT_EQ(ObjectOf(state)->Get("IsReadOnly"), Value(true));
  const Microscope fitted = ConnectedRoot(backEnd->Library(), 0);
  EXPECT_EQ(fitted.ZoomDevice().Magnification().Real(), 1.5);
  EXPECT_FALSE(fitted.ZoomDevice().Magnification().IsReadOnly());
}

TEST_P(Transport, WalksACollectionToItsEndAndPastIt) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const TurretPositions positions = root.NosepieceDevice().Positions();
  for (int round = 0; round < 2; ++round) {
    const TurretEnumerator walk = positions.Enumerate();
    std::vector<std::int32_t> codes;
    while (const auto place = walk.Next()) codes.push_back(place->Code());
    EXPECT_EQ(codes, (std::vector<std::int32_t>{2, 5, 8, 12, 15, 241}));
    EXPECT_FALSE(walk.Next());
  }
}

TEST_P(Transport, WalksTwiceAtATimeWithoutMixingThem) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const TurretPositions positions = root.NosepieceDevice().Positions();
  const TurretEnumerator first = positions.Enumerate();
  first.Next();
  const TurretEnumerator second = positions.Enumerate();
  EXPECT_EQ(second.Next()->Position(), 1);
  EXPECT_EQ(first.Next()->Position(), 2);
}

TEST_P(Transport, WalksAnEmptyCollection) {
  const auto backEnd = Make("Hollow");
  const Microscope root = ConnectedRoot(backEnd->Library(), 1);
  EXPECT_FALSE(root.NosepieceDevice().Positions().Enumerate().Next());
}

TEST_P(Transport, GivesTheFailureOfAStepOfAWalk) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const TurretEnumerator walk = root.NosepieceDevice().Positions().Enumerate();
  walk.Next();
  root.DeviceList().Item(0).Disconnect();
  try {
    walk.Next();
    FAIL() << "a step without a connection";
  } catch (const ControllerError& error) {
    EXPECT_EQ(Hex(error.Number()), "80004005");
  }
}

struct UseRow {
  const char* name;
  std::function<void(ControllerObject&)> use;
};

void ExpectRefusal(const Refusal& refusal, ControllerObject& root, const UseRow& row) {
  try {
    row.use(root);
    FAIL() << row.name;
  } catch (const ControllerError& error) {
    EXPECT_EQ(error.Source(), refusal.source) << row.name;
    EXPECT_EQ(Hex(error.Number()), Hex(refusal.number)) << row.name;
    EXPECT_NE(error.Description(), "") << row.name;
  }
}

TEST_P(Transport, RefusesMembersThatTheObjectHasNot) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  for (const UseRow& row : {UseRow{"read", [](ControllerObject& o) { o.Get("Focus"); }},
                            UseRow{"written", [](ControllerObject& o) { o.Put("Focus", 1); }},
                            UseRow{"called", [](ControllerObject& o) { o.Call("Reset"); }},
                            UseRow{"of another", [](ControllerObject& o) { o.Get("Code"); }}}) {
    ExpectRefusal(GetParam().unknownMember, *root.Object(), row);
  }
}

TEST_P(Transport, RefusesAWrongNumberOfArguments) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  for (const UseRow& row :
       {UseRow{"too few", [](ControllerObject& o) { o.Get("ControllerPresent"); }},
        UseRow{"too many",
               [](ControllerObject& o) {
                 const std::array<Value, 2> both{1, 2};
                 o.Get("ControllerPresent", Args(both));
               }},
        UseRow{"of a call", [](ControllerObject& o) { o.Call("BuzzerOn"); }},
        UseRow{"of a write", [](ControllerObject& o) { o.Put("RemoteLED", 1); }}}) {
    ExpectRefusal(GetParam().wrongCount, *root.Object(), row);
  }
}

TEST_P(Transport, RefusesAWriteOfWhatCanOnlyBeReadAndTheReverse) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  for (const UseRow& row :
       {UseRow{"a list", [](ControllerObject& o) { o.Put("DeviceList", 1); }},
        UseRow{"a method", [](ControllerObject& o) { o.Put("BuzzerOn", 1); }},
        UseRow{"a written name", [](ControllerObject& o) { o.Get("SystemName"); }}}) {
    ExpectRefusal(GetParam().wrongUse, *root.Object(), row);
  }
}

TEST_P(Transport, RefusesArgumentsOfAKindThatNothingConverts) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const std::string word = "seven";
  for (const UseRow& row :
       {UseRow{"argument", [&](ControllerObject& o) { o.Get("ControllerPresent", {word}); }},
        UseRow{"value", [&](ControllerObject& o) { o.Put("RemoteLED", word, {7}); }},
        UseRow{"object", [](ControllerObject& o) { o.Put("CurrentDevice", 0); }}}) {
    if (GetParam().coerces && std::string_view(row.name) == "object") {
      // Objects are assigned in another way than values, which this member has not.
      ExpectRefusal(GetParam().wrongUse, *root.Object(), row);
    } else {
      ExpectRefusal(GetParam().wrongKind, *root.Object(), row);
    }
  }
}

TEST_P(Transport, RefusesAClassThatIsNotThere) {
  const auto backEnd = Make();
  EXPECT_THROW(backEnd->Library().Create("microscope"), ControllerError);
}

TEST_P(Transport, FailsToCreateAFiberServerThatIsNotInstalled) {
  const auto backEnd = Make("Harbour");
  for (const char* name : {"FiberServer", "FiberRemote"}) {
    try {
      backEnd->Library().Create(name);
      FAIL() << name;
    } catch (const ControllerError& error) {
      EXPECT_EQ(Hex(error.Number()), "80004005");
    }
  }
}

TEST_P(Transport, WaitsForAnAsynchronousMove) {
  const auto backEnd = Make();
  const Microscope root = ConnectedRoot(backEnd->Library());
  const DeviceEntry entry = root.DeviceList().Item(0);
  entry.PutAsyncMode(true);
  const std::int32_t target = 12000 + 1000 * 20;  // a second at the usual speed
  root.ZDriveDevice().PutPosition(target);
  EXPECT_LT(root.ZDriveDevice().Position().Number(), target);
  entry.WaitMove();
  EXPECT_EQ(root.ZDriveDevice().Position().Number(), target);
}

TEST_P(Transport, GivesEveryObjectBack) {
  const auto backEnd = Make();
  {
    const Microscope root = ConnectedRoot(backEnd->Library());
    const ObjectRef kept = root.NosepieceDevice().Positions().Enumerate().Next()->Object();
    EXPECT_GE(backEnd->LiveObjects(), 1);
    FailureOf([&] { kept->Get("Nothing"); });
    FailureOf([&] { root.Object()->Put("CurrentDevice", kept); });
  }
  EXPECT_EQ(backEnd->LiveObjects(), 0);
}

}  // namespace
}  // namespace mortane::controller::test
