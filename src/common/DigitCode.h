// The one-character codes by which the controller names switch functions, series and types.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mortane {

// 0 to 61 as "0".."9", "A".."Z", "a".."z"; a blank below 0; an empty text from 62 up.
std::string DigitToChar(std::int32_t n);

// The value of the first character, 0 for an empty text. Characters before "0" give -1, those
// between "9" and "A" -2, those after "z" and all beyond ASCII -3. Kept: the six characters
// between "Z" and "a" decode to 30..35 like "U".."Z".
std::int32_t CharToDigit(std::string_view text);

}  // namespace mortane
