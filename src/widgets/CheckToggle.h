// A switch with the caption ON or OFF.
#pragma once

#include <QAbstractButton>

namespace mortane {

// toggled() is raised for every change of the value, by the user or the program, after the caption
// has followed. Disabled it keeps its last side, dashed.
class CheckToggle : public QAbstractButton {
  Q_OBJECT

 public:
  // Between the edge, where the line of the focus goes, and the track.
  static constexpr int kPadding = 5;

  explicit CheckToggle(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void checkStateSet() override;
  void nextCheckState() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void UpdateCaption();
};

}  // namespace mortane
