// The dialogs that ask for a file.
#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <filesystem>

#include "AppRig.h"
#include "app/QtPrompts.h"
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
  std::string Ask(const std::string& path, const std::function<std::string()>& ask) {
    std::string begun;
    const WhenShown<QFileDialog> person([&](QFileDialog& dialog) {
      begun = QDir::toNativeSeparators(dialog.directory().absolutePath()).toStdString();
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
  const std::string first = Save(folder.Path("a/lab.xml"));
  EXPECT_EQ(first, QDir::toNativeSeparators(QDir::currentPath()).toStdString());
  EXPECT_EQ(Open(folder.Path("b/lab.xml")), folder.Path("a"));
  EXPECT_EQ(Open(""), folder.Path("b"));
  EXPECT_EQ(Save(""), folder.Path("b")) << "a cancelled dialog has used none";
}

TEST_F(FolderUsedLast, ThatIsGoneIsForgotten) {
  Save(folder.Path("a/lab.xml"));
  std::filesystem::remove_all(folder.Path("a"));
  EXPECT_EQ(Open(""), QDir::toNativeSeparators(QDir::currentPath()).toStdString());
}

}  // namespace
}  // namespace mortane::test
