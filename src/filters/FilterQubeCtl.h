// The panel that assigns a cube to each address of the filter turret.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "drawings/TurretPage.h"
#include "widgets/Control.h"
#include "widgets/LatePage.h"

class QFrame;
class QLabel;

namespace mortane {

class ListBox;
class TabStrip;
class ValueLabel;
class clsDbFilter;
class clsFilter;

// Every selection in the list mounts that cube, also one that the program makes. The observation
// methods rely on the last address holding one of the first two cubes, so a change away from them
// is asked about.
class FilterQubeCtl : public TurretPage {
  Q_OBJECT

 public:
  FilterQubeCtl(clsFilter& turret, const clsDbFilter& cubes, QWidget* parent = nullptr);

  // What happens in place of the page before it is made.
  static LatePlan Plan(clsFilter& turret, const clsDbFilter& cubes);

  void LoadData() override;

  Control<TabStrip> TabPocket{"TabPocket"};
  Control<ListBox> List1{"List1"};
  Control<QFrame> Frm1{"Frm1"};
  Control<QLabel> Label1{"Label1"};
  Control<QLabel> Label2{"Label2"};
  Control<QLabel> Label3{"Label3"};
  Control<QLabel> Label4{"Label4"};
  Control<ValueLabel> LabelName{"LabelName"};
  Control<ValueLabel> LabelExciter{"LabelExciter"};
  Control<ValueLabel> LabelDichroic{"LabelDichroic"};
  Control<ValueLabel> LabelBarrier{"LabelBarrier"};

 protected:
  void ClickTab() override;

 private:
  struct Value;
  static const std::array<Value, 4> kValues;

  void BuildList();
  void BuildValues();
  // `fixed` is the number of cubes that the controller defines.
  void Fill(std::int32_t fixed);
  // The row to select for a mounted code; -1 when there is none.
  int FillList(std::int32_t fixed, std::int32_t mounted);
  int RowOf(std::int32_t code) const;
  void ClickList(int row);
  bool LeavesProtectedCube(int row) const;
  void ShowAndStore(int row);
  void ShowParts(int row);
  std::int32_t mounted() const;
  void UpdateTurret();

  clsFilter& filterTurret_;
  const clsDbFilter& cubes_;
};

}  // namespace mortane
