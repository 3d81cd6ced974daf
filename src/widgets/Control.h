// Members of a page or window that stand for its controls, each with the name of its widget.
#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <cstddef>

namespace mortane {

// A pointer to a control that its page makes and the toolkit owns. The widget that is put in gets
// the name of the member, by which styles, tests and screen readers' scripts find it.
template <typename Widget>
class Control {
 public:
  constexpr explicit Control(const char* name) : name_(name) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Control& operator=(Widget* made) {
    made->setObjectName(QLatin1String(name_));
    widget_ = made;
    return *this;
  }

  operator Widget*() const { return widget_; }
  Widget* operator->() const { return widget_; }
  Widget& operator*() const { return *widget_; }

 private:
  const char* name_;
  Widget* widget_ = nullptr;
};

// The name of an element of an array of controls: "Label1_0".
inline QString ElementName(const QString& array, qsizetype index) {
  using namespace Qt::StringLiterals;
  return u"%1_%2"_s.arg(array).arg(index);
}

// A Control for each element of an array, whose elements are named by their index.
template <typename Widget, std::size_t Count>
class Controls {
 public:
  constexpr explicit Controls(const char* name) : name_(name) {}
  Controls(const Controls&) = delete;
  Controls& operator=(const Controls&) = delete;

  void Set(std::size_t index, Widget* made) {
    made->setObjectName(ElementName(QLatin1String(name_), static_cast<qsizetype>(index)));
    widgets_.at(index) = made;
  }

  Widget* operator[](std::size_t index) const { return widgets_[index]; }
  [[nodiscard]] constexpr std::size_t size() const { return Count; }
  [[nodiscard]] auto begin() const { return widgets_.begin(); }
  [[nodiscard]] auto end() const { return widgets_.end(); }

 private:
  const char* name_;
  std::array<Widget*, Count> widgets_{};
};

}  // namespace mortane
