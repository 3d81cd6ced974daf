// The dialog that lets a person choose the sections of a settings file.
#pragma once

#include <QDialog>
#include <string>

#include "widgets/Control.h"

class QPushButton;

namespace mortane {

class ListBox;
class clsK70;

// Lists the sections that the file holds; of a file without any it says why.
// Kept: each line below a missing section sets the flag of the section before it.
class SelFileItemDlg : public QDialog {
 public:
  explicit SelFileItemDlg(clsK70& k70, QWidget* parent = nullptr, const std::string& whyEmpty = {});

  // Cancel, the close box and Escape: no section is wanted.
  void reject() override;

  Control<ListBox> List1{"List1"};
  Control<ListBox> Datalist{"Datalist"};  // hidden, the labels in the order of the file items
  Control<QPushButton> OkButton{"OkButton"};
  Control<QPushButton> CancelButton{"CancelButton"};

 private:
  void LoadList();
  void ShowWhyEmpty(const std::string& why);
  void ShowAllRows();

  clsK70& k70_;
};

}  // namespace mortane
