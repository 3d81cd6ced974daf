#include "controller/simulator/BenchFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "common/Failure.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

class BenchFile : public testing::Test {
 protected:
  void TearDown() override { std::filesystem::remove(path_); }

  void Store(std::string_view text) const { std::ofstream(path_, std::ios::binary) << text; }

  std::string Stored() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // The description of the failure; empty when the file was read.
  std::string Problem() const {
    try {
      ReadBenchFile(path_);
      return {};
    } catch (const Failure& failure) {
      return failure.Description();
    }
  }

  const std::string path_ = testing::TempDir() + "/bench_" +
                            testing::UnitTest::GetInstance()->current_test_info()->name() + ".xml";
};

TEST_F(BenchFile, KeepsEveryNamedBench) {
  for (const std::string& name : benches::Names()) {
    WriteBenchFile(path_, benches::Named(name));
    EXPECT_EQ(ReadBenchFile(path_), benches::Named(name)) << name;
  }
}

TEST_F(BenchFile, IsTheSameForTheSameBench) {
  WriteBenchFile(path_, benches::Named("Attic"));
  const std::string first = Stored();
  WriteBenchFile(path_, ReadBenchFile(path_));
  EXPECT_EQ(Stored(), first);
}

TEST_F(BenchFile, KeepsValuesOutOfRangeAndDifficultTexts) {
  Bench bench{{benches::InstrumentNamed("Attic")}, {true, false, false, -7, 5, 3, false}};
  Instrument& instrument = bench.instruments.front();
  instrument.name = " \"<&>'\t\n ";
  instrument.available = -3;
  instrument.busyWhenConnected = true;
  instrument.Accessory(4).value = 0.1 + 0.2;
  instrument.Accessory(10).value = -1e300;
  instrument.zDrive.position = -2147483647 - 1;
  instrument.zDrive.speed = 1;
  instrument.zDrive.lowestPosition = -500000;
  instrument.zDrive.highestPosition = 0;
  instrument.xyDrive.lowestX = instrument.xyDrive.lowestY = -1;
  instrument.xyDrive.highestX = 2147483647;
  instrument.xyDrive.highestY = 5;
  instrument.xyDrive.speed = 100;
  instrument.xyDrive.positionY = 2147483647;
  instrument.nosepiece.push_back({0, -1});
  instrument.handSwitches[14] = "\xC3\xA9";
  instrument.database.objectives[0].answer = "";
  WriteBenchFile(path_, bench);
  EXPECT_EQ(ReadBenchFile(path_), bench);
}

TEST_F(BenchFile, HoldsNoNegativeZero) {
  Bench bench{{benches::InstrumentNamed("Quay")}, {}};
  bench.instruments[0].Accessory(accessory::kDiaLamp).value = -0.0;
  bench.instruments[0].database.objectives[0].workingDistance = -0.0;
  WriteBenchFile(path_, bench);
  EXPECT_EQ(Stored().find("\"-0\""), std::string::npos);
  EXPECT_EQ(ReadBenchFile(path_), bench);
}

TEST_F(BenchFile, NeedsOnlyWhatDiffersFromTheDefaults) {
  Store("<!-- ours --><Bench>\n  <Instrument Name=\"One\"/> \n <Instrument/></Bench>");
  Instrument one;
  one.name = "One";
  EXPECT_EQ(ReadBenchFile(path_), (Bench{{one, Instrument()}, {}}));
}

TEST_F(BenchFile, IsWhatAUserKeepsFromOneStartToTheNext) {
  {
    SimulatedLibrary library(benches::Named("Harbour"));
    library.OnChange([this](const Bench& bench) { WriteBenchFile(path_, bench); });
    const Microscope root = ConnectedRoot(library, 1);
    root.PutSystemName("Kept");
    root.ControllerSettings().PutEscapeMode(2);
  }
  SimulatedLibrary library(ReadBenchFile(path_));
  EXPECT_EQ(ConnectedRoot(library, 1).ControllerSettings().EscapeMode(), 2);
  EXPECT_EQ(NewRoot(library).DeviceList().Item(1).Name(), "Kept");
}

TEST_F(BenchFile, StaysWholeWhenABenchCannotBeWritten) {
  WriteBenchFile(path_, benches::Named("Quay"));
  Bench bad = benches::Named("Harbour");
  bad.instruments[1].name = "\x01";
  EXPECT_THROW(WriteBenchFile(path_, bad), Failure);
  EXPECT_EQ(ReadBenchFile(path_), benches::Named("Quay"));
}

