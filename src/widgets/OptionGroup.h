// An array of option buttons of which at most one is selected.
#pragma once

#include <QButtonGroup>
#include <QObject>
#include <QVector>

class QAbstractButton;
class QRadioButton;

namespace mortane {

// selectionChanged() is raised for every click of the person, and for a new selection that the
// program makes; clearing raises nothing. The buttons form one Tab stop; arrows, Home and End
// choose inside.
class OptionGroup : public QObject {
  Q_OBJECT

 public:
  // Where arrows lead: along a row or column of options, in whichever of the four directions, and
  // sideways from one of several rows into the next; or where each button says itself.
  enum class Arrows { AlongTheLine, ByButton };

  explicit OptionGroup(QObject* parent, Arrows arrows = Arrows::AlongTheLine);

  // Adds an option of the next index.
  QRadioButton* addOption(const QString& text, QWidget* parent);
  // A button without a name gets that of the group with its index: "optNosepiece_0".
  void add(QAbstractButton* button, int index);

  [[nodiscard]] int count() const { return static_cast<int>(buttons_.size()); }
  [[nodiscard]] QAbstractButton* button(int index) const { return group_.button(index); }
  [[nodiscard]] int selected() const { return group_.checkedId(); }  // -1: none
  void select(int index);
  void clear();

 Q_SIGNALS:
  void selectionChanged(int index);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool ChooseEnd(int key);
  bool ChooseBeside(int key);
  [[nodiscard]] bool StandInALine() const;
  [[nodiscard]] bool ReadInLines() const;
  void UpdateTabStop();

  Arrows arrows_;
  QButtonGroup group_;
  QVector<QAbstractButton*> buttons_;
};

}  // namespace mortane
