// The dark strip with the wizard's steps.
#pragma once

#include <QVector>
#include <QWidget>

#include "widgets/Icons.h"

namespace mortane {

class RovingTabStop;
class StepButton;

// One Tab stop. Up, Down, Home and End only move the focus, Space selects.
class StepRail : public QWidget {
  Q_OBJECT

 public:
  explicit StepRail(QWidget* parent = nullptr);

  // The index of the new button, which has no name and is off.
  int AddStep(IconName icon, const QString& text);
  [[nodiscard]] StepButton* button(int index) const { return buttons_[index]; }
  [[nodiscard]] int count() const { return static_cast<int>(buttons_.size()); }
  // A tool tip says why a step is off.
  void SetStepEnabled(int index, bool enabled, const QString& whyOff = {});
  // -1: none. A step that was current counts as passed before the current one.
  void SetCurrent(int index);

 Q_SIGNALS:
  void chosen(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowStates();

  QVector<StepButton*> buttons_;
  QVector<bool> enabled_;
  QVector<bool> visited_;
  RovingTabStop* stop_;
  int current_ = -1;
};

}  // namespace mortane
