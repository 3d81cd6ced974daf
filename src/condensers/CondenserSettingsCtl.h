// The condenser page: the cassette and the user's condensers under one header.
#pragma once

#include "widgets/ContainerPage.h"

namespace mortane {

class CondenserCassetteCtl;
class CondenserOptionCtl;

// The cassette can be seen only where a condenser is mounted; the user's names always.
class CondenserSettingsCtl : public ContainerPage {
 public:
  explicit CondenserSettingsCtl(QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  PageHeader* Header;
  SectionBar* optCondenserSetting;
  CondenserCassetteCtl* CondenserCassetteCtl1;
  CondenserOptionCtl* CondenserOptionCtl1;
};

}  // namespace mortane
