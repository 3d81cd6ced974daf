// The panel with the system name and the report of fitted accessories.
#pragma once

#include <optional>

#include "widgets/Control.h"
#include "widgets/Page.h"

class QFrame;
class QLabel;
class QPlainTextEdit;

namespace mortane {

class InnerFrame;
class MicroscopeDrawing;
class TextField;
class clsK70;

// A nameless controller shows "NoName". Kept: that is only shown until the field is left or the
// page is saved; then it is the name, and a Send writes it.
class SystemNameCtl : public Page {
 public:
  explicit SystemNameCtl(clsK70& k70, QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  Control<QFrame> FrameBase{"FrameBase"};
  Control<QFrame> Frame1{"Frame1"};
  Control<QLabel> Label1{"Label1"};
  Control<TextField> TextSystemName{"TextSystemName"};
  Control<QPlainTextEdit> TextAccessories{"TextAccessories"};

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowDrawingWhereItFits();
  QWidget* BuildNameCard();
  QWidget* BuildReportCard();

  clsK70& k70_;
  std::optional<QString> untouched_;  // as shown of a name that nobody has edited since
  MicroscopeDrawing* drawing_;
  InnerFrame* drawingFrame_;
};

}  // namespace mortane
