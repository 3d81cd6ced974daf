// The main window: six pages, and the commands that move their data.
#pragma once

#include <array>

#include "app/PageTable.h"
#include "app/ProgramForm.h"
#include "app/SessionNote.h"
#include "widgets/Control.h"

class QAction;
class QFrame;
class QMenu;
class QRadioButton;
class QToolBar;

namespace mortane {

class CommandKey;
class CondenserSettingsCtl;
class ControlSettingsCtl;
class FilterQubeSettingsCtl;
class InterlockSettingsCtl;
class ObjectiveSettingsCtl;
class PageButton;
class Rail;
class Page;
class PageArea;
class SystemSettingsCtl;
struct FileResult;

class MortaneMainForm : public ProgramForm {
 public:
  explicit MortaneMainForm(const FormServices& services, const PageTable& pages);

  // A step that fails is shown and ends the loading; the window can be shown all the same.
  void Load() override;

  Control<QMenu> MenuFile{"MenuFile"};
  Control<QAction> MenuFileOpen{"MenuFileOpen"};
  Control<QAction> MenuFileSave{"MenuFileSave"};
  Control<QAction> MenuSeparator{"MenuSeparator"};
  Control<QAction> FileMenuExit{"FileMenuExit"};
  Control<QMenu> MenuConnect{"MenuConnect"};
  Control<QAction> MenuConnectSelect{"MenuConnectSelect"};
  Control<QAction> MenuConnectReceive{"MenuConnectReceive"};
  Control<QAction> MenuConnectSend{"MenuConnectSend"};
  Control<QToolBar> Toolbar1{"Toolbar1"};
  Control<QWidget> Picture2{"Picture2"};
  Controls<CommandKey, 4> ImageCommand{"ImageCommand"};
  Control<Rail> PictureMenu{"PictureMenu"};
  Controls<PageButton, kPageCount> ImageButton{"ImageButton"};
  Control<QFrame> FrameOptionButton{"FrameOptionButton"};
  Controls<QRadioButton, kPageCount> optMenu{"optMenu"};
  Control<QFrame> FrameControl{"FrameControl"};
  Control<SystemSettingsCtl> SystemSettingsCtl1{"SystemSettingsCtl1"};
  Control<ObjectiveSettingsCtl> ObjectiveSettingsCtl1{"ObjectiveSettingsCtl1"};
  Control<FilterQubeSettingsCtl> FilterQubeSettingsCtl1{"FilterQubeSettingsCtl1"};
  Control<CondenserSettingsCtl> CondenserSettingsCtl1{"CondenserSettingsCtl1"};
  Control<InterlockSettingsCtl> InterlockSettingsCtl1{"InterlockSettingsCtl1"};
  Control<ControlSettingsCtl> ControlSettingsCtl1{"ControlSettingsCtl1"};

 protected:
  // One step of Load; `step` counts from 0 to 6.
  virtual void LoadStep(int step);

  void OnConnected(Outcome received) override;
  // A settings file is opened as by Open; nothing else is taken.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void ShowPending(const std::vector<ItemChange>& changes) override;
  [[nodiscard]] QString Chapter() const override;

 private:
  using Command = void (MortaneMainForm::*)();

  QAction* AddMenuItem(QMenu& menu, const QString& text, Command command);
  void BuildMenus();
  void BuildToolbar();
  void BuildRail();
  void BuildCommandBar();
  void BuildPages(const FormServices& services);
  void Arrange();

  void RefreshPages();
  void EnablePage(std::size_t index, bool enabled, const QString& whyDisabled);
  void OnMenuChanged(std::size_t index);
  // The page of the option that is selected; nullptr for none.
  [[nodiscard]] Page* CurrentPage() const;
  void SaveCurrentPage();
  void LoadAllPages();

  void Run(Command command);
  void OnToolbarButton(int position);
  void DoOpen();
  void DoSave();
  void DoExit();
  void DoSelect();
  void DoReceive();
  void DoSend();
  void DoShowPending();
  void GoTo(const ItemChange& change);
  void SaveRecord();
  void TakeOpened(const FileResult& file);
  void OpenDropped(const std::string& path);
  void ShowStored();
  void EnableTransfers(bool enabled);

  void NoteConnection();
  void NoteTransfer(SessionNote::Act act, Outcome outcome, const QString& remark = {});
  void NoteFile(SessionNote::Act act, const FileResult& file);

  PageTable table_;
  std::array<Page*, kPageCount> pages_{};
  Control<SessionNote> note_{"SessionNote"};
  Control<PageArea> area_{"ScrollControl"};
};

}  // namespace mortane
