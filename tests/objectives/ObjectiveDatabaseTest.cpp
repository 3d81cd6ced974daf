// What the objective database answers and takes, apart from the controller and the file.
#include <gtest/gtest.h>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "objectives/ObjectiveUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

// A walk's answer in one line.
std::string NextOf(const clsDbNosepiece& database, std::int32_t series, std::int32_t& npos) {
  std::string type = "x";
  std::string mag = "x";
  std::string wd = "x";
  std::string na = "x";
  std::string name = "x";
  const std::int32_t code = database.Get_DbNosepiecePocket(series, npos, type, mag, wd, na, name);
  return std::to_string(code) + "|" + type + "|" + mag + "|" + wd + "|" + na + "|" + name;
}

std::string OptionOf(const clsDbNosepiece& database, std::int32_t position,
                     std::int32_t condenser = 77) {
  std::string name = "x";
  std::int32_t series = 77;
  std::int32_t type = 77;
  std::string mag = "x";
  std::string wd = "x";
  std::string na = "x";
  database.Get_DbNosepieceOption(position, name, series, type, mag, wd, na, condenser);
  return name + "|" + std::to_string(series) + "|" + std::to_string(type) + "|" + mag + "|" + wd +
         "|" + na + "|" + std::to_string(condenser);
}

class ObjectiveDatabase : public testing::Test {
 protected:
  ~ObjectiveDatabase() override { SetSystemNumberFormat(PointFormat()); }

  void SetMagnification(std::string_view text) {
    database.Set_DbNosepiece(1, "n", 1, 1, text, "1", "1", 0);
  }
  std::string MagnificationText() const {
    std::string text = OptionOf(database, 1);
    text = text.substr(text.find("|1|1|") + 5);
    return text.substr(0, text.find('|'));
  }

  Rig rig{"Harbour"};
  clsDbNosepiece& database = rig.units.DbNosepiece;
};

TEST_F(ObjectiveDatabase, StartsEmptyWithItsDashes) {
  EXPECT_EQ(database.SeriesCount(), 0);
  EXPECT_EQ(database.Series(0), "-----------");
  EXPECT_EQ(database.TypesCount(), 0);
  EXPECT_EQ(database.Types(0), "--------");
  EXPECT_EQ(database.Name(0), "");
  EXPECT_EQ(OptionOf(database, 1), "|0|0|----|0|0|0");
}

TEST_F(ObjectiveDatabase, ListsMagnificationsWithTheirX) {
  std::vector<std::string> texts;
  for (std::int32_t i = 0; i <= database.MagCount(); ++i) texts.push_back(database.Mag(i));
  EXPECT_EQ(texts, (std::vector<std::string>{"----", "1x", "1.5x", "2x", "2.5x", "4x", "5x", "10x",
                                             "20x", "40x", "50x", "60x", "100x", "150x", "200x"}));
  EXPECT_EQ(database.Mag(-1), "");
  EXPECT_EQ(database.Mag(15), "");
}

TEST_F(ObjectiveDatabase, IndicesOutOfRangeGiveNothing) {
  rig.ConnectAndReceive();
  for (const std::int32_t code : {-1, 250, 2147483647, -2147483647}) {
    EXPECT_EQ(database.Name(code), "");
    EXPECT_EQ(database.Magnification(code), 0);
    EXPECT_EQ(database.SeriesCode(code), 0);
    EXPECT_EQ(database.AdoptiveCondenser(code), 0);
    EXPECT_EQ(database.Series(code), "");
    EXPECT_EQ(database.Types(code), "");
  }
  EXPECT_EQ(database.Series(database.SeriesCount() + 1), "");
  EXPECT_EQ(database.Types(database.TypesCount() + 1), "");
}

