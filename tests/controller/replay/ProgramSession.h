// What a program does with a controller from its start to its end, and a journal of it.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "common/UnattendedPrompts.h"
#include "controller/replay/JournalFile.h"
#include "controller/replay/RecordedLibrary.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/DeviceAvailability.h"
#include "hub/clsK70.h"
#include "support/RandomModel.h"

namespace mortane::test {

// Boxes are remembered and answered at once.
class NotedPrompts : public UnattendedPrompts {
 public:
  Answer MsgBox(const std::string& text, int /*style*/, const std::string& /*caption*/) override {
    said.push_back(text);
    return Answer::Ok;
  }

  std::vector<std::string> said;
};

// What a session leaves behind.
struct ProgramSession {
  std::string received;  // the settings file
  std::string sent;
  std::vector<std::string> said;

  bool operator==(const ProgramSession&) const = default;
};

inline std::string SettingsOf(const clsK70& k70) {
  DomDocument document;
  k70.WriteSections(document);
  return document.ToText();
}

// Looks at all devices, connects the last one, receives, changes settings of every unit, sends,
// receives again.
inline ProgramSession WorkOn(controller::ControllerLibrary& library) {
  NotedPrompts prompts;
  ProgramSession session;
  {
    clsK70 k70(library, prompts);
    k70.Initialize();
    const std::int32_t count = k70.DeviceCount();
    for (std::int32_t i = 0; i < count; ++i) {
      prompts.said.push_back(k70.DeviceName(i));
      prompts.said.emplace_back(IsDeviceAvailable(library, i) ? "free" : "not available");
    }
    EXPECT_TRUE(k70.Connect(count - 1));
    k70.Receive();
    session.received = SettingsOf(k70);
    std::mt19937 random(70);
    MakeRandom(k70, random);
    k70.Send();
    k70.Receive();
    session.sent = SettingsOf(k70);
  }
  session.said = prompts.said;
  return session;
}

// The same on a bench, with a journal of it.
inline ProgramSession RecordOn(controller::Bench bench, const std::string& journal) {
  controller::SimulatedLibrary simulated(std::move(bench));
  controller::JournalFile file(journal, {}, [](const std::string& text) { FAIL() << text; });
  controller::RecordedLibrary recorded(simulated,
                                       [&](const std::string& line) { file.Write(line); });
  return WorkOn(recorded);
}

}  // namespace mortane::test
