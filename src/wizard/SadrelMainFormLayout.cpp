// The controls of the wizard and where they stand.
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

#include "app/CommandBar.h"
#include "app/KeptButton.h"
#include "app/PageArea.h"
#include "widgets/ClickFocus.h"
#include "widgets/ContainerPage.h"
#include "widgets/Theme.h"
#include "widgets/ValueLabel.h"
#include "wizard/HelpLine.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/SadrelPages.h"
#include "wizard/StepButton.h"
#include "wizard/StepRail.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kButtonWidth = 104;

// A button of the bar: as wide as the others where its text leaves it.
class BarButton : public QPushButton {
 public:
  using QPushButton::QPushButton;
  [[nodiscard]] QSize sizeHint() const override {
    return QPushButton::sizeHint().expandedTo({kButtonWidth, 0});
  }
};

}  // namespace

SadrelMainForm::SadrelMainForm(const FormServices& services, const StepTable& steps)
    : ProgramForm(services, QLatin1String(kWizardTitle)), table_(steps) {
  setObjectName("SadrelMainForm");
  // The Tab key goes by the order of making: steps, page, buttons.
  BuildRail();
  help_ = new HelpLine(this);
  LabelHelp = help_->LabelHelp;
  BuildPages(services);
  kept_ = new KeptButton(this);
  OfferKept(*kept_, [this](const FileResult& file) { TakeOpened(file); });
  Arrange(BuildButtons());
  MarkMainButton();
  // A window that is activated without a focus gives it to the first field, which is then left.
  ButtonNext->setFocus();
}

void SadrelMainForm::BuildRail() {
  PictureMenu = new StepRail(this);
  FrameOptionButton = new QFrame(this);
  FrameOptionButton->hide();
  for (int i = 0; i < kStepCount; ++i) {
    const auto step = static_cast<std::size_t>(i);
    optMenu.Set(step, new QRadioButton(FrameOptionButton));
    const int added = PictureMenu->AddStep(table_[step].icon, table_[step].name);
    ImageMenu.Set(step, PictureMenu->button(added));
    connect(optMenu[step], &QRadioButton::toggled, this, [this, i](bool checked) {
      if (checked) OnMenuChanged(i);
    });
  }
  connect(PictureMenu, &StepRail::chosen, this, &SadrelMainForm::OnPicture);
}

void SadrelMainForm::BuildPages(const FormServices& services) {
  area_ = new PageArea(this);
  FrameControl = area_->frame();
  QStringList texts;
  for (int i = 0; i < kStepCount; ++i) {
    const StepRow& row = table_[static_cast<std::size_t>(i)];
    for (const QString& text : row.help) texts << text;
    Page* page = row.make(*this, services);
    pages_[static_cast<std::size_t>(i)] = page;
    area_->Add(page);
    if (auto* container = qobject_cast<ContainerPage*>(page)) {
      connect(container, &ContainerPage::Change, this, [this, i](int tab) { OnTab(i, tab); });
    }
  }
  help_->SetTexts(texts);
  SadrelControlXYStageCtl1.Plan({.make = [this, &k70 = services.k70] {
    return new SadrelControlXYStageCtl(k70, FrameControl);
  }});
  SadrelControlXYStageCtl1.SetPlace(*this, [this](Page& page) { area_->Add(&page); });
}

QPushButton* SadrelMainForm::AddButton(const QString& text, Act act, QWidget* bar) {
  auto* button = new BarButton(text, bar);
  button->setAutoDefault(true);  // acts on the Enter key, too
  TakeFocusByClicks(*button);
  connect(button, &QPushButton::clicked, this, [this, act] {
    // By its letter a button acts without the focus.
    if (LeaveFocusedField()) RunCommand([this, act] { (this->*act)(); });
  });
  bar->layout()->addWidget(button);
  return button;
}

QWidget* SadrelMainForm::BuildButtons() {
  auto* bar = new CommandBar(this);
  ButtonCancel = AddButton(u"&Cancel"_s, &SadrelMainForm::DoCancel, bar);
  note_ = new ValueLabel(bar);
  note_->setFont(CaptionFont());
  note_->setForegroundRole(QPalette::PlaceholderText);
  bar->row().addSpacing(grid::kBetweenControls);
  bar->row().addWidget(note_, 1);
  ButtonPrevious = AddButton(u"&Previous"_s, &SadrelMainForm::DoPrevious, bar);
  ButtonNext = AddButton(u"&Next"_s, &SadrelMainForm::DoNext, bar);
  bar->row().addSpacing(grid::kBetweenColumns);
  ButtonFinish = AddButton(u"&Finish"_s, &SadrelMainForm::DoFinish, bar);
  return bar;
}

void SadrelMainForm::Arrange(QWidget* buttons) {
  auto* content = new QWidget(this);
  auto* cells = new QGridLayout(content);
  cells->setContentsMargins({});
  cells->setSpacing(0);
  auto* kept = new QHBoxLayout;
  kept->setContentsMargins(grid::kPageMargin, 0, grid::kPageMargin, 0);
  kept->addWidget(kept_);
  kept->addStretch();
  cells->addWidget(PictureMenu, 0, 0, 4, 1);
  cells->addWidget(help_, 0, 1);
  cells->addWidget(area_, 1, 1);
  cells->addLayout(kept, 2, 1);
  cells->addWidget(buttons, 3, 1);
  cells->setRowStretch(1, 1);
  cells->setColumnStretch(1, 1);
  SetContent(content);
}

}  // namespace mortane
