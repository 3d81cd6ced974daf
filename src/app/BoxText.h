// The text of a box, as text that can be selected and copied.
#pragma once

#include <QMessageBox>

namespace mortane {

// Ctrl+A selects the text; Ctrl+C copies what is selected, or the title and the text where nothing
// is.
class CopiedBox : public QMessageBox {
 public:
  CopiedBox(Icon icon, const QString& title, const QString& text, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void LeaveRoomForTitle();
  void SelectText();
  void CopyText() const;
};

}  // namespace mortane
