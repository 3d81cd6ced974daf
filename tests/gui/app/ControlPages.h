// The page of the drives and controls over sub-pages that only tell what is asked of them.
#pragma once

#include <QAbstractButton>
#include <QTest>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/ControlSettingsCtl.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageRig.h"
#include "support/Rows.h"
#include "support/ScriptedJoystick.h"
#include "widgets/SectionBar.h"

namespace mortane::test {

class FakeSubPage : public Page {
 public:
  FakeSubPage(std::string name, Lines& calls) : name_(std::move(name)), calls_(calls) {}

  void LoadData() override {
    calls_.push_back(name_ + ".LoadData");
    if (onLoad) onLoad();
  }
  void SaveData() override { calls_.push_back(name_ + ".SaveData"); }
  void SetNosePosition() { calls_.push_back(name_ + ".SetNosePosition"); }

  std::function<void()> onLoad;

 private:
  std::string name_;
  Lines& calls_;
};

inline ControlSubPages MakeFakeSubPages(Lines& calls) {
  static constexpr std::array kNames{"Focus", "Stage", "Other", "K70", "Tactor", "Joypad"};
  ControlSubPages table;
  for (std::size_t i = 0; i < table.size(); ++i) {
    auto* page = new FakeSubPage(kNames[i], calls);
    table[i].page = page;
    if (i <= controltab::kXYStage) table[i].SetNosePosition = [page] { page->SetNosePosition(); };
  }
  return table;
}

// The microscope's other controls and drives are read, nothing else: the databases of some
// instruments are not fit to be read.
struct ControlRig : PageRig {
  explicit ControlRig(Bench bench) : PageRig(std::move(bench), Link::None) {
    Read(static_cast<std::int32_t>(simulated.bench().instruments.size()) - 1);
  }
  explicit ControlRig(std::string_view benchName) : ControlRig(benches::Named(benchName)) {}

  void Read(std::int32_t device) {
    EXPECT_TRUE(k70().Connect(device));
    EXPECT_EQ(k70().CZDrive.ReadSdk(), "");
    EXPECT_EQ(k70().CXYDrive.ReadSdk(), "");
    EXPECT_EQ(k70().COther.ReadSdk(), "");
    journal.Clear();
    prompts.ClearRecords();
  }

  FormServices Services() { return {k70(), library, prompts, joystick, {}}; }

  ControlSettingsCtl* Make() {
    const ControlSubPages table = MakeFakeSubPages(calls);
    for (std::size_t i = 0; i < table.size(); ++i) {
      pages[i] = static_cast<FakeSubPage*>(table[i].page);
    }
    return new ControlSettingsCtl(Services(), table);
  }

  // The page in a window, loaded.
  ControlSettingsCtl& ShowPage() {
    ControlSettingsCtl& page = Show(Make());
    calls.clear();
    journal.Clear();
    return page;
  }

  // Names of the sub-pages that are on show.
  std::string Shown() const {
    std::string shown;
    for (const FakeSubPage* page : pages) {
      if (page->isVisible()) shown += page->objectName().toStdString();
    }
    return shown;
  }

  ScriptedJoystick joystick;
  std::array<FakeSubPage*, controltab::kCount> pages{};
  Lines calls;
};

// The tabs that are shown, a digit each, and the one that is selected.
inline std::string TabsOf(const ControlSettingsCtl& page) {
  std::string tabs;
  for (int i = 0; i < page.optControl->count(); ++i) {
    if (!page.optControl->option(i)->isHidden()) tabs += std::to_string(i);
  }
  return tabs + ":" + std::to_string(page.CurrentItem());
}

}  // namespace mortane::test
