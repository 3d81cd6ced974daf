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

  SectionBar* optSettings;
  ObjectiveCtl* ObjectiveCtl1;
  ObjectiveOptionCtl* ObjectiveOptionCtl1;
  ObjectiveLimitCtl* ObjectiveLimitCtl1;
};

}  // namespace mortane
