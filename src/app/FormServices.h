// What a program's window works with.
#pragma once

#include <QTime>
#include <functional>
#include <string>
#include <vector>

namespace mortane {

namespace controller {
class ControllerLibrary;
}
class Joystick;
class Prompts;
class clsK70;

// All of it outlives the window.
struct FormServices {
  clsK70& k70;
  controller::ControllerLibrary& library;
  Prompts& prompts;
  Joystick& joystick;
  // The program's path, then the command line's arguments.
  std::vector<std::string> arguments;
  std::function<QTime()> now = [] { return QTime::currentTime(); };
  // Where the place of the window is remembered; empty: nowhere.
  std::string placeFile = {};
  // The user's folder for the data of programs; empty: nothing is kept there.
  std::string applicationData = {};
  // Where the states before each Send are kept, and the edits that are not sent; empty: nowhere.
  std::string backupFolder = {};
  std::string unsentFolder = {};
  // The folder of the manual's chapters, which need not be installed.
  std::string manualFolder = {};
};

}  // namespace mortane
