// The panel with the three rules that limit the turning of the nosepiece.
#pragma once

#include <cstdint>

#include "widgets/CardPage.h"

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

  QFrame* frmIncrease;
  QFrame* frmSkip;
  QFrame* frmImmersion;
  OptionGroup* optPreventIncrease;
  OptionGroup* optSkipEmpty;
  OptionGroup* optPreventImmersion;
  QLabel* Label1;
  QLabel* Label2;
  QLabel* Label8;
  QLabel* Label9;
  QLabel* Label10;

 private:
  struct Rule;
  static const Rule kRules[3];

  void AddRule(const Rule& rule);
  void LoadRule(const Rule& rule);

  clsLimitation& limits_;
};

}  // namespace mortane
