// The dialog that lets a person choose the sections of a settings file.
#pragma once

#include <QDialog>

class QPushButton;

namespace mortane {

class ListBox;
class clsK70;

// Lists the sections that the file holds. A line's check is written to the file item of the
// line's position in the list, not of its section: with a section missing, the lines below it
// speak for the wrong items. Settings were chosen by this rule for years, so it stays.
class SelFileItemDlg : public QDialog {
 public:
  explicit SelFileItemDlg(clsK70& k70, QWidget* parent = nullptr);

  // Cancel, the close box and Escape: no section is wanted.
  void reject() override;

  ListBox* List1;
  ListBox* Datalist;  // hidden, the labels in the order of the file items
  QPushButton* OkButton;
  QPushButton* CancelButton;

 private:
  void LoadList();

  clsK70& k70_;
};

}  // namespace mortane
