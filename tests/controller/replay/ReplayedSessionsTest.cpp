// Sessions of programs are replayed without a difference: one of each bench, and every journal that
// lies in this folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "common/Failure.h"
#include "controller/ControllerError.h"
#include "controller/Microscope.h"
#include "controller/replay/JournalReader.h"
#include "controller/replay/NumberedObject.h"
#include "controller/replay/ProgramSession.h"
#include "controller/replay/ReplayedLibrary.h"
#include "support/TempFolder.h"
#include "support/Utf8Path.h"

namespace mortane::test {
namespace {

using namespace controller;

class BenchSessions : public testing::TestWithParam<std::string> {};

TEST_P(BenchSessions, AreReplayedWithoutADifference) {
  const TempFolder folder;
  const std::string journal = folder.Path("journal.txt");
  const ProgramSession recorded = RecordOn(benches::Named(GetParam()), journal);
  EXPECT_FALSE(recorded.received == recorded.sent);
  ReplayedLibrary replayed(journal);
  EXPECT_EQ(WorkOn(replayed), recorded);
  EXPECT_EQ(replayed.Rest(), "");
}

INSTANTIATE_TEST_SUITE_P(All, BenchSessions, testing::ValuesIn(benches::Names()));

// The calls of a session, made on another library one by one.
class Walker {
 public:
  explicit Walker(ControllerLibrary& library) : library_(library) {}

  void Know(std::uint64_t number, ObjectRef object) { objects_[number] = std::move(object); }

  // Makes the call and expects the line's answer.
  void Step(const SessionLine& line) {
    const auto call = ParseSessionCall(line.call);
    ASSERT_TRUE(call) << line.call;
    try {
      Value result = Make(*call, NumberOf(line.call));
      EXPECT_FALSE(line.failure) << line.call;
      EXPECT_EQ(NumberedObject::ToSessionValue(result), line.result) << line.call;
      const auto* object = std::get_if<ObjectNumber>(&line.result);
      if (object != nullptr) Know(object->number, std::get<ObjectRef>(result));
    } catch (const ControllerError& error) {
      EXPECT_EQ((SessionFailure{error.Source(), error.Number(), error.Description()}), line.failure)
          << line.call;
    }
  }

 private:
  static std::uint64_t NumberOf(const std::string& call) {
    return std::stoull(call.substr(1, call.find(' ') - 1));
  }

  Value ValueOf(const SessionValue& value) const {
    return std::visit([this](const auto& plain) { return Of(plain); }, value);
  }
  Value Of(ObjectNumber object) const { return objects_.at(object.number); }
  template <typename Plain>
  Value Of(const Plain& plain) const {
    return plain;
  }

  Value Make(const SessionCall& call, std::uint64_t number) {
    const PathStep& member = call.path.back();
    std::vector<Value> args;
    for (const SessionValue& value : member.args) args.push_back(ValueOf(value));
    if (call.use == "create") return library_.Create(std::get<std::string>(args[0]));
    ControllerObject& object = *objects_.at(number);
    if (call.use == "number") return object.Get("");
    if (call.use == "next") return object.Call("Next");
    if (call.use == "get") return object.Get(member.name, Args(args));
    if (call.use == "call") return object.Call(member.name, Args(args));
    object.Put(member.name, ValueOf(*call.written), Args(args));
    return {};
  }

  ControllerLibrary& library_;
  std::map<std::uint64_t, ObjectRef> objects_;
};

std::vector<SessionLine> LinesOf(const std::string& journal) {
  std::vector<SessionLine> lines;
  JournalReader reader(journal);
  while (auto line = reader.Next()) lines.push_back(std::move(*line));
  return lines;
}

std::vector<std::string> JournalsOfThisFolder() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(MORTANE_REPLAY_FOLDER)) {
    if (entry.path().extension() == ".journal") names.push_back(Utf8Of(entry.path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Journals : public testing::TestWithParam<std::string> {
 protected:
  std::string path_ = std::string(MORTANE_REPLAY_FOLDER) + "/" + GetParam();
  std::vector<SessionLine> lines_ = LinesOf(path_);
};

TEST_P(Journals, AnswerEachOfTheirCalls) {
  ReplayedLibrary replayed(path_);
  Walker walker(replayed);
  for (const SessionLine& line : lines_) walker.Step(line);
  EXPECT_EQ(replayed.Rest(), "");
}

// Where the model makes its root; a window has asked for the fiber illuminator before.
std::size_t BeginOfModel(const std::vector<SessionLine>& lines) {
  const auto root = std::find_if(lines.begin(), lines.end(), [](const SessionLine& line) {
    return line.call.ends_with(" Create(Microscope)") && !line.failure;
  });
  return static_cast<std::size_t>(root - lines.begin());
}

// Where the model begins to connect: it counts the devices, takes a new root when there are
// several, and chooses one.
std::size_t BeginOfConnection(const std::vector<SessionLine>& lines) {
  const auto ends = [](std::string_view text) {
    return [text](const SessionLine& line) { return line.call.find(text) != std::string::npos; };
  };
  const auto chosen = std::find_if(lines.begin(), lines.end(), ends(" put CurrentDevice = "));
  const auto counted =
      std::find_if(std::make_reverse_iterator(chosen), lines.rend(), ends(" get DeviceList.Count"));
  return counted == lines.rend() ? lines.size()
                                 : static_cast<std::size_t>(lines.rend() - counted) - 2;
}

std::int32_t DeviceOf(const std::vector<SessionLine>& lines, std::size_t begin) {
  for (std::size_t i = begin; i < lines.size(); ++i) {
    const auto call = ParseSessionCall(lines[i].call);
    if (call->path.back().name == "Item") return std::get<std::int32_t>(call->path[1].args[0]);
  }
  return -1;
}

// Whatever a program did before it connected is walked over; its pages and commands afterwards are
// left out.
TEST_P(Journals, AreConnectedAndReceivedAsThen) {
  const std::size_t connection = BeginOfConnection(lines_);
  ASSERT_LT(connection, lines_.size()) << "no device is connected";
  const std::size_t root = BeginOfModel(lines_);
  ASSERT_LT(root, connection) << "no microscope is made";
  ReplayedLibrary replayed(path_);
  NotedPrompts prompts;
  clsK70 k70(replayed, prompts);
  Walker walker(replayed);
  for (std::size_t i = 0; i < root; ++i) walker.Step(lines_[i]);
  k70.Initialize();
  walker.Know(std::get<ObjectNumber>(lines_[root].result).number, k70.Mic.Object());
  constexpr std::size_t kInitialized = 3;  // the root, its device list, the count
  for (std::size_t i = root + kInitialized; i < connection; ++i) walker.Step(lines_[i]);
  EXPECT_TRUE(k70.Connect(DeviceOf(lines_, connection)));
  k70.Receive();
  EXPECT_EQ(replayed.Difference(), "");
}

INSTANTIATE_TEST_SUITE_P(OfThisFolder, Journals, testing::ValuesIn(JournalsOfThisFolder()));

}  // namespace
}  // namespace mortane::test
