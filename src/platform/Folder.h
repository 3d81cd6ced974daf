// Making a folder.
#pragma once

#include <string>

namespace mortane {

// Makes the folder and those above it that are missing, for the user alone where the system tells
// users apart. True when it stands afterwards.
bool MakeFolder(const std::string& utf8Path);

}  // namespace mortane
