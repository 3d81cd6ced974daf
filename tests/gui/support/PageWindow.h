// A page in a window of its own.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "model/ConnectedMicroscope.h"
#include "support/RigLibrary.h"
#include "widgets/Page.h"

namespace mortane::test {

// What a page finds in its model. Of Reported, failures and boxes that the receiving shows about
// the instrument's odd data are accepted.
enum class Link { Received, Reported, None };

// Base of a page's rig: UnitPageRig over an area's units, PageRig over the microscope object.
class PageWindow : public RigLibrary {
 public:
  explicit PageWindow(Bench bench)
      : RigLibrary(std::move(bench)), window_(std::make_unique<QWidget>()) {}
  virtual ~PageWindow() = default;
  PageWindow(const PageWindow&) = delete;
  PageWindow& operator=(const PageWindow&) = delete;
  PageWindow(PageWindow&&) = delete;
  PageWindow& operator=(PageWindow&&) = delete;

  // The model on which the page is made.
  virtual ConnectedMicroscope& microscope() = 0;

  // The window takes the page over, which is then loaded and shown. `elsewhere` stands after it
  // in the order of the Tab key.
  template <typename PageKind>
  PageKind& Show(PageKind* page) {
    ShowPage(page);
    return *page;
  }

  template <typename Control = QWidget>
  Control& Find(std::string_view name) {
    auto* control = qobject_cast<Control*>(FindWidget(name));
    if (control == nullptr) throw std::runtime_error(std::string(name) + " is of another kind");
    return *control;
  }

  QWidget& window() { return *window_; }
  QPushButton& elsewhere() { return *elsewhere_; }

  // Names of the controls that the Tab key reaches, from the first to the last of the page.
  std::vector<std::string> TabOrder();

 protected:
  // Destroys the page, which refers to the model. To be called before the model ends.
  void CloseWindow() { window_.reset(); }

 private:
  void ShowPage(Page* page);
  QWidget* FindWidget(std::string_view name);

  std::unique_ptr<QWidget> window_;
  QPushButton* elsewhere_ = nullptr;
};

// The rig of a page that is made on that model.
template <typename Units>
class UnitPageRig;
template <typename Model>
struct PageRigOf {
  using Type = UnitPageRig<Model>;
};

}  // namespace mortane::test
