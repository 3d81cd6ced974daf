// Buttons, values, pictures and groups to a screen reader.
#pragma once

#include <QAccessibleWidget>

#include "accessible/AccessibleClick.h"
#include "accessible/AccessibleText.h"

class QAbstractButton;
class QLabel;
class QLineEdit;

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

// A button as the toolkit tells of it; only its actions are a person's click.
class AccessibleButton : public AccessibleControl {
 public:
  explicit AccessibleButton(QAbstractButton* button);
  AccessibleButton(QAbstractButton* button, QAccessible::Role role);

  [[nodiscard]] QString text(QAccessible::Text part) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override;

 protected:
  [[nodiscard]] virtual bool isChosen() const;

 private:
  QAbstractButton& button_;
};

// One of several buttons of which at most one is chosen.
class AccessibleOption : public AccessibleButton {
 public:
  explicit AccessibleOption(QAbstractButton* button)
      : AccessibleButton(button, QAccessible::RadioButton) {}
};

class AccessiblePageButton : public AccessibleOption {
 public:
  explicit AccessiblePageButton(PageButton* button);

  [[nodiscard]] QAccessible::State state() const override;

 protected:
  [[nodiscard]] bool isChosen() const override;

 private:
  PageButton& button_;
};

// A toggle is named by its label; the caption ON or OFF is its value.
class AccessibleToggle : public AccessibleButton {
 public:
  explicit AccessibleToggle(CheckToggle* toggle);

  [[nodiscard]] QString text(QAccessible::Text part) const override;
  [[nodiscard]] QAccessible::State state() const override;

 private:
  CheckToggle& toggle_;
};

// A text that is shown and cannot be changed: the value of the control.
class AccessibleShownText : public QAccessibleWidget, public ReadOnlyText {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  using ReadOnlyText::text;
  [[nodiscard]] QString text(QAccessible::Text part) const override;
  [[nodiscard]] QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;
};

// A value under its caption: the caption is the name.
class AccessibleValue : public AccessibleShownText {
 public:
  explicit AccessibleValue(ValueLabel* label);

  [[nodiscard]] QString content() const override;

 private:
  ValueLabel& label_;
};

// A field that is read only. The toolkit would let a screen reader write into it.
class AccessibleReadOnlyField : public AccessibleShownText {
 public:
  explicit AccessibleReadOnlyField(QLineEdit* field);

  [[nodiscard]] QString content() const override;

 private:
  QLineEdit& field_;
};

// The toolkit would name a tool bar by its title, which nobody sees.
class AccessibleToolBar : public QAccessibleWidget {
 public:
  explicit AccessibleToolBar(QWidget* widget) : QAccessibleWidget(widget, QAccessible::ToolBar) {}
};

// The title of a page.
class AccessibleHeading : public QAccessibleWidget {
 public:
  explicit AccessibleHeading(QLabel* label);

  [[nodiscard]] QString text(QAccessible::Text part) const override;

 private:
  QLabel& label_;
};

// A drawing tells in its description what it shows.
class AccessiblePicture : public QAccessibleWidget {
 public:
  explicit AccessiblePicture(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Graphic) {}
};

}  // namespace mortane
