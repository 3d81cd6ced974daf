// The panel with the system name and the report of fitted accessories.
#pragma once

#include <optional>

#include "widgets/Page.h"

class QFrame;
class QLabel;
class QPlainTextEdit;

namespace mortane {

class InnerFrame;
class MicroscopeDrawing;
class TextField;
class clsK70;

// A nameless controller shows "NoName". That is only shown until the field is left or the page
// is saved: then it is the name, and a Send writes it.
class SystemNameCtl : public Page {
 public:
  explicit SystemNameCtl(clsK70& k70, QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  QFrame* FrameBase;
  QFrame* Frame1;
  QLabel* Label1;
  TextField* TextSystemName;
  QPlainTextEdit* TextAccessories;

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
