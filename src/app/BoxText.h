// The text of a box, as text that can be selected and copied.
#pragma once

#include <QMessageBox>

class QGridLayout;
class QLabel;

namespace mortane {

// The label in which the toolkit's box shows its text, and its place in the box's grid.
struct BoxLabel {
  QLabel* label;
  QGridLayout* grid;
  int row = 0;
  int column = 0;
  int rowSpan = 0;
  int columnSpan = 0;
};
BoxLabel FindBoxLabel(const QMessageBox& box);

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
