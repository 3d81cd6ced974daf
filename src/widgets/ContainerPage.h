// A page that shows one of several sub-pages under the option buttons of its header.
#pragma once

#include <functional>
#include <type_traits>
#include <vector>

#include "widgets/Control.h"
#include "widgets/Icons.h"
#include "widgets/LatePage.h"
#include "widgets/Page.h"

class QVBoxLayout;

namespace mortane {

class PageHeader;
class SectionBar;

// The sub-page of a section, which has its name: there, or made when its controls are needed.
class SectionPage {
 public:
  template <typename Made, typename = std::enable_if_t<std::is_convertible_v<Made, Page*> &&
                                                       !std::is_base_of_v<LatePage, Made>>>
  SectionPage(const Made& page) : page_(page) {}
  SectionPage(LatePage& page) : late_(&page) {}

  [[nodiscard]] LatePage* late() const { return late_; }
  [[nodiscard]] Page* made() const { return late_ == nullptr ? page_ : late_->made(); }
  [[nodiscard]] Page& get() const { return late_ == nullptr ? *page_ : late_->get(); }

 private:
  LatePage* late_ = nullptr;
  Page* page_ = nullptr;
};

// A sub-page and its option.
struct Section {
  QString caption;
  SectionPage page;
  // Whether there is something to show on the connected microscope; always, when empty.
  std::function<bool()> isOffered = {};
  // What happens before the sub-page is shown; it is loaded, when empty.
  std::function<void()> open = {};
  // Said in a tool tip of the disabled option while the section is not offered.
  QString whyNotOffered = {};
};

// For Section::open: the sub-page keeps what it shows.
inline void KeepAsLoaded() {}

// A selected section, by the person or the program, hides the sub-page on show, opens its own and
// shows it. The one on show is opened again by a click of the person alone. A sub-page that is made
// late and opened while the page itself is hidden is made when the page is shown.
class ContainerPage : public Page {
  Q_OBJECT

 public:
  // What becomes of the option of a section that is not offered.
  enum class NotOffered { Disabled, Hidden };

  // A derived page names the bar of the options before it sets the sections.
  ContainerPage(IconName icon, const QString& title, QWidget* parent = nullptr,
                NotOffered notOffered = NotOffered::Disabled);

  // Asks which sections are offered, loads the sub-pages of those and selects the first section.
  void LoadData() override;
  void SaveData() override;
  // Of the sections that are offered.
  void ShowStored() override;

  [[nodiscard]] int CurrentItem() const;  // -1 before the first selection
  [[nodiscard]] SectionBar* sections() const;
  [[nodiscard]] Page* shownSubPage() const;
  // Of a sub-page, or of what stands for it until it is made; -1: none.
  [[nodiscard]] int SectionOf(const QObject& subPage) const;
  // What a click on the option of a section does; one that is on show stays as it is. False where
  // its option cannot be clicked.
  bool OpenSection(int index);

  Control<PageHeader> Header{"Header"};

 Q_SIGNALS:
  // At the end of every selection, when the sub-page is shown.
  void Change(int index);

 protected:
  // Takes the sub-pages over, from left to right. LoadData loads, and SaveData saves, those of
  // `loaded` as far as they are offered, in this order.
  void SetSections(std::vector<Section> sections, std::vector<int> loaded);

  // The section that LoadData selects: the lowest one that is offered, or else 0.
  [[nodiscard]] virtual int FirstSection() const;
  // As LoadData found it.
  [[nodiscard]] bool IsOffered(int index) const;
  void showEvent(QShowEvent* event) override;

 private:
  void Open(int index);
  void Load(int index);
  void TakeIn(int index, Page& page);
  void ShowWaiting();
  [[nodiscard]] const Section& section(int index) const;
  [[nodiscard]] bool AskOffered(int index) const;

  NotOffered notOffered_;
  QVBoxLayout* stack_ = nullptr;
  std::vector<Section> sections_;
  std::vector<int> loaded_;
  std::vector<bool> offered_;
  Page* shown_ = nullptr;
  int waiting_ = -1;  // opened, and to be made when this page is shown
};

}  // namespace mortane
