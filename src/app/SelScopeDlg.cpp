#include "app/SelScopeDlg.h"

#include <QLabel>
#include <QPushButton>
#include <string>
#include <utility>

#include "app/DialogLayout.h"
#include "common/Prompts.h"
#include "common/Text.h"
#include "hub/clsK70.h"
#include "widgets/Icons.h"
#include "widgets/ListBox.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr char kNotAvailable[] = "Not Available";

}  // namespace

SelScopeDlg::SelScopeDlg(clsK70& k70, Prompts& prompts, Availability isDeviceAvailable,
                         QWidget* parent)
    : QDialog(parent), prompts_(prompts), isDeviceAvailable_(std::move(isDeviceAvailable)) {
  Label1 = new QLabel(u"Please Click Microscope Name on the List."_s, this);
  List1 = new ListBox(this);
  OkButton = new QPushButton(u"&OK"_s, this);
  CancelButton = new QPushButton(u"&Cancel"_s, this);
  setWindowTitle(u"Select Microscope Dialog"_s);
  Label1->setBuddy(List1);
  List1->SetIconRows(true);
  ArrangeDialog(*this, Label1, *List1, *OkButton, *CancelButton);
  connect(OkButton, &QPushButton::clicked, this, [this] { OnOk(); });
  LoadList(k70);
}

// Kept: a list with the simulator alone gets the line of device 1, which is not available.
void SelScopeDlg::LoadList(clsK70& k70) {
  const std::int32_t count = k70.DeviceCount();
  const std::int32_t last = count == 1 ? 1 : count - 1;
  for (std::int32_t device = 1; device <= last; ++device) {
    const bool available = isDeviceAvailable_(device);
    std::string line = available ? Trim(k70.DeviceName(device)) : kNotAvailable;
    if (line.empty()) line = "NoName";
    const int row = List1->addRow(QString::fromStdString(line), device);
    List1->SetRowIcon(row, IconName::System);
    List1->SetRowDimmed(row, !available);
  }
  if (List1->rowCount() > 0) List1->setIndex(0);
}

void SelScopeDlg::OnOk() {
  const std::int32_t device = List1->index() + 1;
  if (List1->index() < 0 || !isDeviceAvailable_(device)) {
    prompts_.MsgBox(kNotAvailable, box::kOk);
    return;
  }
  Selected = static_cast<std::int16_t>(device);
  accept();
}

}  // namespace mortane
