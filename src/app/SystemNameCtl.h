// The panel with the system name and the report of fitted accessories.
#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QPlainTextEdit;

namespace mortane {

class MicroscopeDrawing;
class TextField;

// A nameless controller shows "NoName". That is only shown until the field is left or the page
// is saved: then it is the name, and a Send writes it.
class SystemNameCtl : public QWidget {
 public:
  explicit SystemNameCtl(QWidget* parent = nullptr);

  void LoadData();
  void SaveData();

  QFrame* FrameBase;
  QFrame* Frame1;
  QLabel* Label1;
  TextField* TextSystemName;
  QPlainTextEdit* TextAccessories;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* BuildNameCard();
  QWidget* BuildReportCard();
  void ShowDrawing();

  MicroscopeDrawing* drawing_;
};

}  // namespace mortane
