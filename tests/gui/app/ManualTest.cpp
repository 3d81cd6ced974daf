// The manual: which chapter opens from where, and what is said where none can.
#include "app/Manual.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDir>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QTextBrowser>
#include <QToolButton>
#include <filesystem>

#include "AppRig.h"
#include "app/MainPages.h"
#include "app/SessionNote.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

// Stands in for the desktop's browser while it lives.
class Browser : public QTextBrowser {
 public:
  Browser() { QDesktopServices::setUrlHandler("file", this, "setSource"); }
  ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }
  // What was opened since the last question.
  QString Opened() {
    QString opened = source().toLocalFile();
    setSource({});
    return opened;
  }
};

// A started window whose manual has all chapters.
class Manual : public testing::Test {
 protected:
  Manual() {
    for (const PageRow& row : MainPages()) {
      folder_.Write((row.chapter + ".html").toStdString(), "<p>A chapter.</p>");
    }
    Start(std::filesystem::path(folder_.Path("system.html")).parent_path().string());
  }
  ~Manual() override {
    form_.reset();
    ReleaseK70();
  }
  void Start(const std::string& manual) {
    form_.reset();
    clsK70& k70 = ProvideK70(library_.library, library_.prompts);
    FormServices services{k70, library_.library, library_.prompts, joystick_, {"mortane"}};
    services.manualFolder = manual;
    form_ = std::make_unique<MortaneMainForm>(services, fakes_.Table());
    form_->Load();
    form_->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return form_->IsStarted(); }));
    form_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    prompts().ClearRecords();
  }
  ScriptedPrompts& prompts() { return library_.prompts; }
  void PressF1() { QTest::keyClick(form_.get(), Qt::Key_F1); }
  static std::string Shown(const std::string& path) {
    return QDir::toNativeSeparators(QString::fromStdString(path)).toStdString();
  }
  std::string Chapter(const char* name) { return folder_.Path(std::string(name) + ".html"); }

  TempFolder folder_;
  FakePages fakes_;
  ScriptedJoystick joystick_;
  RigLibrary library_{benches::Named("Harbour")};
  std::unique_ptr<MortaneMainForm> form_;
};

TEST_F(Manual, OpensAtTheChapterOfThePageThatShows) {
  Browser browser;
  const PageTable pages = MainPages();
  for (std::size_t page = 0; page < kPageCount; ++page) {
    form_->optMenu[page]->setChecked(true);
    PressF1();
    EXPECT_EQ(browser.Opened().toStdString(), Chapter(pages[page].chapter.toUtf8())) << page;
  }
}

TEST_F(Manual, OpensByTheButtonBesideTheNote) {
  Browser browser;
  auto* button = form_->findChild<QToolButton*>("ButtonManual");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(), "?");
  EXPECT_TRUE(button->isVisible());
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(browser.Opened().toStdString(), Chapter("system"));
}

TEST_F(Manual, LeavesTheFieldAndTheMicroscopeAlone) {
  Browser browser;
  QLineEdit field(form_.get());
  field.show();
  field.setFocus();
  field.setText("half a na");
  library_.journal.Clear();
  PressF1();
  EXPECT_FALSE(browser.Opened().isEmpty());
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(field.text(), "half a na");
  EXPECT_TRUE(library_.journal.Lines().empty());
}

TEST_F(Manual, MissingOneIsToldWithItsPlace) {
  Browser browser;
  const std::string nowhere = folder_.Path("Geräte/none");
  Start(nowhere);
  prompts().ExpectBox(
      "The manual is not installed.\r\nIts place is " + Shown(nowhere + "/system.html"),
      box::kOk + box::kExclamation, Answer::Ok);
  PressF1();
  EXPECT_EQ(browser.Opened(), "");
}

TEST_F(Manual, OneThatNothingShowsIsToldWithItsPlace) {
  // The desktop's part in this process knows no browser.
  prompts().ExpectBox(
      "The manual cannot be shown.\r\nOpen it with a browser: " + Shown(Chapter("system")),
      box::kOk + box::kExclamation, Answer::Ok);
  PressF1();
}

TEST_F(Manual, HasNoPlaceInTheMenus) {
  for (const QAction* menu : form_->menuBar()->actions()) {
    for (const QAction* item : menu->menu()->actions()) EXPECT_TRUE(item->shortcut().isEmpty());
  }
  EXPECT_EQ(form_->menuBar()->actions().size(), 2);
}

TEST(ManualFolder, StandsBesideThePrograms) {
  const std::filesystem::path programs = QCoreApplication::applicationDirPath().toStdString();
#ifdef _WIN32
  const std::filesystem::path manual = programs / "manual";
#else
  const std::filesystem::path manual = programs / "../share/doc/mortane/manual";
#endif
  EXPECT_EQ(std::filesystem::path(ManualFolder()), manual.lexically_normal());
}

// The first line of a file names its chapter: "# Objectives {#objectives}".
TEST(ManualChapters, AreThoseThatPagesHave) {
  std::string headings;
  for (const auto& file : std::filesystem::directory_iterator(MORTANE_CHAPTERS)) {
    const std::string text = TempFolder::Read(file.path().string());
    headings += text.substr(0, text.find('\n') + 1);
  }
  for (const PageRow& row : MainPages()) {
    EXPECT_NE(headings.find(("{#" + row.chapter + "}\n").toStdString()), std::string::npos)
        << row.chapter.toStdString();
  }
}

}  // namespace
}  // namespace mortane::test
