// A page in a window of its own, on a microscope model that the page finds as the program's.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <string>
#include <string_view>
#include <vector>

#include "support/Rig.h"
#include "widgets/Page.h"

namespace mortane::test {

// Of Reported, boxes that the receiving shows about the instrument's odd data are accepted.
enum class Link { Received, Reported, None };

class PageRig : public RigLibrary {
 public:
  // Connects the last instrument of the bench and receives, or leaves the model as it is made.
  explicit PageRig(Bench bench, Link link = Link::Received);
  explicit PageRig(std::string_view benchName, Link link = Link::Received)
      : PageRig(benches::Named(benchName), link) {}
  ~PageRig();
  PageRig(const PageRig&) = delete;
  PageRig& operator=(const PageRig&) = delete;
  PageRig(PageRig&&) = delete;
  PageRig& operator=(PageRig&&) = delete;

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

  clsK70& k70() { return GetK70(); }
  Instrument& instrument() { return simulated.bench().instruments.back(); }
  QWidget& window() { return *window_; }
  QPushButton& elsewhere() { return *elsewhere_; }

  // Names of the controls that the Tab key reaches, from the first to the last of the page.
  std::vector<std::string> TabOrder();

 private:
  void ShowPage(Page* page);
  QWidget* FindWidget(std::string_view name);

  std::unique_ptr<QWidget> window_;
  QPushButton* elsewhere_ = nullptr;
};

}  // namespace mortane::test
