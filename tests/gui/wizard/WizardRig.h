// The wizard on a simulated instrument, and its steps as fakes.
#pragma once

#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <string>
#include <vector>

#include "gui/app/AppRig.h"
#include "support/Rows.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/StepButton.h"
#include "wizard/WizardSteps.h"

namespace mortane::test {

using WizardRig = BasicAppRig<SadrelMainForm, WizardSteps>;
// A page with one control of its own.
class FakeStep : public FakePage {
 public:
  FakeStep(const std::string& name, std::vector<std::string>& calls, QWidget* parent)
      : FakePage(name, calls, parent), field(new QPushButton(this)) {}

  QPushButton* field;
};

// Ten fakes, named 0 to 9, with the real names, pictures and help texts.
class FakeSteps {
 public:
  StepTable Table() {
    StepTable table = WizardSteps();
    for (std::size_t i = 0; i < table.size(); ++i) {
      table[i].make = [this, i](SadrelMainForm& form, const FormServices&) -> Page* {
        return pages[i] = new FakeStep(std::to_string(i), calls, form.FrameControl);
      };
      table[i].firstHelp = {};
      if (i != 1) table[i].enter = {};
    }
    return table;
  }

  std::array<FakeStep*, kStepCount> pages{};
  std::vector<std::string> calls;
};

// A started wizard with ten fakes.
struct StepsRig {
  explicit StepsRig(Bench bench = benches::Named("Harbour"))
      : app(std::move(bench), {}, fakes.Table()) {
    app.Start();
  }
  SadrelMainForm& form() { return *app.form; }
  void SwitchOn(std::initializer_list<int> steps) {
    for (const int step : steps) form().OnItemChanged(step - kFirstItem, true);
  }
  void Click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
  void ClickPicture(int index, Qt::MouseButton button = Qt::LeftButton,
                    Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(form().ImageMenu[static_cast<std::size_t>(index)], button, modifiers);
  }
  // The steps that Next leads through, from the present one on.
  std::vector<int> Forward() {
    std::vector<int> steps{form().currentStep};
    while (form().ButtonNext->isEnabled()) {
      Click(form().ButtonNext);
      steps.push_back(form().currentStep);
    }
    return steps;
  }
  std::vector<int> Backward() {
    std::vector<int> steps{form().currentStep};
    while (form().ButtonPrevious->isEnabled()) {
      Click(form().ButtonPrevious);
      steps.push_back(form().currentStep);
    }
    return steps;
  }
  std::string Help() { return form().LabelHelp->text().toStdString(); }

  FakeSteps fakes;
  WizardRig app;
};

}  // namespace mortane::test
