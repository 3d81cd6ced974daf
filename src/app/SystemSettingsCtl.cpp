#include "app/SystemSettingsCtl.h"

#include <QVBoxLayout>

#include "app/SystemNameCtl.h"
#include "widgets/Named.h"
#include "widgets/PageHeader.h"

namespace mortane {

using namespace Qt::StringLiterals;

SystemSettingsCtl::SystemSettingsCtl(clsK70& k70, QWidget* parent)
    : Page(parent),
      Header(Named(new PageHeader(IconName::System, u"System"_s, this), "Header")),
      SystemNameCtl1(Named(new SystemNameCtl(k70, this), "SystemNameCtl1")) {
  MakePageLayout(this, Header)->addWidget(SystemNameCtl1, 1);
}

void SystemSettingsCtl::LoadData() {
  SystemNameCtl1->LoadData();
}

void SystemSettingsCtl::SaveData() {
  SystemNameCtl1->SaveData();
}

}  // namespace mortane
