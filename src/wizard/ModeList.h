// A check list that stands under the option whose steps it tells.
#pragma once

#include <functional>

#include "widgets/ListBox.h"

namespace mortane {

// While its option is chosen it has the amber line and full colours, also where nobody may change
// it; otherwise it rests: grey, and not as something that is not fitted.
class ModeList : public ListBox {
  Q_OBJECT

 public:
  // `onRelease` runs after each release of the mouse over it, once its check marks have followed.
  explicit ModeList(QWidget* parent, std::function<void()> onRelease = {});

  void SetChosen(bool chosen);
  [[nodiscard]] bool isChosen() const { return chosen_; }

 protected:
  bool event(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::function<void()> onRelease_;
  bool chosen_ = false;
};

}  // namespace mortane
