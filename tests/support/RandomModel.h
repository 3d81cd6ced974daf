// A model with arbitrary contents that a settings file keeps.
#pragma once

#include <random>

namespace mortane {
class clsK70;
}  // namespace mortane

namespace mortane::test {

// Changes settings of every unit at random, to values of their ranges. What is unknown stays so,
// and so does the remote's LED, whose words in a file change their meaning when they are read.
void MakeRandom(clsK70& k70, std::mt19937& random);

}  // namespace mortane::test
