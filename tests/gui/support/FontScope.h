// Another font of the application while an object of this class lives.
#pragma once

#include <QApplication>

namespace mortane {

class FontScope {
 public:
  explicit FontScope(const QFont& font) : former_(QApplication::font()) {
    QApplication::setFont(font);
  }
  ~FontScope() { QApplication::setFont(former_); }
  FontScope(const FontScope&) = delete;
  FontScope& operator=(const FontScope&) = delete;

 private:
  QFont former_;
};

inline QFont FontOf(double points) {
  QFont font = QApplication::font();
  font.setPointSizeF(points);
  return font;
}

}  // namespace mortane
