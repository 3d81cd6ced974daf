// Buttons, values, pictures and groups to a screen reader.
#pragma once

#include <QAccessibleWidget>

#include "accessible/AccessibleText.h"

class QAbstractButton;

namespace mortane {

class CheckToggle;
class MicroscopeDrawing;
class PageButton;
class ValueLabel;

// Controls that belong together, with their caption as name.
class AccessibleGroup : public QAccessibleWidget {
 public:
  explicit AccessibleGroup(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Grouping) {}
};

// One of several buttons of which at most one is chosen.
class AccessibleOption : public QAccessibleWidget {
 public:
  explicit AccessibleOption(QAbstractButton* button);

  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;

 protected:
  [[nodiscard]] virtual bool isChosen() const;

 private:
  QAbstractButton& button_;
};

class AccessiblePageButton : public AccessibleOption {
 public:
  explicit AccessiblePageButton(PageButton* button);

 protected:
  [[nodiscard]] bool isChosen() const override;

 private:
  PageButton& button_;
};

// A switch is named by its label; the caption ON or OFF is its value.
class AccessibleSwitch : public QAccessibleWidget {
 public:
  explicit AccessibleSwitch(CheckToggle* toggle);

  [[nodiscard]] QString text(QAccessible::Text part) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;

 private:
  CheckToggle& toggle_;
};

// A value under its caption: the caption is the name.
class AccessibleValue : public QAccessibleWidget, public ReadOnlyText {
 public:
  explicit AccessibleValue(ValueLabel* label);

  using ReadOnlyText::text;
  [[nodiscard]] QString text(QAccessible::Text part) const override;
  [[nodiscard]] QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] QString content() const override;

 private:
  ValueLabel& label_;
};

// The toolkit would name a tool bar by its title, which nobody sees.
class AccessibleToolBar : public QAccessibleWidget {
 public:
  explicit AccessibleToolBar(QWidget* widget) : QAccessibleWidget(widget, QAccessible::ToolBar) {}
};

// A drawing tells in its description what it shows.
class AccessiblePicture : public QAccessibleWidget {
 public:
  explicit AccessiblePicture(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Graphic) {}
};

}  // namespace mortane