TEST_F(BenchFile, NamesTheFileWhenItCannotBeRead) {
  EXPECT_NE(Problem().find(path_), std::string::npos) << Problem();
}

struct BadRow {
  const char* text;
  const char* problem;
};

// Behind the path. "<I>" and "</I>" stand for a bench with one instrument.
constexpr BadRow kBad[] = {
    {"<bench/>", "<bench>: the root of a bench file is <Bench>."},
    {"<Bench/>", "<Bench>: there is no <Instrument>."},
    {"<Bench Version=\"1\"><Instrument/></Bench>", "<Bench>: unknown attribute \"Version\"."},
    {"<Bench><Instrument/><Rack/></Bench>", "<Bench>: unknown element <Rack>."},
    {"<Bench><Fiber/><Fiber/><Instrument/></Bench>", "<Fiber>: Fiber stands twice."},
    {"<Bench><Fiber Open=\"1\"/><Instrument/></Bench>",
     "<Fiber>: attribute \"Open\" is \"1\", which is no \"true\" or \"false\"."},
    {"<Bench><Instrument name=\"x\"/></Bench>", "<Instrument>: unknown attribute \"name\"."},
    {"<Bench><Instrument Name=\"sixteen letters.\"/></Bench>",
     "<Instrument>: the name \"sixteen letters.\" is longer than 15 characters."},
    {"<Bench><Instrument Available=\"yes\"/></Bench>",
     "<Instrument>: attribute \"Available\" is \"yes\", which is no whole number of 32 bits."},
    {"<I><Stage/></I>", "<Instrument>: unknown element <Stage>."},
    {"<I><Unit Present=\"1\"/></I>", "<Unit>: attribute \"At\" is missing."},
    {"<I><Unit At=\"8\" Present=\"1\"/></I>",
     "<Unit>: attribute \"At\" is \"8\", which is no place of this kind."},
    {"<I><Unit At=\"2\"/><Unit At=\"2\"/></I>", "<Unit>: Unit 2 stands twice."},
    {"<I><Unit At=\"2\" Present=\"\"/></I>",
     "<Unit>: attribute \"Present\" is \"\", which is no whole number of 32 bits."},
    {"<I><Unit At=\"2\" Present=\"1.0\"/></I>",
     "<Unit>: attribute \"Present\" is \"1.0\", which is no whole number of 32 bits."},
    {"<I><Unit At=\"2\" Present=\"2147483648\"/></I>",
     "<Unit>: attribute \"Present\" is \"2147483648\", which is no whole number of 32 bits."},
    {"<I><ZDrive Speed=\"0\"/></I>", "<ZDrive>: the speed 0 is below 1."},
    {"<I><XYDrive Speed=\"-20\"/></I>", "<XYDrive>: the speed -20 is below 1."},
    {"<I><ZDrive LowestPosition=\"\"/></I>",
     "<ZDrive>: attribute \"LowestPosition\" is \"\", which is no whole number of 32 bits."},
    {"<I><XYDrive HandleMode=\"32768\"/></I>",
     "<XYDrive>: attribute \"HandleMode\" is \"32768\", which is no whole number of 16 bits."},
    {"<I><Unit At=\"2\"><Board/></Unit></I>", "<Unit>: unknown element <Board>."},
    {"<I><Buzzers/><Buzzers/></I>", "<Buzzers>: Buzzers stands twice."},
    {"<I><Switches Led=\"1\"/></I>", "<Switches>: unknown attribute \"Led\"."},
    {"<I><Accessory At=\"Stage\"/></I>",
     "<Accessory>: attribute \"At\" is \"Stage\", which is no place of this kind."},
    {"<I><Accessory At=\"Lamp\" Value=\"9,5\"/></I>",
     "<Accessory>: attribute \"Value\" is \"9,5\", which is no number."},
    {"<I><Accessory At=\"Lamp\" Value=\"nan\"/></I>",
     "<Accessory>: attribute \"Value\" is \"nan\", which is no number."},
    {"<I><Accessory At=\"Lamp\" Value=\"1e999\"/></I>",
     "<Accessory>: attribute \"Value\" is \"1e999\", which is no number."},
    {"<I><Accessory At=\"Lamp\" ReadOnly=\"True\"/></I>",
     "<Accessory>: attribute \"ReadOnly\" is \"True\", which is no \"true\" or \"false\"."},
    {"<I><NosepiecePlace Position=\"one\"/></I>",
     "<NosepiecePlace>: attribute \"Position\" is \"one\", which is no whole number of 32 bits."},
    {"<I><BodySwitch At=\"0\" Function=\"1\"/></I>",
     "<BodySwitch>: attribute \"At\" is \"0\", which is no place of this kind."},
    {"<I><HandSwitch At=\"0\" Code=\"1\"/></I>", "<HandSwitch>: unknown attribute \"Code\"."},
    {"<I><Interlock At=\"ZDrive\" ByMood=\"1\"/></I>",
     "<Interlock>: unknown attribute \"ByMood\"."},
    {"<I><Database Size=\"1\"/></I>", "<Database>: unknown attribute \"Size\"."},
    {"<I><Database/><Database/></I>", "<Database>: Database stands twice."},
    {"<I><Database><Lens/></Database></I>", "<Database>: unknown element <Lens>."},
    {"<I><Database><Cube Colour=\"red\"/></Database></I>", "<Cube>: unknown attribute \"Colour\"."},
    {"<I><Database><Condenser Suits=\"012\"/></Database></I>",
     "<Condenser>: attribute \"Suits\" is \"012\", which is no list of up to ten \"0\" and \"1\"."},
    {"<I><Database><Condenser Suits=\"11111111111\"/></Database></I>",
     "<Condenser>: attribute \"Suits\" is \"11111111111\", which is no list of up to ten \"0\" and "
     "\"1\"."},
};

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
  const std::size_t at = text.find(what);
  return at == std::string::npos ? text : text.replace(at, what.size(), with);
}

