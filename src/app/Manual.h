// The manual that is installed beside the programs.
#pragma once

#include <QString>
#include <string>

namespace mortane {

class Prompts;

// A folder with a file for each chapter, "objectives.html"; where it stands or would stand.
std::string ManualFolder();

// Shows a chapter in the person's browser. A box tells where the manual would be when it is
// missing, and where it is when nothing shows it.
void OpenManual(const std::string& folder, const QString& chapter, Prompts& prompts);

}  // namespace mortane
