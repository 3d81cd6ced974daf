// Making a folder, and what stands in one.
#pragma once

#include <string>
#include <vector>

namespace mortane {

// Makes the folder and those above it that are missing, for the user alone where the system tells
// users apart. True when it stands afterwards.
bool MakeFolder(const std::string& utf8Path);

// The names of all that stands in the folder, in no order; none for a folder that is not there or
// cannot be read.
std::vector<std::string> NamesInFolder(const std::string& utf8Path);

// Removes a file. Raises a Failure that names the path and the reason.
void RemoveFile(const std::string& utf8Path);

}  // namespace mortane