TEST_F(ObjectiveDatabase, AnswersWhatTheControllerHolds) {
  rig.ConnectAndReceive();
  EXPECT_EQ(database.SeriesCount(), 6);
  EXPECT_EQ(database.Series(6), "Epi");
  EXPECT_EQ(database.TypesCount(), 7);
  EXPECT_EQ(database.Types(7), "Macro");
  EXPECT_EQ(database.Name(16), "Super C 60x W");
  EXPECT_EQ(database.SeriesCode(16), 3);
  EXPECT_EQ(database.AdoptiveCondenser(242), 5);
  EXPECT_EQ(OptionOf(database, 2), "Loan 63x Oil|3|2|63|0.19|1.4|5");
}

TEST_F(ObjectiveDatabase, WalksOverOneSeriesFixedAndOptional) {
  rig.ConnectAndReceive();
  std::int32_t npos = -1;
  EXPECT_EQ(NextOf(database, 2, npos), "8|Dry|10x|16|0.3|Plan F 10x");
  EXPECT_EQ(npos, 8);
  npos = 11;
  EXPECT_EQ(NextOf(database, 2, npos), "12|Oil|100x|0.16|1.3|Plan F 100x Oil");
  EXPECT_EQ(NextOf(database, 2, npos), "241|Water|25x|1.98|0.95|Clinic 25x");
  EXPECT_EQ(NextOf(database, 2, npos), "-1|||||");
  EXPECT_EQ(npos, 241);
}

TEST_F(ObjectiveDatabase, SeriesZeroWalksOverEveryUnusedCode) {
  rig.ConnectAndReceive();
  std::int32_t npos = -1;
  EXPECT_EQ(NextOf(database, 0, npos), "0|--------|----|0|0|");
  EXPECT_EQ(NextOf(database, 0, npos), "27|--------|----|0|0|");
  int more = 0;
  while (NextOf(database, 0, npos).front() != '-') ++more;
  EXPECT_EQ(more, 240 - 27 + 7);
  EXPECT_EQ(npos, 249);
}

TEST_F(ObjectiveDatabase, AWalkBeginsAndEndsWithTheTable) {
  database.Set_DbNosepiece(9, "last", 0, 0, "1", "1", "1", 0);
  std::int32_t npos = 248;
  EXPECT_EQ(NextOf(database, 0, npos), "249|--------|1x|1|1|last");
  for (const std::int32_t end : {249, 250, 2147483647}) {
    npos = end;
    EXPECT_EQ(NextOf(database, 0, npos), "-1|||||");
    EXPECT_EQ(npos, end);
  }
}

TEST_F(ObjectiveDatabase, AStartBelowTheTableIsASubscriptFailure) {
  for (const std::int32_t start : {-2, -2147483647 - 1}) {
    std::int32_t npos = start;
    try {
      NextOf(database, 0, npos);
      FAIL() << "nothing was raised for " << start;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kSubscriptError);
    }
  }
}

TEST_F(ObjectiveDatabase, ASeriesThatIsNoneClearsTheTextsAndFindsNothing) {
  rig.ConnectAndReceive();
  for (const std::int32_t series : {-1, 7, 1000}) {
    std::int32_t npos = -2;  // not even looked at
    EXPECT_EQ(NextOf(database, series, npos), "-1|||||");
    EXPECT_EQ(npos, -2);
  }
}

TEST_F(ObjectiveDatabase, AWalkCutsNamesAndTypesToTwentyCharacters) {
  rig.instrument().database.types[0].name = "Ölimmersion äöüäöüäöü";
  rig.instrument().database.objectives[0].name = "äöüäöüäöüäöüäöüäöüäöü";
  rig.instrument().database.objectives[0].type = 1;
  rig.ConnectAndReceive();
  std::int32_t npos = -1;
  EXPECT_EQ(NextOf(database, 1, npos), "1|Ölimmersion äöüäöüäö|2x|8.5|0.06|äöüäöüäöüäöüäöüäöüäö");
  EXPECT_EQ(database.Name(1), "äöüäöüäöüäöüäöüäöüäöü");
}

TEST_F(ObjectiveDatabase, ATypeThatIsNoneShowsEmpty) {
  rig.instrument().database.objectives[0].type = 8;
  rig.ConnectAndReceive();
  std::int32_t npos = -1;
  EXPECT_EQ(NextOf(database, 1, npos), "1||2x|8.5|0.06|Plan A 2x");
}

