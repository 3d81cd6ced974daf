// Opening and saving a settings file, with the questions that a person answers on the way.
#pragma once

#include <optional>
#include <string>

#include "app/Outcome.h"
#include "common/Prompts.h"

class QWidget;

namespace mortane {

// The filter and the extension of settings files.
FileQuestion SettingsFileQuestion();

// What came of the question for a file. All that went wrong was shown.
struct FileResult {
  std::string path;                // empty when the person gave none
  std::optional<Outcome> outcome;  // none when nothing was to be read or written
};

// Asks for a file, lets the person choose among its sections and reads those into the model.
FileResult OpenSettings(Prompts& prompts, FileQuestion& question, QWidget* parent);
// The same with a file that is known.
FileResult OpenSettingsFile(Prompts& prompts, const std::string& path, QWidget* parent);

// Asks for a file and writes the model into it.
FileResult SaveSettings(Prompts& prompts, FileQuestion& question);

}  // namespace mortane