TEST_F(BenchFile, SaysInOneLineWhatIsWrong) {
  for (const BadRow& row : kBad) {
    Store(Replaced(Replaced(row.text, "<I>", "<Bench><Instrument>"), "</I>",
                   "</Instrument></Bench>"));
    EXPECT_EQ(Problem(), path_ + ": " + row.problem) << row.text;
  }
}

TEST_F(BenchFile, NamesRangesSpeedsAndUnits) {
  Store(
      "<Bench><Instrument Name='a'><Buzzers HandController='1' FifthUnit='2'/>"
      "<ZDrive LowestPosition='-7' HighestPosition='8' Speed='9' MoveProfile='3'/>"
      "<XYDrive LowestX='-1' HighestX='2' LowestY='-3' HighestY='4' Speed='5'/>"
      "</Instrument></Bench>");
  const Instrument instrument = ReadBenchFile(path_).instruments.at(0);
  EXPECT_EQ(instrument.buzzers.handController, 1);
  EXPECT_EQ(instrument.buzzers.unit5, 2);
  EXPECT_EQ(instrument.zDrive.lowestPosition, -7);
  EXPECT_EQ(instrument.zDrive.highestPosition, 8);
  EXPECT_EQ(instrument.zDrive.speed, 9);
  EXPECT_EQ(instrument.zDrive.moveProfile, 3);
  EXPECT_EQ(instrument.xyDrive.lowestX, -1);
  EXPECT_EQ(instrument.xyDrive.highestX, 2);
  EXPECT_EQ(instrument.xyDrive.lowestY, -3);
  EXPECT_EQ(instrument.xyDrive.highestY, 4);
  EXPECT_EQ(instrument.xyDrive.speed, 5);
}

TEST_F(BenchFile, MustBeWellFormed) {
  for (const char* text : {"", "text", "<Bench><Instrument></Bench>", "<Bench/><Bench/>",
                           "<Bench><Instrument Name=\"a\" Name=\"b\"/></Bench>"}) {
    Store(text);
    EXPECT_NE(Problem().find(path_), std::string::npos) << text;
    EXPECT_EQ(Problem().find('\n'), std::string::npos) << text;
  }
}

TEST(ShippedBenches, AreTheBuiltInOnes) {
  for (const std::string& name : benches::Names()) {
    const std::string path = std::string(MORTANE_BENCH_FOLDER) + "/" + name + ".xml";
    EXPECT_EQ(ReadBenchFile(path), benches::Named(name))
        << "write them anew: tools/write-benches.sh <path of the program write_benches>";
  }
}

TEST(ShippedBenches, AreAllThatStandInTheirFolder) {
  std::set<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(MORTANE_BENCH_FOLDER)) {
    files.insert(entry.path().filename().string());
  }
  std::set<std::string> names;
  for (const std::string& name : benches::Names()) names.insert(name + ".xml");
  EXPECT_EQ(files, names);
}

}  // namespace
}  // namespace mortane::controller::test
