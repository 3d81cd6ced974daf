// The panel that assigns an objective to each address of the nosepiece.
#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QFrame;
class QLabel;

namespace mortane {

class ListBox;
class TabStrip;
class TurretDrawing;
class ValueLabel;
class clsDbNosepiece;
class clsNosepiece;
struct TurretItem;

// Every selection in the list of objectives mounts that objective, also one that the program
// makes. Kept: so browsing another series mounts its first objective, and so may loading.
class ObjectiveCtl : public CardPage {
  Q_OBJECT

 public:
  ObjectiveCtl(clsNosepiece& nosepiece, const clsDbNosepiece& objectives,
               QWidget* parent = nullptr);

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
  void showEvent(QShowEvent* event) override;

 private:
  struct Value;
  static const Value kValues[6];
  struct Row {
    QStringList cells;
    std::int32_t code;
  };

  struct Listing {
    std::int32_t series;
    std::int32_t mounted;
    int row;
  };

  QWidget* BuildLists(QWidget* parent);
  QFrame* BuildValueBox(QWidget* parent);
  void ShowParts(const QStringList& cells);
  void FillSeries();
  // The row to select for the mounted code; -1 when the series does not list it.
  int BuildList(std::int32_t series, std::int32_t mounted);
  void ShowRows(std::vector<Row> rows);
  void SelectOrBlank(int row);
  void ClickSeries(int row);
  void ClickItem(int row);
  void ClickTab();
  std::int32_t address() const;  // of the selected tab; 0 without one
  TurretItem ItemAt(std::int32_t address) const;
  void UpdateTurret();

  clsNosepiece& nosepiece_;
  const clsDbNosepiece& objectives_;
  Control<TurretDrawing> turret_{"turret"};
  std::vector<Row> rows_;  // of the objective list
  std::optional<Listing> listing_;
  bool shownBefore_ = false;
};

}  // namespace mortane
