// Switching between two addresses of different series, with 250 objectives in the database: the
// page beside a bare list that is filled with the same rows.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "SilentPrompts.h"
#include "app/ApplyTheme.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"
#include "objectives/ObjectiveCtl.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"

namespace mortane {
namespace {

constexpr std::int32_t kRecords = 250;
constexpr std::int32_t kSeries = 2;
constexpr QSize kPageRoom{1048, 560};

// The records alternate between the two series, and so do the addresses.
controller::Bench BenchWithAFullDatabase() {
  controller::Bench bench = controller::benches::Named("Quay");
  controller::Instrument& instrument = bench.instruments.front();
  instrument.database.objectives.clear();
  for (std::int32_t code = 0; code < kRecords; ++code) {
    instrument.database.objectives.push_back({code,
                                              false,
                                              "Objective " + std::to_string(code),
                                              1 + code % kSeries,
                                              1 + code % 7,
                                              10.0 + code % 90,
                                              0.1 * code,
                                              0.5,
                                              0,
                                              {}});
  }
  for (std::size_t i = 0; i < instrument.nosepiece.size(); ++i) {
    instrument.nosepiece[i].code = static_cast<std::int32_t>(100 + i);
  }
  return bench;
}

// Made once for both measurements, so that they stand on the same window and rows.
struct Rig {
  Rig() : library(BenchWithAFullDatabase()) {
    GetK70().Connect(0);
    GetK70().Receive();
    window.resize(kPageRoom);
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    column->addWidget(page);
    page->LoadData();
    window.show();
    QApplication::processEvents();
  }
  ~Rig() {
    delete page;
    ReleaseK70();
  }
  Rig(const Rig&) = delete;
  Rig& operator=(const Rig&) = delete;
  Rig(Rig&&) = delete;
  Rig& operator=(Rig&&) = delete;

  void ClickTab(int index) const {
    TabStrip& strip = *page->TabNosepiece;
    const QPointF at = strip.tabRect(index).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, at, strip.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(&strip, &event);
    }
    QApplication::processEvents();
  }

  controller::SimulatedLibrary library;
  SilentPrompts prompts;
  clsK70& k70 = ProvideK70(library, prompts);
  QWidget window;
  ObjectiveCtl* page = new ObjectiveCtl(k70.curNosepiece, k70.DbNosepiece);
};

void SwitchTabsOfThePage(benchmark::State& state) {
  const Rig rig;
  int tab = 0;
  for ([[maybe_unused]] auto _ : state) {
    tab = 1 - tab;
    rig.ClickTab(tab);
  }
  state.counters["rows"] = rig.page->ListItem->rowCount();
}
BENCHMARK(SwitchTabsOfThePage)->Unit(benchmark::kMillisecond);

void LoadThePage(benchmark::State& state) {
  const Rig rig;
  for ([[maybe_unused]] auto _ : state) {
    rig.page->LoadData();
    QApplication::processEvents();
  }
}
BENCHMARK(LoadThePage)->Unit(benchmark::kMillisecond);

// The same rows, taken from the page, in a list of the same columns and room.
void FillABareList(benchmark::State& state) {
  const Rig rig;
  std::array<QStringList, kSeries> rows;
  for (int tab = 0; tab < kSeries; ++tab) {
    rig.ClickTab(tab);
    for (int i = 0; i < rig.page->ListItem->rowCount(); ++i) {
      rows[static_cast<std::size_t>(tab)].append(rig.page->ListItem->text(i));
    }
  }
  QWidget window;
  window.resize(rig.page->ListItem->size());
  auto* list = new ListBox(&window);
  list->SetColumns({{"Type"},
                    {"Mag.", Qt::AlignRight},
                    {"W.D.", Qt::AlignRight},
                    {"N.A.", Qt::AlignRight},
                    {"Name"}});
  list->resize(window.size());
  window.show();
  QApplication::processEvents();
  std::size_t tab = 0;
  for ([[maybe_unused]] auto _ : state) {
    tab = 1 - tab;
    list->clearRows();
    for (int i = 0; i < rows[tab].size(); ++i) list->addRow(rows[tab][i], i);
    list->setIndex(50);
    QApplication::processEvents();
  }
  state.counters["rows"] = list->rowCount();
}
BENCHMARK(FillABareList)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace mortane

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  mortane::ApplyTheme(application, mortane::Scheme::Light);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
