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
class Prompts;
class clsK70;

// All of it outlives the window.
struct FormServices {
  clsK70& k70;
  controller::ControllerLibrary& library;
  Prompts& prompts;
  // The program's path, then the command line's arguments.
  std::vector<std::string> arguments;
  std::function<QTime()> now = [] { return QTime::currentTime(); };
  // Where the place of the window is remembered; empty: nowhere.
  std::string placeFile = {};
};

}  // namespace mortane
