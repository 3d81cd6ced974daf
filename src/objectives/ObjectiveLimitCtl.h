// The panel with the three rules that limit the turning of the nosepiece.
#pragma once

#include <cstdint>

#include "widgets/Page.h"

class QFrame;
class QLabel;

namespace mortane {

class Card;
class OptionGroup;

// An option reaches its rule at once; a rule that the controller did not tell is disabled.
class ObjectiveLimitCtl : public Page {
  Q_OBJECT

 public:
  explicit ObjectiveLimitCtl(QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override {}

  QFrame* FrameBase;
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

  void AddRule(Card& card, const Rule& rule);
  void LoadRule(const Rule& rule);
};

}  // namespace mortane
