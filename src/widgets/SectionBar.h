// The joined option buttons in a page's header: one section is chosen, in amber.
#pragma once

#include <QAbstractButton>
#include <QVector>
#include <QWidget>

namespace mortane {

class OptionGroup;

// Amber chooses a section of a page; blue a part of what the section shows.
enum class ChosenLook { Amber, Blue };

class SectionOption : public QAbstractButton {
  Q_OBJECT

 public:
  SectionOption(const QString& text, QWidget* parent, ChosenLook look = ChosenLook::Amber);

  void SetEnds(bool first, bool last);
  void SetPending(bool pending);
  [[nodiscard]] bool isPending() const { return pending_; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  ChosenLook look_;
  bool first_ = false;
  bool last_ = false;
  bool pending_ = false;
};

// One Tab stop; arrows, Home and End choose. A hidden option closes up, and the ends stay round.
// Options show their whole texts: where they do not fit in one row they stand in several.
class SectionBar : public QWidget {
  Q_OBJECT

 public:
  explicit SectionBar(QWidget* parent = nullptr);

  // Options are named after the bar: optSettings_0, optSettings_1 ...
  int AddOption(const QString& text);
  [[nodiscard]] QAbstractButton* option(int index) const;
  [[nodiscard]] int count() const;
  [[nodiscard]] int selected() const;  // -1: none
  void select(int index);
  // A tool tip says why an option is disabled.
  void SetOptionEnabled(int index, bool enabled, const QString& whyDisabled = {});
  void SetOptionVisible(int index, bool visible);
  // The dot that says: something in the section differs from what was last received or sent.
  void SetOptionPending(int index, bool pending);

 Q_SIGNALS:
  // For every click of the person, and for a new selection that the program makes.
  void selectionChanged(int index);

 private:
  class Rows;

  QVector<SectionOption*> options_;
  OptionGroup* group_ = nullptr;
  Rows* rows_ = nullptr;
};

}  // namespace mortane
