// Values in texts for people: whatever they hold, nothing around them changes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mortane {

// Without characters that a page or an XML file cannot hold: control characters become their
// pictures, what is no valid UTF-8 the replacement character.
std::string Readable(std::string_view text);

// Escaped for the content of an HTML element and for an attribute in double quotes,
// and readable.
std::string Escaped(std::string_view text);

// For plain text: control characters and the marks that change the direction of writing become
// visible, what is no valid UTF-8 the replacement character.
std::string Plain(std::string_view text);

// Lines of at most `width` characters, broken at blanks where there are any.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);

}  // namespace mortane
