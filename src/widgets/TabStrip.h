// A strip of tabs over one set of controls.
#pragma once

#include <QStringList>
#include <QTabBar>

namespace mortane {

// Building and setting are silent. A click takes the focus first, so that the field that is left
// is stored for the old tab, and a refused text keeps the old tab.
class TabStrip : public QTabBar {
  Q_OBJECT

 public:
  explicit TabStrip(QWidget* parent = nullptr);

  // Replaces all tabs; the first one is then selected.
  void SetTabs(const QStringList& captions);
  // Tabs "1", "2" ... up to `count`.
  void SetNumberedTabs(int count);
  int AppendTab(const QString& caption);
  [[nodiscard]] int index() const { return currentIndex(); }
  void setIndex(int index);
  [[nodiscard]] QString caption() const { return tabText(currentIndex()); }
  // What a click on the tab does.
  void Choose(int index);
  // The dot behind the caption of a tab that stands for something not sent. New tabs have none.
  void SetTabPending(int index, bool pending);
  [[nodiscard]] bool isTabPending(int index) const { return tabData(index).toBool(); }

 Q_SIGNALS:
  // For a click or a key of the person only.
  void chosen(int index);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] QSize tabSizeHint(int index) const override;
  [[nodiscard]] QSize minimumTabSizeHint(int index) const override;

 private:
  void GoToEnd(bool last);
};

}  // namespace mortane
