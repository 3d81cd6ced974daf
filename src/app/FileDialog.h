// A file dialog made from the question of the core.
#pragma once

#include <QFileDialog>

#include "common/Prompts.h"

namespace mortane {

class FileDialog : public QFileDialog {
 public:
  // Begins in `folder`, or in the current one where that is empty or gone.
  FileDialog(AcceptMode mode, const FileQuestion& question, const QString& folder);

  // The chosen path; empty when the person gave none, or when the window ended meanwhile.
  QString Ask();

 protected:
  // A file in a folder that must be there and is not is refused with the toolkit's words.
  void accept() override;

 private:
  bool pathMustExist_;
};

}  // namespace mortane
