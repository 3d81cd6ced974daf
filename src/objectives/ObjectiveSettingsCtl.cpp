#include "objectives/ObjectiveSettingsCtl.h"

#include <QAbstractButton>

#include "objectives/ObjectiveCtl.h"
#include "objectives/ObjectiveLimitCtl.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "widgets/Named.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

constexpr int kNosepieceSection = 0;
constexpr int kOptionSection = 1;
constexpr int kLimitSection = 2;

}  // namespace

ObjectiveSettingsCtl::ObjectiveSettingsCtl(clsNosepiece& nosepiece, clsDbNosepiece& objectives,
                                           clsLimitation& limits, QWidget* parent)
    : ContainerPage(IconName::Objective, QStringLiteral("Objectives"), grid::kSectionStart, parent),
      Header(Named(header(), "Header")),
      optSettings{},
      ObjectiveCtl1(Named(new ObjectiveCtl(nosepiece, objectives), "ObjectiveCtl1")),
      ObjectiveOptionCtl1(Named(new ObjectiveOptionCtl(objectives), "ObjectiveOptionCtl1")),
      ObjectiveLimitCtl1(Named(new ObjectiveLimitCtl(limits), "ObjectiveLimitCtl1")),
      limits_(limits) {
  AddSubPage(QStringLiteral("Nosepiece"), ObjectiveCtl1);
  AddSubPage(QStringLiteral("Optional Obj."), ObjectiveOptionCtl1);
  AddSubPage(QStringLiteral("Limit Control"), ObjectiveLimitCtl1);
  for (std::size_t i = 0; i < optSettings.size(); ++i) {
    optSettings[i] = sections()->option(static_cast<int>(i));
  }
}

bool ObjectiveSettingsCtl::HasNosepiece() const {
  return limits_.parent.IsMounted(accessory::kNosepiece) != kNotMounted;
}

void ObjectiveSettingsCtl::LoadData() {
  ObjectiveOptionCtl1->LoadData();
  const bool limited = limits_.IsEnable();
  sections()->SetOptionEnabled(kLimitSection, limited);
  if (limited) ObjectiveLimitCtl1->LoadData();
  const bool fitted = HasNosepiece();
  if (fitted) ObjectiveCtl1->LoadData();
  sections()->SetOptionEnabled(kNosepieceSection, fitted);
  sections()->select(fitted ? kNosepieceSection : kOptionSection);
}

void ObjectiveSettingsCtl::SaveData() {
  ObjectiveOptionCtl1->SaveData();
  if (limits_.IsEnable()) ObjectiveLimitCtl1->SaveData();
  if (HasNosepiece()) ObjectiveCtl1->SaveData();
}

}  // namespace mortane
