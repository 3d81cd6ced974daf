// Takes a move of the focus back.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>

namespace mortane {

// Gives the focus back to a field, its text all selected, as soon as the events at hand are
// through. Until then the press that moved the focus, which is delivered after it, is swallowed.
class FocusVeto : public QObject {
 public:
  static void Start(QLineEdit* field);
  [[nodiscard]] static bool IsRunning();

  FocusVeto(const FocusVeto&) = delete;
  FocusVeto& operator=(const FocusVeto&) = delete;
  FocusVeto(FocusVeto&&) = delete;
  FocusVeto& operator=(FocusVeto&&) = delete;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit FocusVeto(QLineEdit* field);
  ~FocusVeto() override;

  void Finish();

  QPointer<QLineEdit> field_;
};

}  // namespace mortane
