// The system page: the name panel under a header.
#pragma once

#include <QWidget>

namespace mortane {

class PageHeader;
class SystemNameCtl;

class SystemSettingsCtl : public QWidget {
 public:
  explicit SystemSettingsCtl(QWidget* parent = nullptr);

  void LoadData();
  void SaveData();

  PageHeader* Header;
  SystemNameCtl* SystemNameCtl1;
};

}  // namespace mortane
