// The wizard's step of the items, and what its events say.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "gui/support/PageRig.h"
#include "support/Rows.h"
#include "widgets/ListBox.h"
#include "widgets/OptionGroup.h"
#include "wizard/ModeList.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane::test {

using Items = std::vector<int>;

// The page on a received microscope, and what its events say: "0 on", "0 off", "mode 1".
struct ItemsRig {
  explicit ItemsRig(Bench bench = benches::Named("Harbour"),
                    const std::function<void(clsK70&)>& change = {})
      : rig(std::move(bench)) {
    if (change) change(rig.k70());
    QObject::connect(page, &SelSetupItemCtl::ItemChanged, page, [this](int item, bool enabled) {
      events.push_back(std::to_string(item) + (enabled ? " on" : " off"));
    });
    QObject::connect(page, &SelSetupItemCtl::ModeChanged, page,
                     [this](int mode) { events.push_back("mode " + std::to_string(mode)); });
    rig.Show(page);
    loading = std::exchange(events, {});
  }
  static Items Of(const ListBox& list) {
    Items items;
    for (int row = 0; row < list.rowCount(); ++row) items.push_back(list.data(row).toInt());
    return items;
  }
  static Items Checked(const ListBox& list) {
    Items items;
    for (int row = 0; row < list.rowCount(); ++row) {
      if (list.isRowChecked(row)) items.push_back(list.data(row).toInt());
    }
    return items;
  }
  QAbstractButton& Option(int mode) { return *page->optSetupMode->button(mode); }
  // The events that an act brings about.
  template <typename Act>
  Lines After(Act act) {
    events.clear();
    act();
    return std::exchange(events, {});
  }
  void ClickCheckBox(int row) {
    ListBox& list = *page->ListCustom;
    const QRect line = list.visualItemRect(list.topLevelItem(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      QPoint(line.left() + 14, line.center().y()));
  }

  PageRig rig;
  SelSetupItemCtl* page = new SelSetupItemCtl(rig.k70());
  Lines events;
  Lines loading;
};

}  // namespace mortane::test
