// The line under the top edge of the wizard that says what to do on the step.
#pragma once

#include <QStringList>
#include <QWidget>

#include "widgets/Control.h"

class QAccessibleEvent;
class QLabel;

namespace mortane {

// High enough for each of its texts at the width of the window, and for two lines at least, so that
// a new text moves nothing.
class HelpLine : public QWidget {
  Q_OBJECT

 public:
  explicit HelpLine(QWidget* parent = nullptr);

  // All texts that it will show.
  void SetTexts(const QStringList& texts);
  // A new text is announced to screen readers.
  void Show(const QString& text);

  Control<QLabel> LabelHelp{"LabelHelp"};

 protected:
  virtual void Announce(QAccessibleEvent& changed);
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MeasureTexts();
  void FitHeight();

  QStringList texts_;
  QList<int> widths_;  // of the texts in one line
};

}  // namespace mortane
