// The step on which a person says how the wizard is to run and which steps it goes through.
#pragma once

#include <functional>

#include "common/Prompts.h"
#include "widgets/Control.h"
#include "widgets/Page.h"

class QFrame;
class QStringListModel;

namespace mortane {

class Card;
class ListBox;
class ModeList;
class OptionGroup;
class PageHeader;
class clsK70;

// Offers the items of what the microscope has. The standard list is always disabled.
class SelSetupItemCtl : public Page {
  Q_OBJECT

 public:
  explicit SelSetupItemCtl(clsK70& k70, QWidget* parent = nullptr);

  // 0 standard, 1 custom, 2 file.
  [[nodiscard]] int SetupMode() const;
  void SetupMode(int mode);

  // Builds both lists anew, in standard mode.
  void LoadData() override;

  // Whether the lists hold the item.
  [[nodiscard]] bool IsOffered(int item) const;

  FileQuestion CommonDialog1;
  std::function<void()> beforeFile;  // runs before the model is read from a file; may be empty

  Control<PageHeader> Header{"Header"};
  Control<Card> FrameBase{"FrameBase"};
  Control<QStringListModel> List1{"List1"};  // the names by the number of the item; never shown
  Control<QFrame> Frame1{"Frame1"};
  Control<OptionGroup> optSetupMode{"optSetupMode"};
  Control<ModeList> ListStandard{"ListStandard"};
  Control<ModeList> ListCustom{"ListCustom"};

 Q_SIGNALS:
  void ModeChanged(int mode);
  // The step of an item is switched on or off.
  void ItemChanged(int item, bool enabled);

 private:
  void BuildOptions();
  void Watch(ListBox& list, const char* accessibleName);
  void Arrange();
  void AddRow(ListBox& list, int item, bool checked);
  void RaiseRow(const ListBox& list, int row);
  void RaiseRows(const ListBox& list);
  void OnMode(int mode);
  void OnFile();

  clsK70& k70_;
};

}  // namespace mortane
