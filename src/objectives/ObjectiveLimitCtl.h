// The panel with the three rules that limit the turning of the nosepiece.
#pragma once

#include <cstdint>

#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QFrame;
class QLabel;

namespace mortane {

class OptionGroup;
class clsLimitation;

// An option reaches its rule at once; a rule that the controller did not tell is disabled.
class ObjectiveLimitCtl : public CardPage {
  Q_OBJECT

 public:
  explicit ObjectiveLimitCtl(clsLimitation& limits, QWidget* parent = nullptr);

  void LoadData() override;

  Control<QFrame> frmIncrease{"frmIncrease"};
  Control<QFrame> frmSkip{"frmSkip"};
  Control<QFrame> frmImmersion{"frmImmersion"};
  Control<OptionGroup> optPreventIncrease{"optPreventIncrease"};
  Control<OptionGroup> optSkipEmpty{"optSkipEmpty"};
  Control<OptionGroup> optPreventImmersion{"optPreventImmersion"};
  Control<QLabel> Label1{"Label1"};
  Control<QLabel> Label2{"Label2"};
  Control<QLabel> Label8{"Label8"};
  Control<QLabel> Label9{"Label9"};
  Control<QLabel> Label10{"Label10"};

 private:
  struct Rule;
  static const Rule kRules[3];

  void AddRule(const Rule& rule);
  void AlignOptions();
  void LoadRule(const Rule& rule);

  clsLimitation& limits_;
};

}  // namespace mortane
