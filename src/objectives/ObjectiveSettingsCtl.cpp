#include "objectives/ObjectiveSettingsCtl.h"

#include <QAbstractButton>

#include "hub/clsK70.h"
#include "objectives/ObjectiveCtl.h"
#include "objectives/ObjectiveLimitCtl.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

constexpr int kNosepieceSection = 0;
constexpr int kOptionSection = 1;
constexpr int kLimitSection = 2;

bool HasNosepiece() {
  return GetK70().IsMounted(accessory::kNosepiece) != kNotMounted;
}

}  // namespace

ObjectiveSettingsCtl::ObjectiveSettingsCtl(QWidget* parent)
    : ContainerPage(IconName::Objective, QStringLiteral("Objectives"), grid::kSectionStart, parent),
      Header(header()),
      optSettings{},
      ObjectiveCtl1(new ObjectiveCtl),
      ObjectiveOptionCtl1(new ObjectiveOptionCtl),
      ObjectiveLimitCtl1(new ObjectiveLimitCtl) {
  Header->setObjectName("Header");
  ObjectiveCtl1->setObjectName("ObjectiveCtl1");
  ObjectiveOptionCtl1->setObjectName("ObjectiveOptionCtl1");
  ObjectiveLimitCtl1->setObjectName("ObjectiveLimitCtl1");
  AddSubPage(QStringLiteral("Nosepiece"), ObjectiveCtl1);
  AddSubPage(QStringLiteral("Optional Obj."), ObjectiveOptionCtl1);
  AddSubPage(QStringLiteral("Limit Control"), ObjectiveLimitCtl1);
  for (std::size_t i = 0; i < optSettings.size(); ++i) {
    optSettings[i] = sections()->option(static_cast<int>(i));
  }
}

void ObjectiveSettingsCtl::LoadData() {
  ObjectiveOptionCtl1->LoadData();
  const bool limited = GetK70().curLimit.IsEnable();
  sections()->SetOptionEnabled(kLimitSection, limited);
  if (limited) ObjectiveLimitCtl1->LoadData();
  const bool fitted = HasNosepiece();
  if (fitted) ObjectiveCtl1->LoadData();
  sections()->SetOptionEnabled(kNosepieceSection, fitted);
  sections()->select(fitted ? kNosepieceSection : kOptionSection);
}

void ObjectiveSettingsCtl::SaveData() {
  ObjectiveOptionCtl1->SaveData();
  if (GetK70().curLimit.IsEnable()) ObjectiveLimitCtl1->SaveData();
  if (HasNosepiece()) ObjectiveCtl1->SaveData();
}

}  // namespace mortane
