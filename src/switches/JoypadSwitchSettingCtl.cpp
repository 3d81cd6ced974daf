#include "switches/JoypadSwitchSettingCtl.h"

#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "switches/JoypadAssignments.h"
#include "switches/JoypadSettings.h"
#include "switches/ReportList.h"
#include "switches/ShownField.h"
#include "switches/SwitchFunctions.h"
#include "widgets/Card.h"
#include "widgets/ClickFocus.h"
#include "widgets/PairPanel.h"
#include "widgets/QtText.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kFunctionColumn = 1;
// Of a row with the longest function, for which both lists have room.
constexpr int kListCharacters = 36;

}  // namespace

JoypadSwitchSettingCtl::JoypadSwitchSettingCtl(std::shared_ptr<JoypadSettings> settings,
                                               QWidget* parent)
    : CardPage(u"Joypad Switch Settings"_s, parent), settings_(std::move(settings)) {
  Frame1 = static_cast<Card*>(FrameBase);
  textSwFunc = ShownField("Function", FrameBase);
  whyEmpty = CaptionLabel(
      u"The joypad has more than 21 buttons. Their functions cannot be set here."_s, FrameBase);
  whyEmpty->setWordWrap(true);
  ListView1 = new ReportList({u"Button"_s, u"Function"_s}, FrameBase);
  lstSwFunc = new ListBox(FrameBase);
  cmdAllClear = new QPushButton(u"All Clear"_s, FrameBase);
  ListView1->setAccessibleName(u"Button"_s);
  lstSwFunc->setAccessibleName(u"Function"_s);
  TakeFocusByClicks(*cmdAllClear);
  BuildLayout();
  connect(ListView1, &ListBox::selectionChanged, this, [this](int row) { SelectRow(row); });
  connect(lstSwFunc, &ListBox::selectionChanged, this, [this](int function) { Choose(function); });
  connect(cmdAllClear, &QPushButton::clicked, this, [this] { ClearAll(); });
}

void JoypadSwitchSettingCtl::BuildLayout() {
  auto* lists = new PairPanel(FrameBase);
  auto* rows = new QWidget(lists);
  auto* left = new QVBoxLayout(rows);
  left->setContentsMargins({});
  left->setSpacing(grid::kBetweenControls);
  left->addWidget(textSwFunc);
  left->addWidget(whyEmpty);
  left->addWidget(ListView1, 1);
  // In a low window the page is scrolled, and the lists keep some rows.
  ListView1->setMinimumHeight(lstSwFunc->sizeHint().height());
  lstSwFunc->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  lists->SetParts(rows, 1, lstSwFunc, 1, PairPanel::Upper::Left);
  lists->SetCharactersBeside(kListCharacters, kListCharacters);
  FrameBase->body()->addWidget(lists, 1);
  FrameBase->body()->addWidget(cmdAllClear, 0, Qt::AlignRight);
  cmdAllClear->raise();  // the last one that screen readers meet
}

void JoypadSwitchSettingCtl::ShowFit() {
  cmdAllClear->setEnabled(settings_->fits());
  whyEmpty->setVisible(!settings_->fits());
}

void JoypadSwitchSettingCtl::LoadData() {
  lstSwFunc->clearRows();
  for (const SwitchFunction& function : JoypadFunctions()) {
    lstSwFunc->addRow(ToQString(function.name), static_cast<int>(function.code));
  }
  EnableFunctions(false);
  ListView1->clearRows();
  if (!settings_->fits()) return;
  for (const std::string& name : settings_->assignments().RowNames()) {
    ListView1->addCells({ToQString(name), {}});
  }
  for (std::int32_t i = 1; i <= settings_->assignments().CodeCount(); ++i) {
    ShowFunction(i - 1, lstSwFunc->text(settings_->assignments().Code(i)));
  }
}

void JoypadSwitchSettingCtl::SaveData() {
  settings_->Save();
}

void JoypadSwitchSettingCtl::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    const bool changed = settings_->TakeJoystick();
    ShowFit();
    if (changed) LoadData();
  }
  CardPage::showEvent(event);
}

void JoypadSwitchSettingCtl::hideEvent(QHideEvent* event) {
  CardPage::hideEvent(event);
  // The window system hides a window that is minimised; nobody has left the page then.
  if (!event->spontaneous()) SaveData();
}

// Without a row there is nothing to give a function to.
void JoypadSwitchSettingCtl::EnableFunctions(bool enabled) {
  const QString why = enabled ? QString() : u"Select a row to choose its function."_s;
  lstSwFunc->setEnabled(enabled);
  lstSwFunc->setToolTip(why);
  lstSwFunc->viewport()->setToolTip(why);  // over the rows
}

// The row's function is the current entry, so that keys choose those beside it.
void JoypadSwitchSettingCtl::SelectRow(int row) {
  ListView1->SetBoldRow(row);
  EnableFunctions(true);
  const QSignalBlocker quiet(lstSwFunc);
  lstSwFunc->setIndex(settings_->assignments().Code(row + 1));
}

void JoypadSwitchSettingCtl::Choose(int function) {
  const int row = ListView1->index();
  if (row < 0) return;
  textSwFunc->setText(lstSwFunc->text(function));
  settings_->assignments().Code(row + 1,
                                static_cast<std::int16_t>(lstSwFunc->data(function).toInt()));
  ShowFunction(row, lstSwFunc->text(function));
}

// Kept: the rows show numbers, and names again after the next loading.
void JoypadSwitchSettingCtl::ClearAll() {
  settings_->assignments().Clear();
  for (std::int32_t i = 1; i <= settings_->assignments().CodeCount(); ++i) {
    ShowFunction(i - 1, QString::number(settings_->assignments().Code(i)));
  }
}

void JoypadSwitchSettingCtl::ShowFunction(int row, const QString& text) {
  ListView1->SetCell(row, kFunctionColumn, text);
}

}  // namespace mortane
