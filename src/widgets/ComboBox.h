// A drop-down list with item data.
#pragma once

#include <QComboBox>
#include <QVariant>

namespace mortane {

// Filling leaves nothing selected. chosen() is raised for every choice of the person, also of the
// entry on show; selectionChanged() for that and for a new entry that the program sets. The wheel
// changes nothing unless the list is open.
class ComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit ComboBox(QWidget* parent = nullptr);

  int addRow(const QString& text, const QVariant& data = {});
  void clearRows();
  [[nodiscard]] int index() const { return currentIndex(); }
  void setIndex(int row);  // an index that is no row shows nothing
  [[nodiscard]] QVariant data(int row) const { return itemData(row); }
  [[nodiscard]] int rowOf(const QVariant& data) const { return findData(data); }
  void showPopup() override;

 Q_SIGNALS:
  void chosen(int row);
  void selectionChanged(int row);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QRect TextArea() const;
};

}  // namespace mortane
