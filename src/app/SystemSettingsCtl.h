// The system page: the name panel under a header.
#pragma once

#include "widgets/Page.h"

namespace mortane {

class PageHeader;
class SystemNameCtl;

class SystemSettingsCtl : public Page {
 public:
  explicit SystemSettingsCtl(QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  PageHeader* Header;
  SystemNameCtl* SystemNameCtl1;
};

}  // namespace mortane
