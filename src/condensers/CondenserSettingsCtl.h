// The condenser page: the cassette and the user's condensers under one header.
#pragma once

#include "widgets/ContainerPage.h"

namespace mortane {

class CondenserCassetteCtl;
class CondenserOptionCtl;
class clsCondenser;
class clsDbCondenser;

// Opens on the cassette where a condenser is mounted, otherwise on the user's names.
class CondenserSettingsCtl : public ContainerPage {
  Q_OBJECT

 public:
  CondenserSettingsCtl(clsCondenser& cassette, clsDbCondenser& condensers,
                       QWidget* parent = nullptr);

  Control<SectionBar> optCondenserSetting{"optCondenserSetting"};
  LateControl<CondenserCassetteCtl> CondenserCassetteCtl1{"CondenserCassetteCtl1"};
  LateControl<CondenserOptionCtl> CondenserOptionCtl1{"CondenserOptionCtl1"};
};

}  // namespace mortane
