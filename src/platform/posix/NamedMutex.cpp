#include "platform/NamedMutex.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <string>

#include "common/Numbers.h"
#include "platform/Sleep.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/SystemRoot.h"

namespace mortane {

struct NamedMutex::Names {
  Descriptor file;
};

namespace {

constexpr int kPollMilliseconds = 10;
constexpr std::array<const char*, 2> kLockFolders = {"/run/lock", "/tmp"};

// The first folder in which every user can create files and only owners can remove them. The mode
// is checked, not this user's access, so that all users choose the same folder.
std::string LockFolder() {
  for (const char* name : kLockFolders) {
    std::string folder = SystemRoot::Path(name);
    struct stat status = {};
    constexpr mode_t kShared = S_ISVTX | S_IRWXU | S_IRWXG | S_IRWXO;
    if (::stat(folder.c_str(), &status) == 0 && (status.st_mode & kShared) == kShared)
      return folder;
  }
  return SystemRoot::Path(kLockFolders.back());
}

bool IsPlain(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
         c == '_' || c == '.';
}

std::string LockPath(std::string_view name) {
  std::string path = LockFolder() + "/mortane-";
  for (const char c : name) {
    if (IsPlain(c)) {
      path += c;
    } else {
      path += "%" + HexPadded(static_cast<unsigned char>(c), 2);
    }
  }
  return path + ".lock";
}

// Two steps, because Linux refuses O_CREAT on another user's file in a shared folder. Symbolic
// links are not followed.
Descriptor OpenLockFile(const std::string& path) {
  constexpr int kFlags = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  for (;;) {
    Descriptor existing(::open(path.c_str(), kFlags));
    if (existing.IsOpen() || errno != ENOENT) return existing;
    Descriptor created(::open(path.c_str(), kFlags | O_CREAT | O_EXCL, 0666));
    if (created.IsOpen()) {
      // Other users must be able to open it whatever the umask is.
      static_cast<void>(::fchmod(created.Get(), 0666));
      return created;
    }
    if (errno != EEXIST) return created;
  }
}

bool SetOwnership(int file, short type) {
  struct flock whole = {};
  whole.l_type = type;
  whole.l_whence = SEEK_SET;
  return ::fcntl(file, F_OFD_SETLK, &whole) == 0;
}

}  // namespace

NamedMutex::NamedMutex() = default;

NamedMutex::~NamedMutex() = default;

// The lock on the file is the name; the file itself is never removed. The lock ends with the last
// descriptor that has it. An object that comes second keeps its descriptor without the lock.
NamedMutex::Opened NamedMutex::Open(std::string_view name) {
  Close();
  Descriptor file = OpenLockFile(LockPath(scope_ + std::string(name)));
  struct stat status = {};
  if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    return Opened::Failed;
  int result = 0;
  do {
    result = ::flock(file.Get(), LOCK_EX | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  if (result != 0 && errno != EWOULDBLOCK) return Opened::Failed;
  names_ = std::make_unique<Names>(Names{std::move(file)});
  return result == 0 ? Opened::First : Opened::AlreadyExisted;
}

void NamedMutex::Close() {
  names_.reset();
}

bool NamedMutex::IsOpen() const {
  return names_ != nullptr;
}

void NamedMutex::Lock(int milliseconds) {
  if (!IsOpen()) return;
  for (int waited = 0; !SetOwnership(names_->file.Get(), F_WRLCK);) {
    if (errno != EAGAIN && errno != EACCES && errno != EINTR) return;
    if (milliseconds >= 0 && waited >= milliseconds) return;
    SleepMilliseconds(kPollMilliseconds);
    if (milliseconds >= 0) waited += kPollMilliseconds;
  }
}

void NamedMutex::Unlock() {
  if (IsOpen()) SetOwnership(names_->file.Get(), F_UNLCK);
}

}  // namespace mortane
