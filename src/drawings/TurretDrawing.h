// A turret from above: what stands at each of its addresses, to be seen and chosen.
#pragma once

#include <QMap>
#include <QPixmap>
#include <QVector>
#include <QWidget>

#include "drawings/TurretItem.h"

class QAbstractButton;

namespace mortane {

class OptionGroup;
class TurretButton;

// Address 1 is at the top, the others follow clockwise. The places are buttons, of which one is
// chosen; together they are one Tab stop, with arrows inside. Scales from 0.8 to 2.5 with its
// size and never stretches; large fonts make it larger, so that labels stay within their places.
class TurretDrawing : public QWidget {
  Q_OBJECT

 public:
  explicit TurretDrawing(PlaceKind kind, QWidget* parent = nullptr);

  // Up to ten. The chosen place stays if there is one of its index.
  void SetItems(const QVector<TurretItem>& items);
  void SetItem(int index, const TurretItem& item);
  // The dots of places that differ from what was last received or sent, by their addresses, with
  // what that was. They stay with the addresses until they are set again.
  void SetPending(const QMap<int, QString>& was);
  [[nodiscard]] int placeOf(int address) const;  // -1: none
  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] QAbstractButton* place(int index) const;
  [[nodiscard]] int index() const;  // -1: none
  void setIndex(int index);         // silent

  [[nodiscard]] double drawingScale() const;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // For a click or a key of the person only.
  void chosen(int index);
  // For a click or the Space key. Arrows, Home and End go along the turret and ask for no more.
  void activated(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeButton(int index);
  void Choose(int index);
  void PlaceButtons();
  void Describe();
  void PaintDisc();
  void UpdateLeastScale();
  void UpdateLabels();
  void ShowPending();
  [[nodiscard]] QPointF Center() const;
  [[nodiscard]] QRectF NumberArea(int index) const;

  PlaceKind kind_;
  OptionGroup* group_;
  QVector<TurretButton*> buttons_;  // of all addresses that there can be
  int count_ = 0;
  QMap<int, QString> was_;
  double leastScale_;
  QPixmap disc_;
};

}  // namespace mortane
