// The main window: six pages, and the commands that move their data.
#pragma once

#include <QMainWindow>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/FormServices.h"
#include "app/PageTable.h"
#include "common/Prompts.h"

class QAction;
class QFrame;
class QLabel;
class QMenu;
class QRadioButton;
class QStatusBar;
class QToolBar;

namespace mortane {

class CommandKey;
class CondenserSettingsCtl;
class FilterQubeSettingsCtl;
class ObjectiveSettingsCtl;
class PageButton;
class ProgressLine;
class Rail;
class Page;
class clsK70;
class SystemSettingsCtl;

// Made once by the program, which calls Load and shows it. The first activation connects a
// microscope; when there is none to be had, the window closes itself.
class MortaneMainForm : public QMainWindow {
 public:
  explicit MortaneMainForm(const FormServices& services, const PageTable& pages = MainPages());

  // Brings the controls to their first state. A step that fails is shown and ends the loading;
  // the window can be shown all the same.
  void Load();

  // Asks nothing, other than the close box.
  void Unload();

  QMenu* MenuFile;
  QAction* MenuFileOpen;
  QAction* MenuFileSave;
  QAction* MenuSeparator;
  QAction* FileMenuExit;
  QMenu* MenuConnect;
  QAction* MenuConnectSelect;
  QAction* MenuConnectReceive;
  QAction* MenuConnectSend;
  QToolBar* Toolbar1;
  QWidget* Picture2;
  std::array<CommandKey*, 4> ImageCommand;
  Rail* PictureMenu;
  std::array<PageButton*, kPageCount> ImageButton;
  QFrame* FrameOptionButton;
  std::array<QRadioButton*, kPageCount> optMenu;
  QFrame* FrameControl;
  SystemSettingsCtl* SystemSettingsCtl1 = nullptr;
  ObjectiveSettingsCtl* ObjectiveSettingsCtl1 = nullptr;
  FilterQubeSettingsCtl* FilterQubeSettingsCtl1 = nullptr;
  CondenserSettingsCtl* CondenserSettingsCtl1 = nullptr;
  QStatusBar* StatusBar1;
  FileQuestion CommonDialog1;

  // The line that shows how far a transfer is.
  ProgressLine* Progress() const { return progress_; }

 protected:
  // One step of Load; `step` counts from 0 to 6.
  virtual void LoadStep(int step);

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  using Command = void (MortaneMainForm::*)();

  QAction* AddMenuItem(QMenu& menu, const char* name, const QString& text, Command command);
  void BuildMenus();
  void BuildToolbar();
  void BuildRail(const PageTable& pages);
  void BuildCommandBar();
  void BuildPages(const PageTable& pages, clsK70& k70);
  void BuildStatusBar();
  void StackPages();
  void Arrange();

  void Start();
  void FirstActivation();
  void RefreshPages();
  void OnMenuChanged(std::size_t index);
  void ShowPage(Page* page);
  void SaveCurrentPage();
  void LoadAllPages();
  std::int16_t AskDevice();
  Answer AskExit();

  void RunCommand(Command command);
  void OnToolbarButton(int position);
  void DoOpen();
  void DoSave();
  void DoExit();
  void AskAndUnload();
  void DoSelect();
  void DoReceive();
  void DoSend();
  void EnableTransfers(bool enabled);

  controller::ControllerLibrary& library_;
  Prompts& prompts_;
  std::vector<std::string> arguments_;
  std::array<Page*, kPageCount> pages_{};
  std::array<std::function<bool(const clsK70&)>, kPageCount> isPageEnabled_;
  QLabel* versionPanel_ = nullptr;
  ProgressLine* progress_ = nullptr;
  bool started_ = false;
  bool commandRunning_ = false;
  Page* currentPage_ = nullptr;
};

}  // namespace mortane
