// The edits that are not sent, kept on the disk against the death of the process.
#pragma once

#include <QDateTime>
#include <optional>
#include <string>

namespace mortane {

class clsK70;

// A settings file of the whole model in the folder of its device, there only while something is
// not sent. What a process that died has left is put aside at the next start with that device and
// stays until the person has opened it or let it go.
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

  // The device whose edits are kept from here on, by its name; empty: none.
  void Follow(const std::string& device);
  // What was left by a process that died.
  [[nodiscard]] std::optional<Left> FromBefore() const;
  void ForgetFromBefore() const;

  // The device that is followed has got another name.
  void Rename(const std::string& device);

  // Writes the file whole or leaves it as it was, where the model has changed since. If it cannot
  // be written, nothing is kept; nothing is shown.
  void Keep();
  // Once nothing is unsent, and at an orderly end.
  void Remove();

 private:
  [[nodiscard]] std::string Path(const char* name) const;

  std::string folder_;
  const clsK70& k70_;
  std::string device_;
  std::string written_;
};

}  // namespace mortane
