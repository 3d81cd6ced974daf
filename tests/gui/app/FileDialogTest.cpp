// The dialogs that ask for a file.
#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <filesystem>

#include "AppRig.h"
#include "app/QtPrompts.h"
#include "app/RecentFiles.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

constexpr char kFilter[] = "XML File (*.xml)|*.xml";
const FileQuestion kToOpen{kFileOpenFlags, kFilter, ".xml"};
const FileQuestion kToSave{kFileSaveFlags, kFilter, ".xml"};

// Gives a name and presses the Enter key.
void Type(QFileDialog& dialog, const std::string& path) {
  auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
  EXPECT_EQ(name->text(), "");
  name->setText(QString::fromStdString(path));
  QTest::keyClick(name, Qt::Key_Return);
}

TEST(FileToOpen, MustExistAndStartsWithNoName) {
  QtPrompts prompts{[](int) {}};
  const TempFolder folder;
  const std::string path = folder.Write("settings.xml", "<Setup/>");
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.windowTitle(), "Open");
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(dialog.nameFilters(), QStringList{"XML File (*.xml)"});
    Type(dialog, path);
  });
  EXPECT_EQ(prompts.AskFileToOpen(kToOpen), path);
}

TEST(FileToOpen, CancelledIsNoName) {
  QtPrompts prompts{[](int) {}};
  const WhenShown<QFileDialog> person([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(prompts.AskFileToOpen(kToOpen), "");
}

TEST(FileToOpen, OfAWindowThatEndsIsNoName) {
  QtPrompts prompts{[](int) {}};
  auto* window = new QWidget;
  window->show();
  window->activateWindow();
  QApplication::processEvents();
  const WhenShown<QFileDialog> end([window](QFileDialog&) { delete window; });
  EXPECT_EQ(prompts.AskFileToOpen(kToOpen), "");
}

struct NameCase {
  const char* typed;
  const char* saved;
};

class FileToSave : public testing::TestWithParam<NameCase> {};

TEST_P(FileToSave, GetsItsExtensionOnce) {
  QtPrompts prompts{[](int) {}};
  const TempFolder folder;
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Save As");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    Type(dialog, folder.Path(GetParam().typed));
  });
  EXPECT_EQ(prompts.AskFileToSave(kToSave), folder.Path(GetParam().saved));
}

INSTANTIATE_TEST_SUITE_P(Names, FileToSave,
                         testing::Values(NameCase{"lab", "lab.xml"}, NameCase{"lab.xml", "lab.xml"},
                                         NameCase{"lab 2 \xC3\xA9.xml", "lab 2 \xC3\xA9.xml"}));

TEST(FileThatIsThere, IsWrittenOverUnaskedWhereTheQuestionHasNoFlagForThat) {
  QtPrompts prompts{[](int) {}};
  const TempFolder folder;
  const std::string path = folder.Write("lab.xml", "<Setup/>");
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    const bool unasked = dialog.testOption(QFileDialog::DontConfirmOverwrite);
    EXPECT_TRUE(unasked);
    if (!unasked) return dialog.reject();  // rather than wait for an answer
    Type(dialog, path);
  });
  EXPECT_EQ(prompts.AskFileToSave({dialogflag::kPathMustExist, kFilter, ".xml"}), path);
}

TEST(FolderToSaveIn, ThatIsNotThereIsRefusedAndAskedAgain) {
  QtPrompts prompts{[](int) {}};
  const TempFolder folder;
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    const WhenShown<QMessageBox> reader([&](QMessageBox& box) {
      EXPECT_TRUE(box.text().startsWith(QString::fromStdString(folder.Path("missing"))))
          << box.text().toStdString();
      box.accept();
    });
    Type(dialog, folder.Path("missing/lab.xml"));
    EXPECT_TRUE(dialog.isVisible());
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_EQ(name->text().toStdString(), folder.Path("missing/lab.xml"));
    name->clear();
    Type(dialog, folder.Path("lab.xml"));
  });
  EXPECT_EQ(prompts.AskFileToSave(kToSave), folder.Path("lab.xml"));
}

TEST(FolderToSaveIn, MayBeAnyWhereTheQuestionDoesNotAskForOneThatIsThere) {
  QtPrompts prompts{[](int) {}};
  const TempFolder folder;
  const WhenShown<QFileDialog> person(
      [&](QFileDialog& dialog) { Type(dialog, folder.Path("missing/lab.xml")); });
  EXPECT_EQ(prompts.AskFileToSave({2, kFilter, ".xml"}), folder.Path("missing/lab.xml"));
}

