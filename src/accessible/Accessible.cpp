#include "accessible/Accessible.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>
#include <array>

#include "accessible/AccessibleControls.h"
#include "accessible/AccessibleLists.h"
#include "drawings/MarkButton.h"
#include "drawings/MicroscopeDrawing.h"
#include "drawings/SwitchDrawing.h"
#include "drawings/TurretButton.h"
#include "drawings/TurretDrawing.h"
#include "drives/CaptionedFrame.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/PageHeader.h"
#include "widgets/Rail.h"
#include "widgets/SectionBar.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

// An interface of that kind if the object is such a control.
template <typename Control, typename Interface>
QAccessibleInterface* Make(QObject* object) {
  auto* control = qobject_cast<Control*>(object);
  return control == nullptr ? nullptr : new Interface(control);
}

// A tool button with a menu opens it, which the toolkit knows how to do.
QAccessibleInterface* MakeButton(QObject* object) {
  const auto* tool = qobject_cast<QToolButton*>(object);
  if (tool != nullptr && tool->menu() != nullptr) return nullptr;
  return Make<QAbstractButton, AccessibleButton>(object);
}

// A field is made read-only once, before anybody asks.
QAccessibleInterface* MakeReadOnlyField(QObject* object) {
  const auto* field = qobject_cast<QLineEdit*>(object);
  return field == nullptr || !field->isReadOnly()
             ? nullptr
             : Make<QLineEdit, AccessibleReadOnlyField>(object);
}

constexpr std::array kMakers{
    &Make<Card, AccessibleGroup>,
    &Make<InnerFrame, AccessibleGroup>,
    &Make<CaptionedFrame, AccessibleGroup>,
    &Make<RowGroup, AccessibleGroup>,
    &Make<SectionBar, AccessibleGroup>,
    &Make<Rail, AccessibleGroup>,
    &Make<TurretDrawing, AccessibleGroup>,
    &Make<SwitchDrawing, AccessibleGroup>,
    &Make<QToolBar, AccessibleToolBar>,
    &Make<SectionOption, AccessibleOption>,
    &Make<TurretButton, AccessibleOption>,
    &Make<MarkButton, AccessibleOption>,
    &Make<PageButton, AccessiblePageButton>,
    &Make<CheckToggle, AccessibleToggle>,
    &Make<ValueLabel, AccessibleValue>,
    &Make<PageTitle, AccessibleHeading>,
    &MakeReadOnlyField,
    &Make<MicroscopeDrawing, AccessiblePicture>,
    &Make<ListBox, AccessibleList>,
    &Make<TabStrip, AccessibleTabs>,
    &Make<ComboBox, AccessibleCombo>,
    &MakeButton,
};

// The toolkit asks for each class of the object from the derived to the base, and takes the first
// interface that it is given. The class names are not needed.
QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  for (const auto make : kMakers) {
    if (QAccessibleInterface* made = make(object)) return made;
  }
  return nullptr;
}

}  // namespace

void InstallAccessibleInterfaces() {
  QAccessible::installFactory(&MakeInterface);
}

}  // namespace mortane
