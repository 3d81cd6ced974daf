// The page of the objective area: nosepiece, optional objectives, limits of the nosepiece.
#pragma once

#include <array>

#include "widgets/ContainerPage.h"

class QAbstractButton;

namespace mortane {

class ObjectiveCtl;
class ObjectiveLimitCtl;
class ObjectiveOptionCtl;
class clsDbNosepiece;
class clsLimitation;
class clsNosepiece;

// Loading shows the nosepiece where there is one, otherwise the optional objectives.
class ObjectiveSettingsCtl : public ContainerPage {
  Q_OBJECT

 public:
  ObjectiveSettingsCtl(clsNosepiece& nosepiece, clsDbNosepiece& objectives, clsLimitation& limits,
                       QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  PageHeader* Header;
  std::array<QAbstractButton*, 3> optSettings;
  ObjectiveCtl* ObjectiveCtl1;
  ObjectiveOptionCtl* ObjectiveOptionCtl1;
  ObjectiveLimitCtl* ObjectiveLimitCtl1;

 private:
  bool HasNosepiece() const;

  clsLimitation& limits_;
};

}  // namespace mortane
