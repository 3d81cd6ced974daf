// The list of what was changed and not sent: item, what the microscope has, what is here.
#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "record/Comparison.h"
#include "widgets/Control.h"

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace mortane {

// Rows stand under the captions of their pages. Enter or a double click on a row closes the dialog
// and goes to the item.
class DifferencesDlg : public QDialog {
 public:
  struct Content {
    std::vector<ItemChange> changes;  // in the order of the pages
    ItemNames before;
    ItemNames now;
    std::vector<QString> pageTitles;
    std::function<void()> saveRecord;
  };

  explicit DifferencesDlg(const Content& content, QWidget* parent = nullptr);

  // The change of the row that was gone to, by its index; of a caption the first one of its page.
  [[nodiscard]] std::optional<std::size_t> ChosenChange() const { return chosen_; }

  Control<QTreeWidget> List1{"List1"};
  Control<QPushButton> ButtonCopy{"ButtonCopy"};
  Control<QPushButton> ButtonSaveRecord{"ButtonSaveRecord"};
  Control<QPushButton> ButtonClose{"ButtonClose"};

 private:
  [[nodiscard]] std::array<QPushButton*, 3> Buttons() const;  // from left to right
  void Fill(const Content& content);
  void Arrange();
  void Copy();
  void GoTo(const QTreeWidgetItem& row);

  std::optional<std::size_t> chosen_;
};

}  // namespace mortane
