// A controller library that answers from the journal of a session.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "controller/ControllerObject.h"
#include "controller/replay/JournalReader.h"
#include "controller/replay/NumberedObject.h"

namespace mortane::controller {

// Calls are answered in the order of the journal; whatever failed fails again. From the first call
// on that is not the journal's next one, every call fails with the source "Replay" and a text that
// tells the line, what was expected and what came.
class ReplayedLibrary : public ControllerLibrary {
 public:
  using Notice = std::function<void(const std::string&)>;

  // Gets the difference as soon as it is found. Raises a Failure for a file that holds no journal.
  explicit ReplayedLibrary(const std::string& path, Notice notice = {});
  ~ReplayedLibrary() override;
  ReplayedLibrary(const ReplayedLibrary&) = delete;
  ReplayedLibrary& operator=(const ReplayedLibrary&) = delete;

  ObjectRef Create(std::string_view className) override;

  // Empty while there is none.
  const std::string& Difference() const;

  // Tells the calls of the journal that nobody made; empty when all were made. The first one counts
  // as a difference.
  std::string Rest();

 private:
  class State;

  std::shared_ptr<State> state_;
};

}  // namespace mortane::controller