TEST_F(ObjectiveDatabase, AnOptionOutsideOneToNineIsEmptyAndLeavesTheCondenser) {
  rig.ConnectAndReceive();
  for (const std::int32_t position : {-1, 0, 10}) {
    EXPECT_EQ(OptionOf(database, position, 42), "|-1|-1||||42");
  }
}

TEST_F(ObjectiveDatabase, StoresTwentyCharactersOfANameAndShowsFifteen) {
  database.Set_DbNosepiece(4, "ABCDEFGHIJKLMNOPQRSTUVWXY", 1, 2, "10", "1.5", "0.3", 6);
  EXPECT_EQ(database.Name(244), "ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(OptionOf(database, 4), "ABCDEFGHIJKLMNO|1|2|10|1.5|0.3|6");
  database.Set_DbNosepiece(4, "äöüäöüäöüäöüäöüäöüäöüäöü", 1, 2, "10", "1", "0.3", 6);
  EXPECT_EQ(database.Name(244), "äöüäöüäöüäöüäöüäöüäö");
  EXPECT_EQ(OptionOf(database, 4).substr(0, 31), "äöüäöüäöüäöüäöü|");
}

TEST_F(ObjectiveDatabase, PositionZeroOverwritesTheLastFixedObjective) {
  database.Set_DbNosepiece(0, "Pocket", 1, 2, "10", "1", "0.3", 6);
  EXPECT_EQ(database.Name(240), "Pocket");
  EXPECT_EQ(database.SeriesCode(240), 1);
  EXPECT_EQ(database.AdoptiveCondenser(240), 6);
}

TEST_F(ObjectiveDatabase, OtherPositionsStoreNothing) {
  const std::string before = FileTextOf(database);
  for (const std::int32_t position : {-1, 10, -240, 2147483647}) {
    database.Set_DbNosepiece(position, "No", 1, 2, "10", "1", "0.3", 6);
  }
  EXPECT_EQ(FileTextOf(database), before);
  EXPECT_EQ(database.Name(239), "");
  EXPECT_EQ(database.Name(0), "");
}

struct MagnificationRow {
  const char* text;
  const char* shown;
};

TEST_F(ObjectiveDatabase, ReadsMagnificationsAsPeopleTypeThem) {
  for (const MagnificationRow& row :
       {MagnificationRow{"40x", "40"}, MagnificationRow{"40", "40"}, MagnificationRow{"40.0", "40"},
        MagnificationRow{" 1.5", "1.5"}, MagnificationRow{"----", "----"},
        MagnificationRow{"", "----"}, MagnificationRow{"x", "----"},
        MagnificationRow{"40X", "----"}, MagnificationRow{"x40", "----"},
        MagnificationRow{"40xx", "----"}, MagnificationRow{"40x ", "----"},
        MagnificationRow{"forty", "----"}, MagnificationRow{"12,34", "----"},
        MagnificationRow{"---", "----"}}) {
    SetMagnification("99");
    SetMagnification(row.text);
    EXPECT_EQ(MagnificationText(), row.shown) << row.text;
  }
}

TEST_F(ObjectiveDatabase, TextThatIsNoNumberStoresZero) {
  database.Set_DbNosepiece(1, "n", 1, 1, "10", "wide", "", 0);
  EXPECT_EQ(OptionOf(database, 1), "n|1|1|10|0|0|0");
}

TEST_F(ObjectiveDatabase, TakesAndShowsNumbersInTheUsersFormat) {
  SetSystemNumberFormat({",", "."});
  database.Set_DbNosepiece(1, "n", 1, 1, "1,5x", "10,25", "0,95", 0);
  EXPECT_EQ(OptionOf(database, 1), "n|1|1|1,5|10,25|0,95|0");
  EXPECT_EQ(database.Mag(2), "1,5x");
  EXPECT_NE(FileTextOf(database).find("CODE=\"1100F4013B60\""), std::string::npos);
}

}  // namespace
}  // namespace mortane::test
