// A switch with the caption ON or OFF.
#pragma once

#include <QAbstractButton>

namespace mortane {

// toggled() is raised for every change of the value, by the user or the program, after the caption
// has followed. Disabled it keeps its last side, dashed. An unknown value counts as off, with the
// knob between the sides; whatever the user or the program sets next ends it.
class CheckToggle : public QAbstractButton {
  Q_OBJECT

 public:
  // Between the edge, where the line of the focus goes, and the track.
  static constexpr int kPadding = 5;

  explicit CheckToggle(QWidget* parent = nullptr);

  void SetUnknown();
  [[nodiscard]] bool isUnknown() const { return unknown_; }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void checkStateSet() override;
  void nextCheckState() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void UpdateCaption();
  QPalette ShownColors() const;
  void DrawTrack(QPainter& painter, const QRectF& track) const;

  bool unknown_ = false;
};

}  // namespace mortane
