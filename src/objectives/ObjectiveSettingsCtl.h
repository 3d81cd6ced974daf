// The page of the objective area: nosepiece, optional objectives, limits of the nosepiece.
#pragma once

#include "widgets/ContainerPage.h"

namespace mortane {

class ObjectiveCtl;
class ObjectiveLimitCtl;
class ObjectiveOptionCtl;
class clsDbNosepiece;
class clsLimitation;
class clsNosepiece;

// Opens on the nosepiece where there is one, otherwise on the optional objectives.
class ObjectiveSettingsCtl : public ContainerPage {
  Q_OBJECT

 public:
  ObjectiveSettingsCtl(clsNosepiece& nosepiece, clsDbNosepiece& objectives, clsLimitation& limits,
                       QWidget* parent = nullptr);

  Control<SectionBar> optSettings{"optSettings"};
  LateControl<ObjectiveCtl> ObjectiveCtl1{"ObjectiveCtl1"};
  LateControl<ObjectiveOptionCtl> ObjectiveOptionCtl1{"ObjectiveOptionCtl1"};
  LateControl<ObjectiveLimitCtl> ObjectiveLimitCtl1{"ObjectiveLimitCtl1"};
};

}  // namespace mortane
