// The condenser page: the cassette and the user's condensers under one header.
#pragma once

#include "widgets/ContainerPage.h"

namespace mortane {

class CondenserCassetteCtl;
class CondenserOptionCtl;
class clsCondenser;
class clsDbCondenser;

// The cassette can be seen only where a condenser is mounted; the user's names always.
class CondenserSettingsCtl : public ContainerPage {
 public:
  CondenserSettingsCtl(clsCondenser& cassette, clsDbCondenser& condensers,
                       QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  PageHeader* Header;
  SectionBar* optCondenserSetting;
  CondenserCassetteCtl* CondenserCassetteCtl1;
  CondenserOptionCtl* CondenserOptionCtl1;

 private:
  bool HasCondenser() const;

  clsCondenser& cassette_;
};

}  // namespace mortane
