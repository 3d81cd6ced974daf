// The whole model on every back end, compared with the simulator in place.
#include <random>

#include "controller/Journal.h"
#include "controller/contract/BackEnd.h"
#include "hub/clsK70.h"
#include "support/RandomModel.h"
#include "support/ScriptedPrompts.h"

namespace mortane::controller::test {
namespace {

// What a run leaves: the calls that it made, what it told the user, and the models as
// settings files with the list of changes.
struct Outcome {
  std::vector<std::string> calls;
  std::vector<std::string> prompts;
  std::vector<std::string> models;
};

std::string TextOf(const clsK70& k70) {
  DomDocument document;
  k70.WriteSections(document);
  return document.ToText();
}

// Connects the device, reads everything, changes settings of every unit, sends them, and reads
// again.
Outcome Transfer(ControllerLibrary& bare, std::int32_t device) {
  Journal journal;
  JournalLibrary library(bare, journal);
  ScriptedPrompts prompts;
  prompts.AcceptAnyBox();
  std::mt19937 random(20260);
  Outcome outcome;
  {
    clsK70 k70(library, prompts);
    k70.Initialize();
    k70.Connect(device);
    k70.Receive();
    outcome.models.push_back(TextOf(k70));
    mortane::test::MakeRandom(k70, random);
    outcome.models.push_back(FailureOf([&] { outcome.models.push_back(k70.Modify()); }));
    k70.Send();
    k70.Receive();
    outcome.models.push_back(TextOf(k70));
  }
  outcome.calls = journal.Lines();
  outcome.prompts = prompts.Log();
  return outcome;
}

class WholeModel : public OnEachBackEnd {
 protected:
  // The simulator in place, made anew, does the same with a device of the bench.
  void ExpectRunAsInPlace(const std::string& bench, std::int32_t device) const {
    const auto reference = BackEndKinds().front().make(bench);
    const Outcome expected = Transfer(reference->Library(), device);
    const auto backEnd = Make(bench);
    const Outcome outcome = Transfer(backEnd->Library(), device);
    EXPECT_FALSE(outcome.calls.empty());
    EXPECT_EQ(outcome.calls, expected.calls);
    EXPECT_EQ(outcome.prompts, expected.prompts);
    EXPECT_EQ(outcome.models, expected.models);
    EXPECT_EQ(backEnd->LiveObjects(), 0);
  }
};
INSTANTIATE_TEST_SUITE_P(OnEachBackEnd, WholeModel, testing::ValuesIn(BackEndKinds()), KindName);

class LongWholeModel : public WholeModel {};
INSTANTIATE_TEST_SUITE_P(OnNearBackEnds, LongWholeModel, testing::ValuesIn(NearBackEndKinds()),
                         KindName);

TEST_P(LongWholeModel, OfTheSimulator) {
  ExpectRunAsInPlace("Quay", 0);
}

TEST_P(WholeModel, OfOneMicroscopeAmongSeveral) {
  ExpectRunAsInPlace("Crowd", 1);
}

TEST_P(LongWholeModel, OfAnotherMicroscopeAmongSeveral) {
  ExpectRunAsInPlace("Crowd", 3);
}

TEST_P(WholeModel, OfAMicroscopeThatDoesNotAnswer) {
  ExpectRunAsInPlace("Crowd", 2);
}

TEST_P(LongWholeModel, OfAMicroscopeWithOddValues) {
  ExpectRunAsInPlace("Attic", 1);
}

// What one run sent, the next one finds.
TEST_P(LongWholeModel, ReadsBackWhatItSent) {
  const auto backEnd = Make("Harbour");
  const Outcome first = Transfer(backEnd->Library(), 1);
  const Outcome second = Transfer(backEnd->Library(), 1);
  EXPECT_EQ(second.models.front(), first.models.back());
  EXPECT_NE(second.models.front(), first.models.front());
}

}  // namespace
}  // namespace mortane::controller::test
