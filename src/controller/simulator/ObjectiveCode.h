// The code text in which a controller holds an optional objective, and its two raw commands.
// Written apart from objectives/ObjectiveCode on purpose: the simulated controller is a second
// opinion on the format, so a mistake in one of the two shows in every test that uses both.
#pragma once

#include <string>
#include <string_view>

#include "controller/simulator/DatabaseData.h"

namespace mortane::controller {

// Eleven characters and the condenser digit: series, type, magnification times 10, working
// distance times 100 and numerical aperture times 1000, the last three in hexadecimal.
std::string ObjectiveCode(const ObjectiveData& objective);

// Takes the fields from a code text; false, with nothing changed, when the text is no code.
bool ApplyObjectiveCode(ObjectiveData& objective, std::string_view code);

// "rONR" and a position from 1 to 9; raises a failure for any other text.
std::string AnswerQuery(const DatabaseData& database, std::string_view command);

// "cONS", a position and a code text. True when the database changed.
bool ApplyCommand(DatabaseData& database, std::string_view command);

}  // namespace mortane::controller
