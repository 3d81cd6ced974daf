#include "objectives/ObjectiveCtl.h"

#include <algorithm>
#include <array>

#include "common/Text.h"
#include "drawings/TurretDrawing.h"
#include "model/OptionCodes.h"
#include "objectives/FillNames.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsNosepiece.h"
#include "widgets/ListBox.h"
#include "widgets/PairPanel.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueBox.h"
#include "widgets/ValueLabel.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr std::int32_t kFirstAddress = 1;
constexpr int kSeriesWidth = 150;
constexpr int kNoColumn = -1;
constexpr int kNameColumn = 4;

// The room, in average characters, from which both lists stand beside the turret, and from which
// the lists stand beside each other.
constexpr int kListCharacters = 86;
constexpr int kSeriesCharacters = 12;
constexpr int kObjectiveCharacters = 46;

// Where the list's columns begin at least, in quarters of a character.
constexpr std::array kTabStops{30, 60, 90, 120, 180};

struct Objective {
  std::int32_t code = -1;
  std::string type;
  std::string magnification;
  std::string workingDistance;
  std::string numericalAperture;
  std::string name;
};

// The first objective of the series after a code; its code is -1 when there is none.
Objective NextOf(const clsDbNosepiece& objectives, std::int32_t series, std::int32_t after) {
  Objective next;
  std::int32_t position = after;
  next.code =
      objectives.Get_DbNosepiecePocket(series, position, next.type, next.magnification,
                                       next.workingDistance, next.numericalAperture, next.name);
  return next;
}

// Whether the list of its series has the objective, or is empty and so mounts none.
bool StaysMounted(const clsDbNosepiece& objectives, std::int32_t mounted) {
  const std::int32_t series = objectives.SeriesCode(mounted);
  bool listsAny = false;
  for (Objective next = NextOf(objectives, series, -1); next.code >= 0;
       next = NextOf(objectives, series, next.code)) {
    if (IsVacant(next.name)) continue;
    if (next.code == mounted) return true;
    listsAny = true;
  }
  return !listsAny;
}

QStringList CellsOf(const Objective& objective) {
  return {QString::fromStdString(objective.type), QString::fromStdString(objective.magnification),
          QString::fromStdString(objective.workingDistance),
          QString::fromStdString(objective.numericalAperture),
          QString::fromStdString(objective.name)};
}

}  // namespace

struct ObjectiveCtl::Value {
  const char* caption;
  int column;  // of the objective list
  int characters;
  Control<QLabel> ObjectiveCtl::*label;
  Control<ValueLabel> ObjectiveCtl::*value;
};

const ObjectiveCtl::Value ObjectiveCtl::kValues[6]{
    {"Series", kNoColumn, 20, &ObjectiveCtl::Label1, &ObjectiveCtl::LabelSeries},
    {"Type", 0, 12, &ObjectiveCtl::Label2, &ObjectiveCtl::LabelType},
    {"Mag.", 1, 10, &ObjectiveCtl::Label3, &ObjectiveCtl::LabelMag},
    {"W.D.", 2, 10, &ObjectiveCtl::Label4, &ObjectiveCtl::LabelWD},
    {"N.A.", 3, 10, &ObjectiveCtl::Label5, &ObjectiveCtl::LabelNA},
    {"Name", kNameColumn, 20, &ObjectiveCtl::Label6, &ObjectiveCtl::LabelName},
};

ObjectiveCtl::ObjectiveCtl(clsNosepiece& nosepiece, const clsDbNosepiece& objectives,
                           QWidget* parent)
    : TurretPage(u"Set Objective Data to Each Address"_s, PlaceKind::Objectives, u"Nosepiece"_s,
                 parent),
      nosepiece_(nosepiece),
      objectives_(objectives) {
  TabNosepiece = tabs();
  BuildLists();
  BuildValues();
  connect(ListSeries, &ListBox::selectionChanged, this, &ObjectiveCtl::ClickSeries);
  connect(ListItem, &ListBox::selectionChanged, this, &ObjectiveCtl::ClickItem);
}

LatePlan ObjectiveCtl::Plan(clsNosepiece& nosepiece, const clsDbNosepiece& objectives) {
  return {.make = [&] { return new ObjectiveCtl(nosepiece, objectives); },
          .load =
              [&] {
                return nosepiece.Count < 1 ||
                       StaysMounted(objectives, nosepiece.code(kFirstAddress));
              }};
}

void ObjectiveCtl::BuildLists() {
  auto* lists = new PairPanel(listParent());
  ListSeries = new ListBox(lists);
  ListSeries->setAccessibleName(QLatin1String(kValues[0].caption));
  ListSeries->setMinimumWidth(kSeriesWidth);
  ListItem = new ListBox(lists);
  ListItem->setAccessibleName(u"Objectives"_s);
  ListItem->SetColumns({{u"Type"_s},
                        {u"Mag."_s, Qt::AlignRight},
                        {u"W.D."_s, Qt::AlignRight},
                        {u"N.A."_s, Qt::AlignRight},
                        {u"Name"_s}});
  ListItem->SetNameColumn(kNameColumn);
  lists->SetParts(ListSeries, 0, ListItem, 1, PairPanel::Upper::Left);
  lists->SetCharactersBeside(kObjectiveCharacters, kSeriesCharacters);
  SetLists(lists, kListCharacters);
  SetTabStops(ListItem, {kTabStops.begin(), kTabStops.end()});
}

