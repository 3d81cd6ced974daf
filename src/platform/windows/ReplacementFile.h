// The file that a save writes beside its target and then puts in the target's place.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/Handle.h"

namespace mortane {

// What a save replaces, or makes.
struct SaveTarget {
  std::string shownPath;  // as the user gave it, for messages
  std::wstring path;      // as SystemPath gives it, links followed
  bool exists = false;
  DWORD attributes = 0;
};

// Gone with its owner unless it was put in the target's place. Every step raises a Failure when it
// fails.
class ReplacementFile {
 public:
  explicit ReplacementFile(const SaveTarget& target);
  ~ReplacementFile();
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  void TakeAccessRights();
  void Write(std::string_view bytes);
  void RenameToTarget();

 private:
  [[noreturn]] void Raise() const;
  bool PutInPlace();
  bool RenameOver();
  bool Move() const;
  bool Replace() const;

  const SaveTarget& target_;
  std::wstring path_;
  Handle file_;
};

// What the call is given that renames an open file to that path, over a file that stands there.
// Also over one that others have open, if they share its deletion.
std::vector<std::byte> RenameRequest(const std::wstring& path);

// Removes what processes left that ended during a save in that folder.
void RemoveLeftTemporaries(const std::wstring& folder);

}  // namespace mortane
