#include "app/SystemSettingsCtl.h"

#include <QVBoxLayout>

#include "app/SystemNameCtl.h"
#include "widgets/PageHeader.h"

namespace mortane {

using namespace Qt::StringLiterals;

SystemSettingsCtl::SystemSettingsCtl(clsK70& k70, QWidget* parent) : Page(parent) {
  Header = new PageHeader(IconName::System, u"System"_s, this);
  SystemNameCtl1 = new SystemNameCtl(k70, this);
  MakePageLayout(this, Header)->addWidget(SystemNameCtl1, 1);
}

void SystemSettingsCtl::LoadData() {
  SystemNameCtl1->LoadData();
}

void SystemSettingsCtl::SaveData() {
  SystemNameCtl1->SaveData();
}

}  // namespace mortane
