#include "filters/FilterQubeCtl.h"

#include <QPointer>
#include <memory>
#include <vector>

#include "common/Text.h"
#include "drawings/TurretDrawing.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "model/OptionCodes.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueBox.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kValueCharacters = 10;
// The room, in average characters, from which the list stands beside the turret.
constexpr int kListCharacters = 62;

// Where the list's columns begin at least, in quarters of a character.
constexpr std::array kTabStops{64, 128, 192};

// The cubes of the first two rows are those that the observation methods know.
constexpr int kProtectedRows = 2;

// Kept: on turrets of every size this address never shows the first cube.
constexpr char kAddressOfSecondCube[] = "6";

constexpr char kQuestion[] =
    "This position is related with Observation Method.\r\nIs Change data on this position?";

constexpr std::int32_t kFirstAddress = 1;

// The codes in the order of the rows, and the row to select for a mounted code; -1 when there is
// none. Kept: a fixed cube is selected by its code and not by its row. Behind a record that is not
// listed this selects, and so mounts, another cube; the row is known only when all of them are
// there.
struct Listing {
  std::vector<std::int32_t> codes;
  int selected = -1;
};

Listing ListingOf(const clsDbFilter& cubes, std::int32_t fixed, std::int32_t mounted) {
  Listing listing;
  for (std::int32_t code = 0; code <= fixed; ++code) {
    if (IsVacant(cubes.Name(code))) continue;
    listing.codes.push_back(code);
    if (code == mounted) listing.selected = code;
  }
  for (std::int32_t code = kOptionBase + 1; code <= kHighestCode; ++code) {
    const std::string name = cubes.Name(code);
    if (IsVacant(name) || Trim(name).empty()) continue;
    listing.codes.push_back(code);
    if (code == mounted) listing.selected = static_cast<int>(listing.codes.size()) - 1;
  }
  return listing;
}

// Whether loading the page leaves the cube at the first address. The only address of a turret is
// its last one too, so the page may have to ask.
bool StaysMounted(const clsFilter& turret, const clsDbFilter& cubes, std::int32_t fixed) {
  const std::int32_t mounted = turret.code(kFirstAddress);
  const Listing listing = ListingOf(cubes, fixed, mounted);
  const auto row = static_cast<std::size_t>(listing.selected);
  if (listing.selected < 0 || row >= listing.codes.size()) return true;
  return listing.codes[row] == mounted && turret.Count > 1;
}

QStringList CellsOf(const clsDbFilter& cubes, std::int32_t code) {
  std::string name;
  std::string exciter;
  std::string dichroic;
  std::string barrier;
  cubes.Get_DbFilter(code, name, exciter, dichroic, barrier);
  return {QString::fromStdString(name), QString::fromStdString(exciter),
          QString::fromStdString(dichroic), QString::fromStdString(barrier)};
}

TurretItem TurretItemOf(const clsDbFilter& cubes, std::int32_t code) {
  const std::string name = FirstCharacters(cubes.Name(code), kOptionNameLength);
  if (Trim(name).empty() || IsVacant(name)) return {};
  const QString shown = QString::fromStdString(name);
  return {shown, shown, std::nullopt};
}

}  // namespace

struct FilterQubeCtl::Value {
  const char* caption;
  Control<QLabel> FilterQubeCtl::*label;
  Control<ValueLabel> FilterQubeCtl::*value;
};

const std::array<FilterQubeCtl::Value, 4> FilterQubeCtl::kValues{{
    {"Name", &FilterQubeCtl::Label1, &FilterQubeCtl::LabelName},
    {"Exciter", &FilterQubeCtl::Label2, &FilterQubeCtl::LabelExciter},
    {"Dichroic", &FilterQubeCtl::Label3, &FilterQubeCtl::LabelDichroic},
    {"Barrier", &FilterQubeCtl::Label4, &FilterQubeCtl::LabelBarrier},
}};

FilterQubeCtl::FilterQubeCtl(clsFilter& turret, const clsDbFilter& cubes, QWidget* parent)
    : TurretPage(u"Set Filter Cube Data to Each Address"_s, PlaceKind::Cubes, u"Filter Turret"_s,
                 parent),
      filterTurret_(turret),
      cubes_(cubes) {
  TabPocket = tabs();
  BuildList();
  BuildValues();
  connect(List1, &ListBox::selectionChanged, this, &FilterQubeCtl::ClickList);
}