// Folders in which the two dialogs begin, and what is answered there.
class FolderUsedLast : public testing::Test {
 protected:
  FolderUsedLast() {
    for (const char* name : {"a", "b"}) std::filesystem::create_directory(folder.Path(name));
    folder.Write("b/lab.xml", "<Setup/>");
  }
  // Where the toolkit begins by itself, which depends on the dialogs that the process has shown.
  static std::string FolderOfToolkit() { return FolderOf(QFileDialog()); }
  // An empty path is a dialog that is cancelled.
  std::string Open(const std::string& path) {
    return Ask(path, [this] { return prompts.AskFileToOpen(kToOpen); });
  }
  std::string Save(const std::string& path) {
    return Ask(path, [this] { return prompts.AskFileToSave(kToSave); });
  }

  TempFolder folder;
  QtPrompts prompts{[](int) {}};

 private:
  static std::string FolderOf(const QFileDialog& dialog) {
    return QDir::toNativeSeparators(dialog.directory().absolutePath()).toStdString();
  }
  std::string Ask(const std::string& path, const std::function<std::string()>& ask) {
    std::string begun;
    const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
      begun = FolderOf(dialog);
      if (path.empty()) {
        dialog.reject();
      } else {
        Type(dialog, path);
      }
    });
    EXPECT_EQ(ask(), path);
    return begun;
  }
};

TEST_F(FolderUsedLast, IsWhereTheNextDialogBeginsOfEitherKind) {
  const std::string own = FolderOfToolkit();
  EXPECT_EQ(Save(folder.Path("a/lab.xml")), own);
  EXPECT_EQ(Open(folder.Path("b/lab.xml")), folder.Path("a"));
  EXPECT_EQ(Open(""), folder.Path("b"));
  EXPECT_EQ(Save(""), folder.Path("b")) << "a cancelled dialog has used none";
}

TEST_F(FolderUsedLast, ThatIsGoneIsForgotten) {
  Save(folder.Path("a/lab.xml"));
  std::filesystem::remove_all(folder.Path("a"));
  EXPECT_EQ(Open(""), FolderOfToolkit());
}

// Dialogs of sessions that remember their files in one place.
class RememberedFiles : public testing::Test {
 protected:
  QtPrompts Session() const {
    return QtPrompts([](int) {}, RecentFiles(place, QString::fromStdString(documents)));
  }
  // The paths that the side bar offers.
  static QStringList Offered(const QFileDialog& dialog) {
    QStringList files;
    const auto* list = dialog.findChild<QListWidget*>("RecentFiles");
    for (int i = 0; list != nullptr && i < list->count(); ++i)
      files.append(list->item(i)->toolTip());
    return files;
  }
  std::string Settings(const std::string& name) { return folder.Write(name, "<Setup/>"); }

  TempFolder folder;
  std::string place = folder.Path("not/yet/there/Window.ini");
  std::string documents = folder.Path("");
};

TEST_F(RememberedFiles, AreTheLastEightOfAllSessionsTheLastOneFirst) {
  QStringList wanted;
  for (int i = 0; i < 10; ++i) {
    const std::string path = Settings(std::to_string(i) + ".xml");
    QtPrompts session = Session();
    const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
      EXPECT_EQ(Offered(dialog), wanted.first(qMin(wanted.size(), qsizetype{8})));
      Type(dialog, path);
    });
    EXPECT_EQ(session.AskFileToOpen(kToOpen), path);
    wanted.prepend(QString::fromStdString(path));
  }
}

TEST_F(RememberedFiles, ComeUpToTheFrontWhenTheyAreChosenAgain) {
  RecentFiles recent(place, {});
  for (const char* name : {"/a.xml", "/ b \".xml", "/a.xml"}) recent.Add(name);
  EXPECT_EQ(RecentFiles(place, {}).Files(), (QStringList{"/a.xml", "/ b \".xml"}));
}

TEST_F(RememberedFiles, OfAProgramThatRunsMeanwhileAreKept) {
  RecentFiles one(place, {});
  RecentFiles other(place, {});
  one.Add("/one.xml");
  other.Add("/other.xml");
  EXPECT_EQ(RecentFiles(place, {}).Files(), (QStringList{"/other.xml", "/one.xml"}));
}

TEST_F(RememberedFiles, StandBesideThePlaceOfTheWindow) {
  std::filesystem::create_directories(folder.Path("not/yet/there"));
  folder.Write("not/yet/there/Window.ini", "[MortaneMainForm]\nGeometry=01\n");
  RecentFiles(place, {}).Add("/a.xml");
  EXPECT_TRUE(TempFolder::Read(place).starts_with("[MortaneMainForm]\nGeometry=01\n"));
}