void ObjectiveCtl::BuildValues() {
  Frame1 = values();
  for (const Value& value : kValues) {
    const ValueBox::Value added =
        values()->AddValue(value.caption, value.characters, value.characters);
    this->*value.label = added.caption;
    this->*value.value = added.value;
  }
}

void ObjectiveCtl::LoadData() {
  TabNosepiece->SetNumberedTabs(nosepiece_.Count);
  UpdateTurret();
  if (nosepiece_.Count < 1) {
    ShowRows({});
    ShowParts({});
    return;
  }
  FillSeries();
  ClickTab();
}

void ObjectiveCtl::FillSeries() {
  FillNames(*ListSeries, objectives_.SeriesCount(),
            [this](std::int32_t index) { return objectives_.Series(index); });
}

// Kept: the new index of the series list mounts an objective of its own where the mounted one is
// not listed; what is shown and selected goes by the code from before.
void ObjectiveCtl::ClickTab() {
  const std::int32_t mounted = nosepiece_.code(address());
  const std::int32_t series = objectives_.SeriesCode(mounted);
  turret()->setIndex(TabNosepiece->index());
  builtRow_.reset();
  ListSeries->setIndex(series);
  LabelSeries->setText(QString::fromStdString(objectives_.Series(series)));
  // The click of another series has just built this very list.
  SelectOrBlank(builtRow_ ? *builtRow_ : BuildList(series, mounted));
}

void ObjectiveCtl::ClickSeries(int row) {
  LabelSeries->setText(ListSeries->text(row));
  const int found = BuildList(row, nosepiece_.code(address()));
  SelectOrBlank(found < 0 && ListItem->rowCount() > 0 ? 0 : found);
}

void ObjectiveCtl::ClickItem(int row) {
  ShowParts(ListItem->cells(row));
  if (address() == 0) return;
  nosepiece_.code(address(), ListItem->data(row).toInt());
  turret()->SetItem(TabNosepiece->index(), ItemAt(address()));
}

// Of neighbours that read the same one row stands for both, and the mounted code wins.
int ObjectiveCtl::BuildList(std::int32_t series, std::int32_t mounted) {
  std::vector<Row> rows;
  int found = -1;
  for (Objective next = NextOf(objectives_, series, -1); next.code >= 0;
       next = NextOf(objectives_, series, next.code)) {
    if (IsVacant(next.name)) continue;
    QStringList cells = CellsOf(next);
    if (rows.empty() || rows.back().cells != cells) rows.push_back({std::move(cells), next.code});
    if (next.code != mounted) continue;
    rows.back().code = mounted;
    found = static_cast<int>(rows.size()) - 1;
  }
  ShowRows(std::move(rows));
  builtRow_ = found;
  return found;
}

// Addresses of one series read the same, so most changes of the tab need no filling.
void ObjectiveCtl::ShowRows(std::vector<Row> rows) {
  const bool same =
      std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(),
                 [](const Row& left, const Row& right) { return left.cells == right.cells; });
  rows_ = std::move(rows);
  if (same) {
    ListItem->setIndex(-1);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      ListItem->setData(static_cast<int>(i), rows_[i].code);
    }
    return;
  }
  ListItem->clearRows();
  for (const Row& row : rows_) ListItem->addCells(row.cells, row.code);
}

void ObjectiveCtl::SelectOrBlank(int row) {
  ListItem->setIndex(row);
  if (row < 0) ShowParts({});
}

void ObjectiveCtl::ShowParts(const QStringList& cells) {
  for (const Value& value : kValues) {
    if (value.column != kNoColumn) (this->*value.value)->setText(cells.value(value.column));
  }
}

// Mounted is what the lists show as an objective: a record with a name or a magnification.
TurretItem ObjectiveCtl::ItemAt(std::int32_t address) const {
  const std::int32_t code = nosepiece_.code(address);
  const std::string name = objectives_.Name(code);
  const double magnification = objectives_.Magnification(code);
  const bool named = !Trim(name).empty();
  if (IsVacant(name) || (!named && magnification == 0)) return {};
  const QString mark = QString::fromStdString(MagnificationText(magnification));
  QString details = mark;
  if (named) {
    const std::string shownName = FirstCharacters(name, kObjectiveNameLength);
    details += u", "_s + QString::fromStdString(shownName);
  }
  return {mark, details, magnification == 0 ? std::nullopt : std::optional(magnification)};
}

void ObjectiveCtl::UpdateTurret() {
  QVector<TurretItem> items;
  for (std::int32_t i = 1; i <= nosepiece_.Count; ++i) items.append(ItemAt(i));
  turret()->SetItems(items);
}

}  // namespace mortane
