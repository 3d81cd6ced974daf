#include "platform/windows/FileFailure.h"

#include "common/Failure.h"
#include "common/FileErrors.h"
#include "platform/windows/Wide.h"

namespace mortane {
namespace {

std::string Opening(std::string_view attempt, const std::string& shownPath) {
  return "Cannot " + std::string(attempt) + " " + shownPath + ": ";
}

}  // namespace

void RaiseFileFailure(std::string_view attempt, const std::string& shownPath, DWORD error) {
  RaiseOwnFailure(IsMissingError(error) ? kMissingFileError : kFileError,
                  Opening(attempt, shownPath) + SystemMessage(error));
}

void RaiseNoRegularFile(std::string_view attempt, const std::string& shownPath) {
  RaiseOwnFailure(kFileError, Opening(attempt, shownPath) + "not a regular file");
}

}  // namespace mortane
