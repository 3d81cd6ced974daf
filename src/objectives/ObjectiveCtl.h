// The panel that assigns an objective to each address of the nosepiece.
#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

#include "drawings/TurretPage.h"
#include "widgets/Control.h"
#include "widgets/LatePage.h"

class QFrame;
class QLabel;

namespace mortane {

class ListBox;
class TabStrip;
class ValueLabel;
class clsDbNosepiece;
class clsNosepiece;

// Every selection in the list of objectives mounts that objective, also one that the program
// makes. Kept: so browsing another series mounts its first objective, and so may loading.
class ObjectiveCtl : public TurretPage {
  Q_OBJECT

 public:
  ObjectiveCtl(clsNosepiece& nosepiece, const clsDbNosepiece& objectives,
               QWidget* parent = nullptr);

  // What happens in place of the page before it is made.
  static LatePlan Plan(clsNosepiece& nosepiece, const clsDbNosepiece& objectives);

  void LoadData() override;

  Control<TabStrip> TabNosepiece{"TabNosepiece"};
  Control<ListBox> ListSeries{"ListSeries"};
  Control<ListBox> ListItem{"ListItem"};
  Control<QFrame> Frame1{"Frame1"};
  Control<QLabel> Label1{"Label1"};
  Control<QLabel> Label2{"Label2"};
  Control<QLabel> Label3{"Label3"};
  Control<QLabel> Label4{"Label4"};
  Control<QLabel> Label5{"Label5"};
  Control<QLabel> Label6{"Label6"};
  Control<ValueLabel> LabelSeries{"LabelSeries"};
  Control<ValueLabel> LabelType{"LabelType"};
  Control<ValueLabel> LabelMag{"LabelMag"};
  Control<ValueLabel> LabelWD{"LabelWD"};
  Control<ValueLabel> LabelNA{"LabelNA"};
  Control<ValueLabel> LabelName{"LabelName"};

 protected:
  void ClickTab() override;

 private:
  struct Value;
  static const Value kValues[6];
  struct Row {
    QStringList cells;
    std::int32_t code;
  };

  void BuildLists();
  void BuildValues();
  void ShowParts(const QStringList& cells);
  void FillSeries();
  // The row to select for the mounted code; -1 when the series does not list it.
  int BuildList(std::int32_t series, std::int32_t mounted);
  void ShowRows(std::vector<Row> rows);
  void SelectOrBlank(int row);
  void ClickSeries(int row);
  void ClickItem(int row);
  TurretItem ItemAt(std::int32_t address) const;
  void UpdateTurret();

  clsNosepiece& nosepiece_;
  const clsDbNosepiece& objectives_;
  std::vector<Row> rows_;        // of the objective list
  std::optional<int> builtRow_;  // what the last building of the objective list answered
};

}  // namespace mortane
