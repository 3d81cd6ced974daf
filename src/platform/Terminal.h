// The standard streams of a program without windows.
#pragma once

#include <string>
#include <string_view>

namespace mortane {

enum class StandardStream { Input, Output, Error };

// To be called first. A reader that goes away makes a write fail and does not end the process; a
// stream that the process was started without fails too, and no file takes its place. Bytes pass
// unchanged.
void PrepareStandardStreams();

// Whether a person sits at the stream's other end.
bool IsTerminal(StandardStream stream);

// Writes all of the bytes to the standard output. The system's reason when that failed; empty
// after a success.
std::string WriteStandardOutput(std::string_view bytes);

}  // namespace mortane
