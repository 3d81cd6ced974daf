#include "platform/AtomicFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>

#include "common/Failure.h"
#include "common/TemporaryName.h"
#include "platform/posix/Descriptor.h"

namespace mortane {
namespace {

constexpr int kLongestLinkChain = 40;

[[noreturn]] void RaiseFileFailure(std::string_view attempt, const std::string& path,
                                   const std::string& reason, std::int32_t number = kFileError) {
  RaiseOwnFailure(number, "Cannot " + std::string(attempt) + " " + path + ": " + reason);
}

[[noreturn]] void RaiseFileFailure(std::string_view attempt, const std::string& path, int error) {
  RaiseFileFailure(attempt, path, std::generic_category().message(error),
                   error == ENOENT ? kMissingFileError : kFileError);
}

// Resolves symbolic links, also a last one whose target does not exist.
std::string FollowLinks(const std::string& path) {
  std::filesystem::path target = path;
  std::error_code error;
  for (int link = 0; std::filesystem::is_symlink(target, error); ++link) {
    if (link == kLongestLinkChain) RaiseFileFailure("write", path, ELOOP);
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error) RaiseFileFailure("write", path, error.message());
    target = target.parent_path() / next;
  }
  return target.string();
}

// The status of the file to be replaced; nothing when there is none. Refuses folders, devices and
// files without write permission, which a rename would replace all the same.
std::optional<struct stat> CheckTarget(const std::string& target) {
  struct stat status = {};
  if (::stat(target.c_str(), &status) != 0) {
    if (errno == ENOENT) return std::nullopt;
    RaiseFileFailure("write", target, errno);
  }
  if (S_ISDIR(status.st_mode)) RaiseFileFailure("write", target, EISDIR);
  if (!S_ISREG(status.st_mode)) RaiseFileFailure("write", target, "not a regular file");
  if (::access(target.c_str(), W_OK) != 0) RaiseFileFailure("write", target, errno);
  return status;
}

bool IsDead(std::int64_t process) {
  if (process > std::numeric_limits<pid_t>::max()) return false;
  return ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

// Process numbers are local to a machine or container, while a folder may be shared: a file whose
// writer still holds its lock is left alone.
void RemoveUnlessLocked(const std::string& path) {
  constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  const Descriptor file(::open(path.c_str(), kFlags));
  struct stat status = {};
  if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  if (::flock(file.Get(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
}

// A process that was killed during a save could not remove its temporary file. One that cannot be
// removed now is left; it does not keep a save from succeeding.
void RemoveLeftTemporaries(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const auto process = ProcessOfTemporary(entry->path().filename().string());
    if (process && IsDead(*process)) RemoveUnlessLocked(entry->path().string());
  }
}

// A temporary file beside the target, removed unless it was renamed.
class ReplacementFile {
 public:
  explicit ReplacementFile(const std::string& target) : target_(target) {
    const std::filesystem::path folder = std::filesystem::path(target).parent_path();
    for (int number = 0; number < kTemporaryNames; ++number) {
      path_ = (folder / TemporaryName(::getpid(), number)).string();
      file_ = Descriptor(::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
      if (file_.IsOpen()) {
        // Marks the file as in use for saves on other machines; not every file system supports it.
        static_cast<void>(::flock(file_.Get(), LOCK_EX | LOCK_NB));
        return;
      }
      if (errno != EEXIST) break;
    }
    RaiseFileFailure("write", target_, errno);
  }
  ~ReplacementFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  void TakePermissions(const struct stat& status) {
    // Only a privileged user can change the owner; the new file of another user is his own.
    if (::fchown(file_.Get(), status.st_uid, status.st_gid) != 0 && errno != EPERM) Raise();
    if (::fchmod(file_.Get(), status.st_mode & 07777U) != 0) Raise();
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(file_.Get(), bytes.data(), bytes.size());
      if (written < 0) {
        if (errno == EINTR) continue;
        Raise();
      }
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    if (::fsync(file_.Get()) != 0) Raise();
    if (!file_.Close()) Raise();
  }

  void RenameToTarget() {
    if (::rename(path_.c_str(), target_.c_str()) != 0) Raise();
    path_.clear();
    FlushFolder();
  }

 private:
  [[noreturn]] void Raise() const { RaiseFileFailure("write", target_, errno); }

  // Some file systems refuse to flush a folder; the new file is whole all the same.
  void FlushFolder() const {
    std::filesystem::path folder = std::filesystem::path(target_).parent_path();
    if (folder.empty()) folder = ".";
    const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open.IsOpen()) static_cast<void>(::fsync(open.Get()));
  }

  std::string target_;
  std::string path_;
  Descriptor file_;
};

}  // namespace

std::string ReadWholeFile(const std::string& utf8Path, std::size_t limit) {
  // Without O_NONBLOCK, opening a pipe would wait for its writer.
  const Descriptor file(::open(utf8Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.IsOpen()) RaiseFileFailure("read", utf8Path, errno);
  struct stat status = {};
  if (::fstat(file.Get(), &status) != 0) RaiseFileFailure("read", utf8Path, errno);
  if (S_ISDIR(status.st_mode)) RaiseFileFailure("read", utf8Path, EISDIR);
  if (!S_ISREG(status.st_mode)) RaiseFileFailure("read", utf8Path, "not a regular file");

  std::string bytes;
  const auto expected = static_cast<std::size_t>(status.st_size);
  if (expected > limit) RaiseFileFailure("read", utf8Path, EFBIG);
  // One spare byte, so that the read that finds the end needs no larger buffer.
  bytes.resize(expected + 1);
  std::size_t size = 0;
  for (;;) {
    const ssize_t count = ::read(file.Get(), bytes.data() + size, bytes.size() - size);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseFileFailure("read", utf8Path, errno);
    if (count == 0) break;
    size += static_cast<std::size_t>(count);
    if (size > limit) RaiseFileFailure("read", utf8Path, EFBIG);
    if (size == bytes.size()) bytes.resize(2 * size);
  }
  bytes.resize(size);
  return bytes;
}

void WriteFileAtomically(const std::string& utf8Path, std::string_view bytes) {
  const std::string target = FollowLinks(utf8Path);
  const std::optional<struct stat> existing = CheckTarget(target);
  RemoveLeftTemporaries(std::filesystem::path(target).parent_path());
  ReplacementFile replacement(target);
  if (existing) replacement.TakePermissions(*existing);
  replacement.Write(bytes);
  replacement.RenameToTarget();
}

}  // namespace mortane