TEST_F(RememberedFiles, ThatCannotBeWrittenDownAreKnownToTheSession) {
  folder.Write("taken", "");
  RecentFiles recent(folder.Path("taken/Window.ini"), {});
  recent.Add("/a.xml");
  EXPECT_EQ(recent.Files(), QStringList{"/a.xml"});
}

TEST_F(RememberedFiles, OfAnotherKindAreNotOffered) {
  QtPrompts session = Session();
  const std::string record = folder.Path("record.html");
  {
    const WhenShown<QFileDialog> person([&](QFileDialog& dialog) { Type(dialog, record); });
    EXPECT_EQ(session.AskFileToSave({kFileSaveFlags, "HTML File (*.html)|*.html", ".html"}),
              record);
  }
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(Offered(dialog), QStringList());
    dialog.reject();
  });
  session.AskFileToOpen(kToOpen);
}

TEST_F(RememberedFiles, AreChosenByAClickAndTheEnterKeyOpensThem) {
  std::filesystem::create_directory(folder.Path("a"));
  const std::string first = Settings("a/first.xml");
  const std::string second = Settings("second.xml");
  RecentFiles(place, {}).Add(QString::fromStdString(first));
  RecentFiles(place, {}).Add(QString::fromStdString(second));
  QtPrompts session = Session();
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    auto* list = dialog.findChild<QListWidget*>("RecentFiles");
    EXPECT_EQ(list->item(1)->text(), "first.xml");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "first.xml");
    EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder.Path("a"));
    QTest::keyClick(list, Qt::Key_Return);
  });
  EXPECT_EQ(session.AskFileToOpen(kToOpen), first);
}

TEST_F(RememberedFiles, AreOpenedByADoubleClick) {
  const std::string path = Settings("lab.xml");
  RecentFiles(place, {}).Add(QString::fromStdString(path));
  QtPrompts session = Session();
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    auto* list = dialog.findChild<QListWidget*>("RecentFiles");
    const QPoint at = list->visualItemRect(list->item(0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
  });
  EXPECT_EQ(session.AskFileToOpen(kToOpen), path);
}

TEST_F(RememberedFiles, ThatAreGoneAreRefusedAsATypedNameIs) {
  RecentFiles(place, {}).Add(QString::fromStdString(folder.Path("gone.xml")));
  QtPrompts session = Session();
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    const WhenShown<QMessageBox> reader([](QMessageBox& box) { box.accept(); });
    auto* list = dialog.findChild<QListWidget*>("RecentFiles");
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_EQ(session.AskFileToOpen(kToOpen), "");
}

TEST_F(RememberedFiles, AreAskedAboutOnceBeforeTheyAreWrittenOver) {
  const std::string path = Settings("lab.xml");
  RecentFiles(place, {}).Add(QString::fromStdString(path));
  QtPrompts session = Session();
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    int asked = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, &answer, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      ++asked;
      box->button(QMessageBox::No)->click();
    });
    answer.start(0);
    auto* list = dialog.findChild<QListWidget*>("RecentFiles");
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(asked, 1);
    dialog.reject();
  });
  EXPECT_EQ(session.AskFileToSave(kToSave), "");
}

TEST_F(RememberedFiles, TellTheFolderInWhichTheNextSessionBegins) {
  std::filesystem::create_directory(folder.Path("a"));
  documents = folder.Path("documents");
  EXPECT_EQ(RecentFiles(place, QString::fromStdString(documents)).Folder(), "") << "not there";
  std::filesystem::create_directory(documents);
  EXPECT_EQ(RecentFiles(place, QString::fromStdString(documents)).Folder().toStdString(),
            documents);
  RecentFiles(place, {}).Add(QString::fromStdString(folder.Path("a/lab.xml")));
  EXPECT_EQ(RecentFiles(place, QString::fromStdString(documents)).Folder().toStdString(),
            folder.Path("a"));
  std::filesystem::remove_all(folder.Path("a"));
  EXPECT_EQ(RecentFiles(place, QString::fromStdString(documents)).Folder().toStdString(),
            documents);
}

TEST_F(RememberedFiles, BeginInTheDocumentsOfTheUser) {
  QtPrompts session = Session();
  const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir(QString::fromStdString(documents)));
    dialog.reject();
  });
  session.AskFileToOpen(kToOpen);
}

}  // namespace
}  // namespace mortane::test
