// The sub-page that names the user's nine condensers.
#pragma once

#include "model/OptionCodes.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QLabel;

namespace mortane {

class TextField;
class clsDbCondenser;

// A nameless one shows dashes. Kept: saving takes them for the name.
class CondenserOptionCtl : public CardPage {
 public:
  explicit CondenserOptionCtl(clsDbCondenser& condensers, QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  Controls<QLabel, kOptionPositions> Label11{"Label11"};
  Controls<TextField, kOptionPositions> TextName{"TextName"};

 private:
  QWidget* BuildRow(int row);
  void Store(int row);

  clsDbCondenser& condensers_;
};

}  // namespace mortane
