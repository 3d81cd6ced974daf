// The system page: the name panel under a header.
#pragma once

#include "widgets/Control.h"
#include "widgets/Page.h"

namespace mortane {

class PageHeader;
class SystemNameCtl;
class clsK70;

class SystemSettingsCtl : public Page {
 public:
  explicit SystemSettingsCtl(clsK70& k70, QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  Control<PageHeader> Header{"Header"};
  Control<SystemNameCtl> SystemNameCtl1{"SystemNameCtl1"};
};

}  // namespace mortane
