// A page that shows one of several sub-pages under the option buttons of its header.
#pragma once

#include <QVector>

#include "widgets/Icons.h"
#include "widgets/Page.h"
#include "widgets/Theme.h"

class QScrollArea;
class QVBoxLayout;

namespace mortane {

class PageHeader;
class SectionBar;

// A click on an option hides the sub-page on show, loads the one of that option and shows it: its
// data comes from the model each time that it is opened. LoadData and SaveData, which differ from
// area to area, are left to the area's own page.
class ContainerPage : public Page {
  Q_OBJECT

 public:
  ContainerPage(IconName icon, const QString& title, int sectionStart = grid::kSectionStart,
                QWidget* parent = nullptr);

  // Takes the sub-page over; its option is optSettings_<index>.
  int AddSubPage(const QString& caption, Page* page);
  [[nodiscard]] SectionBar* sections() const;
  [[nodiscard]] PageHeader* header() const { return header_; }
  [[nodiscard]] Page* subPage(int index) const { return subPages_[index]; }
  [[nodiscard]] Page* shownSubPage() const { return shown_; }
  [[nodiscard]] int CurrentItem() const;  // -1 before the first selection

 protected:
  virtual void ShowSubPage(int index);

 private:
  PageHeader* header_ = nullptr;
  QVBoxLayout* stack_ = nullptr;
  QVector<Page*> subPages_;
  Page* shown_ = nullptr;
};

}  // namespace mortane
