// Another copy of the program on the same instruments, without a window.
#pragma once

#include <memory>
#include <random>
#include <string>

#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"

namespace mortane::test {

// Comes and goes at random, takes a device that is free, edits and sends.
class SecondCopy {
 public:
  SecondCopy(controller::SimulatedLibrary& library, std::mt19937& random);
  ~SecondCopy();
  SecondCopy(const SecondCopy&) = delete;
  SecondCopy& operator=(const SecondCopy&) = delete;

  // `device` is the one that the window works with, negative for none. Answers what is wrong: both
  // have one device, or the window's instrument was changed.
  std::string Act(std::int32_t device);
  void Leave();

 private:
  std::string Take(std::int32_t device);

  controller::SimulatedLibrary& library_;
  std::mt19937& random_;
  std::unique_ptr<Prompts> prompts_;
  std::unique_ptr<clsK70> k70_;  // while it has a device
};

}  // namespace mortane::test
