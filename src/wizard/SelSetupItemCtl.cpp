#include "wizard/SelSetupItemCtl.h"

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRadioButton>
#include <QStringListModel>
#include <QVBoxLayout>
#include <utility>

#include "app/SettingsFiles.h"
#include "hub/clsK70.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageHeader.h"
#include "widgets/Theme.h"
#include "wizard/ModeList.h"
#include "wizard/SetupItems.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kStandard = 0;
constexpr int kCustom = 1;
constexpr int kFile = 2;

constexpr const char* kModes[] = {"Standard", "Custom", "File"};

// Acts on each release of the mouse over it, also when it is selected already, and on Space and
// Enter. The arrows only select it.
class FileOption : public QRadioButton {
 public:
  FileOption(const QString& text, QWidget* parent, std::function<void()> act)
      : QRadioButton(text, parent), act_(std::move(act)) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool over = rect().contains(event->position().toPoint());
    QRadioButton::mouseReleaseEvent(event);
    if (over) act_();
  }
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) return QRadioButton::keyPressEvent(event);
    if (!event->isAutoRepeat()) act_();
  }
  void keyReleaseEvent(QKeyEvent* event) override {
    const bool acts = event->key() == Qt::Key_Space && !event->isAutoRepeat() && isDown();
    QRadioButton::keyReleaseEvent(event);
    if (acts) act_();
  }

 private:
  std::function<void()> act_;
};

}  // namespace

SelSetupItemCtl::SelSetupItemCtl(clsK70& k70, QWidget* parent)
    : Page(parent), CommonDialog1(SettingsFileQuestion()), k70_(k70) {
  Header = new PageHeader(IconName::CheckList, u"Setup Items"_s, this);
  FrameBase = new Card({}, this);
  QStringList names;
  for (const SetupItem& item : kSetupItems) names.append(QLatin1String(item.name));
  List1 = new QStringListModel(names, this);
  BuildOptions();
  ListStandard = new ModeList(Frame1);
  ListCustom = new ModeList(Frame1, [this] { RaiseRows(*ListCustom); });
  Watch(*ListStandard, kModes[kStandard]);
  Watch(*ListCustom, kModes[kCustom]);
  ListStandard->setEnabled(false);
  Arrange();
  connect(optSetupMode, &OptionGroup::selectionChanged, this, &SelSetupItemCtl::OnMode);
}

void SelSetupItemCtl::BuildOptions() {
  Frame1 = new QFrame(FrameBase);
  optSetupMode = new OptionGroup(this);
  for (const int mode : {kStandard, kCustom}) {
    optSetupMode->addOption(QLatin1String(kModes[mode]), Frame1);
  }
  auto* file = new FileOption(QLatin1String(kModes[kFile]), Frame1, [this] { OnFile(); });
  optSetupMode->add(file, kFile);
}

// The person's clicks raise the event of a row; so does a check mark that changes.
void SelSetupItemCtl::Watch(ListBox& list, const char* accessibleName) {
  list.setAccessibleName(QLatin1String(accessibleName));
  const auto raise = [this, &list](int row) { RaiseRow(list, row); };
  connect(&list, &ListBox::selectionChanged, this, raise);
  connect(&list, &ListBox::rowChecked, this, raise);
}

// Each list stands under its option; the file has none.
void SelSetupItemCtl::Arrange() {
  auto* columns = new QGridLayout(Frame1);
  columns->setContentsMargins({});
  columns->setHorizontalSpacing(grid::kBetweenColumns);
  columns->setVerticalSpacing(grid::kBetweenControls);
  for (const int mode : {kStandard, kCustom, kFile}) {
    columns->addWidget(optSetupMode->button(mode), 0, mode, Qt::AlignLeft);
  }
  // In a low window the page is scrolled, and the lists keep their rows.
  for (ListBox* list : {static_cast<ListBox*>(ListStandard), static_cast<ListBox*>(ListCustom)})
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  columns->addWidget(ListStandard, 1, kStandard);
  columns->addWidget(ListCustom, 1, kCustom);
  columns->setColumnStretch(kStandard, 1);
  columns->setColumnStretch(kCustom, 1);
  columns->setRowStretch(1, 1);
  FrameBase->body()->addWidget(Frame1, 1);
  MakePageLayout(this, Header)->addWidget(FrameBase, 1);
}

int SelSetupItemCtl::SetupMode() const {
  return optSetupMode->selected();
}

void SelSetupItemCtl::SetupMode(int mode) {
  if (mode == SetupMode()) {
    OnMode(mode);
  } else {
    optSetupMode->select(mode);
  }
}

void SelSetupItemCtl::LoadData() {
  ListStandard->clearRows();
  ListCustom->clearRows();
  SetupMode(kStandard);
  for (std::size_t i = 0; i < kSetupItems.size(); ++i) {
    const SetupItem& item = kSetupItems[i];
    if (mortane::IsOffered(item, k70_)) {
      AddRow(*ListStandard, static_cast<int>(i), item.isStandard);
    }
  }
  for (int row = 0; row < ListStandard->rowCount(); ++row) {
    AddRow(*ListCustom, ListStandard->data(row).toInt(), ListStandard->isRowChecked(row));
  }
  ListStandard->setIndex(-1);
  if (ListCustom->rowCount() > 0) ListCustom->setIndex(0);
}

bool SelSetupItemCtl::IsOffered(int item) const {
  for (int row = 0; row < ListStandard->rowCount(); ++row) {
    if (ListStandard->data(row).toInt() == item) return true;
  }
  return false;
}

// The check of a new row counts as a click. The list tells of a check mark that changes; a row that
// stays unchecked counts as well.
void SelSetupItemCtl::AddRow(ListBox& list, int item, bool checked) {
  const int row = list.addRow(List1->stringList().at(item), item);
  list.SetRowChecked(row, checked);
  if (!checked) RaiseRow(list, row);
}

void SelSetupItemCtl::RaiseRow(const ListBox& list, int row) {
  Q_EMIT ItemChanged(list.data(row).toInt(), list.isRowChecked(row));
}

void SelSetupItemCtl::RaiseRows(const ListBox& list) {
  for (int row = 0; row < list.rowCount(); ++row) RaiseRow(list, row);
}

void SelSetupItemCtl::OnMode(int mode) {
  ListStandard->SetChosen(mode == kStandard);
  ListCustom->SetChosen(mode == kCustom);
  ListCustom->setEnabled(mode == kCustom);
  Q_EMIT ModeChanged(mode);
  if (mode == kStandard) RaiseRows(*ListStandard);
  if (mode == kCustom) RaiseRows(*ListCustom);
}

// Settings from a file never change the system's name here. Kept: whether a file was read or not,
// every step that is offered is on afterwards, and the check marks stay.
void SelSetupItemCtl::OnFile() {
  optSetupMode->select(kFile);
  const std::string name = k70_.SystemName;
  if (beforeFile) beforeFile();
  OpenSettings(k70_.prompts(), CommonDialog1, this);
  k70_.SystemName = name;
  for (int row = 0; row < ListStandard->rowCount(); ++row) {
    Q_EMIT ItemChanged(ListStandard->data(row).toInt(), true);
  }
}

}  // namespace mortane
