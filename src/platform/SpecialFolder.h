// The folders that the operating system sets apart for a purpose.
#pragma once

#include <string>

namespace mortane {

inline constexpr int kApplicationDataFolder = 26;

// The user's folder for application data, without a separator at its end and not necessarily
// there yet; an empty text for any other number and when the system names none.
std::string GetSpecialFolder(int folder);

// The user's folder for what a program keeps for him, as above.
std::string UserDataFolder();

// The folder of the user's documents; the home folder where the system names none.
std::string DocumentsFolder();

}  // namespace mortane
