// The edits that are not sent, kept on the disk against the death of the process.
#pragma once

#include <QDateTime>
#include <optional>
#include <string>

namespace mortane {

class clsK70;

// A settings file of the whole model in the folder of its device, there only while something is
// not sent. What a process that died has left is put aside at the next start with that device and
// stays until the person has opened it or let it go; there may be several such files.
class UnsentEdits {
 public:
  struct Left {
    std::string path;
    QDateTime time;  // of the last edit in it
  };

  // `folder` holds the folders of all devices; empty: nothing is kept.
  UnsentEdits(std::string folder, const clsK70& k70) : folder_(std::move(folder)), k70_(k70) {}

  // The user's folder for it; empty when the system names none.
  static std::string DefaultFolder();

  // The device whose edits are kept from here on, by its name, which may be empty.
  void Follow(const std::string& device);
  void FollowNone();
  // What was left by processes that died: the last of it.
  [[nodiscard]] std::optional<Left> FromBefore() const;
  void Forget(const Left& left) const;

  // The device that is followed has got another name. What was left goes with it.
  void Rename(const std::string& device);

  // Writes the file whole or leaves it as it was, where the model has changed since. If it cannot
  // be written, nothing is kept; nothing is shown.
  void Keep();
  // Once nothing is unsent, and at an orderly end.
  void Remove();

 private:
  [[nodiscard]] std::string FolderOf(const std::string& device) const;
  [[nodiscard]] std::string Path(const std::string& name) const;

  std::string folder_;
  const clsK70& k70_;
  std::optional<std::string> device_;  // none while nothing is kept
  std::string written_;
};

}  // namespace mortane