void FilterQubeCtl::BuildList() {
  List1 = new ListBox(listParent());
  List1->setAccessibleName(u"Filter Cubes"_s);
  QVector<ListColumn> columns;
  for (const Value& value : kValues) columns.append({QLatin1String(value.caption)});
  List1->SetColumns(columns);
  SetLists(List1, kListCharacters);
  SetTabStops(List1, {kTabStops.begin(), kTabStops.end()});
}

void FilterQubeCtl::BuildValues() {
  Frm1 = values();
  for (const Value& value : kValues) {
    const ValueBox::Value added = values()->AddValue(value.caption, kValueCharacters, 1);
    this->*value.label = added.caption;
    this->*value.value = added.value;
  }
}

std::int32_t FilterQubeCtl::mounted() const {
  return filterTurret_.code(address());
}

LatePlan FilterQubeCtl::Plan(clsFilter& turret, const clsDbFilter& cubes) {
  const auto fixed = std::make_shared<std::int32_t>(0);
  return {.make = [&turret, &cubes] { return new FilterQubeCtl(turret, cubes); },
          .load =
              [&turret, &cubes, fixed] {
                if (turret.Count < 1) return true;
                *fixed = cubes.FixedCount();
                return StaysMounted(turret, cubes, *fixed);
              },
          .fill = [fixed](Page& page) { static_cast<FilterQubeCtl&>(page).Fill(*fixed); }};
}

void FilterQubeCtl::LoadData() {
  Fill(filterTurret_.Count < 1 ? 0 : cubes_.FixedCount());
}

void FilterQubeCtl::Fill(std::int32_t fixed) {
  TabPocket->SetNumberedTabs(filterTurret_.Count);
  UpdateTurret();
  List1->clearRows();
  const QPointer<FilterQubeCtl> page(this);  // the row's question may see its end
  if (filterTurret_.Count >= 1) List1->setIndex(FillList(fixed, mounted()));
  if (!page.isNull()) ShowParts(List1->index());
}

int FilterQubeCtl::FillList(std::int32_t fixed, std::int32_t mounted) {
  const Listing listing = ListingOf(cubes_, fixed, mounted);
  for (const std::int32_t code : listing.codes) List1->addCells(CellsOf(cubes_, code), code);
  return listing.selected;
}

int FilterQubeCtl::RowOf(std::int32_t code) const {
  for (int row = 0; row < List1->rowCount(); ++row) {
    if (List1->data(row).toInt() == code) return row;
  }
  return -1;
}

// Kept: a mounted cube that is not listed leaves the row of the tab before.
void FilterQubeCtl::ClickTab() {
  turret()->setIndex(TabPocket->index());
  if (const int row = RowOf(mounted()); row >= 0) List1->setIndex(row);
  const bool avoidsFirst = TabPocket->caption() == QLatin1String(kAddressOfSecondCube);
  if (avoidsFirst && List1->index() == 0 && List1->rowCount() > 1) List1->setIndex(1);
  ShowParts(List1->index());
}

void FilterQubeCtl::ClickList(int row) {
  if (!LeavesProtectedCube(row)) return ShowAndStore(row);
  const QPointer<FilterQubeCtl> page(this);  // may be destroyed while the box stands
  Prompts& prompts = filterTurret_.parent.prompts();
  const Answer answer = prompts.MsgBox(kQuestion, box::kYesNo, "Warning");
  if (page.isNull()) return;
  if (answer == Answer::Yes) return ShowAndStore(row);
  ClickTab();
}

bool FilterQubeCtl::LeavesProtectedCube(int row) const {
  if (address() != filterTurret_.Count || row < kProtectedRows) return false;
  const int from = RowOf(mounted());
  return from >= 0 && from < kProtectedRows;
}

void FilterQubeCtl::ShowAndStore(int row) {
  ShowParts(row);
  filterTurret_.code(address(), List1->data(row).toInt());
  turret()->SetItem(TabPocket->index(), TurretItemOf(cubes_, mounted()));
}

void FilterQubeCtl::ShowParts(int row) {
  const QStringList cells = List1->cells(row);
  int part = 0;
  for (const Value& value : kValues) (this->*value.value)->setText(cells.value(part++));
}

void FilterQubeCtl::UpdateTurret() {
  QVector<TurretItem> items;
  for (std::int32_t i = 1; i <= filterTurret_.Count; ++i)
    items.append(TurretItemOf(cubes_, filterTurret_.code(i)));
  turret()->SetItems(items);
  turret()->setIndex(TabPocket->index());
}

}  // namespace mortane
