// What the pages of body and hand controller have in common: rows of switches, their marks on a
// drawing, and the lists of functions for dials and push switches.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "switches/KnobCheck.h"
#include "switches/SwitchFunctions.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QBoxLayout;
class QPushButton;

namespace mortane {

class ComboBox;
class ReportList;
class SwitchDrawing;
struct SwitchPlan;

// A row of the list. A dial's function takes `position` and the next.
struct SwitchRow {
  std::string_view name;
  SwitchKind kind;
  std::int16_t position;
  std::int16_t pushPosition;  // that a function for push switches is given to
};

// A row and its mark are chosen together, by the person or the program. A choice in one of the two
// lists of functions, again by either, reaches the unit at once.
class SwitchRowsCtl : public CardPage {
  Q_OBJECT

 public:
  SwitchDrawing* optBtn = nullptr;  // its marks are named after it, by the index of their row
  Control<ReportList> ListView1{"ListView1"};
  // At one place, of which the chosen row shows one. They show the row's function if they have it;
  // without a row they are disabled.
  Control<ComboBox> ComboCWCCW{"ComboCWCCW"};
  Control<ComboBox> ComboFunction{"ComboFunction"};
  Control<QPushButton> cmdDefault{"cmdDefault"};
  Control<QPushButton> cmdAllClear{"cmdAllClear"};

 protected:
  SwitchRowsCtl(const QString& caption, KnobCheck knobCheck, QWidget* parent);

  // The Tab key goes through the controls in the order in which a page makes them.
  void MakeDrawing(const SwitchPlan& plan, QWidget* parent);
  void MakeList(QWidget* parent);
  void MakeCombos(QWidget* parent);
  void MakeButtons(QWidget* parent);

  // Both combos side by side, of which one is shown.
  QBoxLayout* ComboRow();
  QBoxLayout* ButtonRow();
  [[nodiscard]] QWidget* pictureFrame() const { return pictureFrame_; }

  void SetRows(std::vector<SwitchRow> rows);
  [[nodiscard]] const SwitchRow& rowAt(int row) const;
  void FillFunctions();
  static void Fill(ComboBox& combo, const SwitchFunctionList& functions);
  static std::int16_t EntryCode(const ComboBox& combo, int entry);
  // In the row and for its mark.
  void ShowFunction(int row, const QString& text);
  [[nodiscard]] QString ShownFunction(int row) const;  // empty without such a row
  void Select(int row);
  // As after a click on the mark that is chosen, if there is a row for it.
  void SelectChosen();
  void RunKnobCheck() const { knobCheck_.Run(); }

  // Gives the row at hand the function, with what follows from that.
  void ChooseDialFunction(const QString& text, std::int16_t code);
  void ChoosePushFunction(const QString& text, std::int16_t code);

  // The unit's codes.
  [[nodiscard]] virtual std::int16_t Func(std::int16_t position) const = 0;
  virtual void Func(std::int16_t position, std::int16_t code) = 0;
  [[nodiscard]] virtual std::int16_t SwitchCount() const = 0;
  virtual void SetDefaults() = 0;
  // The name of a function; empty for a code that is none.
  [[nodiscard]] virtual QString FunctionText(std::int32_t code) const = 0;
  // The selection has changed, or what the selected row shows; -1 when no row is selected.
  virtual void ShowSelected(int row) = 0;
  // The selected row is about to get that function.
  virtual void ShowChosen(const QString& /*text*/) {}

 private:
  void ClearAll();
  [[nodiscard]] std::array<ComboBox*, 2> Combos() const;
  void ShowInCombos(int row);
  void ShowNameOfMark(int row);

  KnobCheck knobCheck_;
  QWidget* pictureFrame_ = nullptr;
  std::vector<SwitchRow> rows_;
};

}  // namespace mortane
