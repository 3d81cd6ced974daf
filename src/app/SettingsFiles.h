// Opening and saving a settings file, with the questions that a person answers on the way.
#pragma once

#include <string>

#include "common/Prompts.h"

class QWidget;

namespace mortane {

// The filter and the extension of settings files.
FileQuestion SettingsFileQuestion();

// Asks for a file, lets the person choose among its sections and reads those into the model.
// False when the person named no file. A file that cannot be read goes the same way: it was told.
bool OpenSettings(Prompts& prompts, FileQuestion& question, QWidget* parent);

// Asks for a file and writes the model into it.
void SaveSettings(Prompts& prompts, FileQuestion& question);

}  // namespace mortane
