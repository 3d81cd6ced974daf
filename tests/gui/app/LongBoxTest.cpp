// Boxes whose text is longer than the screen is high.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include "AppRig.h"
#include "app/QtPrompts.h"

namespace mortane::test {
namespace {

std::string Lines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) {
    if (i > 1) text += "\r\n";
    text += "Line " + std::to_string(i);
  }
  return text;
}

// Shows the text in a box while `look` runs; the Enter key then answers it.
void Show(const std::string& text, const std::function<void(QMessageBox&)>& look) {
  QtPrompts prompts{[](int) {}};
  const WhenShown<QMessageBox> person([&](QMessageBox& box) {
    look(box);
    QTest::keyClick(box.defaultButton(), Qt::Key_Return);
  });
  EXPECT_EQ(prompts.MsgBox(text, box::kCritical, "Send"), Answer::Ok);
}

QPlainTextEdit* Scrolling(QMessageBox& box) {
  return box.findChild<QPlainTextEdit*>();
}

TEST(BoxText, OfAFewLinesDoesNotScroll) {
  Show(Lines(5), [](QMessageBox& box) { EXPECT_EQ(Scrolling(box), nullptr); });
}

// As Windows' own boxes do.
TEST(BoxText, IsCopiedWithItsTitle) {
  for (const int lines : {1, 200}) {
    Show(Lines(lines), [lines](QMessageBox& box) {
      EXPECT_EQ(box.focusWidget(), box.defaultButton());
      QTest::keyClick(box.defaultButton(), Qt::Key_C, Qt::ControlModifier);
      const QString copied = QGuiApplication::clipboard()->text();
      EXPECT_TRUE(copied.startsWith("Send\n\nLine 1")) << lines;
      EXPECT_TRUE(copied.endsWith(QString("Line %1").arg(lines))) << lines;
    });
  }
}

TEST(BoxText, IsSelectedAndCopiedByKeyboard) {
  for (const int lines : {3, 200}) {
    Show(Lines(lines), [lines](QMessageBox& box) {
      QTest::keyClick(box.defaultButton(), Qt::Key_A, Qt::ControlModifier);
      QTest::keyClick(box.defaultButton(), Qt::Key_C, Qt::ControlModifier);
      const QString copied = QGuiApplication::clipboard()->text();
      EXPECT_TRUE(copied.startsWith("Line 1\n")) << lines;
      EXPECT_EQ(copied.count(QChar(10)), lines - 1);
    });
  }
}

TEST(BoxText, CanBeSelectedByTheMouseAndByTheKeyboard) {
  Show("DIA Lamp", [](QMessageBox& box) {
    EXPECT_EQ(box.textInteractionFlags(), Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  });
}

TEST(BoxText, OfAWordLeavesRoomForTheTitle) {
  Show("Stop", [](QMessageBox& box) {
    const int bar = box.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &box);
    EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()) + 4 * bar);
  });
}

// The words of the program's own boxes, from one to those that are broken into lines.
TEST(BoxText, IsShownWhole) {
  for (const char* text :
       {"Stop", "This application runs Simulated Microscope.",
        "Please restart this application after the microscope was switched off and on again.",
        "One line\nand a second line that is a good deal longer than the title of the box"}) {
    Show(text, [&](QMessageBox& box) {
      const auto& label = *box.findChild<QLabel*>("qt_msgbox_label");
      EXPECT_GE(label.width(), label.minimumSizeHint().width()) << text;
      EXPECT_GE(label.height(), label.heightForWidth(label.width())) << text;
      EXPECT_TRUE(box.rect().contains(label.geometry())) << text;
    });
  }
}

class LongBox : public testing::TestWithParam<std::string> {};

TEST_P(LongBox, FitsTheScreenAndScrolls) {
  Show(GetParam(), [](QMessageBox& box) {
    const QSize room = box.screen()->availableSize();
    EXPECT_LE(box.width(), room.width());
    EXPECT_LE(box.height(), room.height());
    ASSERT_NE(Scrolling(box), nullptr);
    EXPECT_GT(Scrolling(box)->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Scrolling(box)->horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(box.rect().contains(Scrolling(box)->geometry()));
    for (QAbstractButton* button : box.buttons()) {
      const QRect place(button->mapTo(&box, QPoint(0, 0)), button->size());
      EXPECT_TRUE(box.rect().contains(place));
      EXPECT_FALSE(Scrolling(box)->geometry().intersects(place));
    }
  });
}

// The last one's lines are few and have to be broken.
INSTANTIATE_TEST_SUITE_P(Texts, LongBox, testing::Values(Lines(60), Lines(1000), Lines(5000), [] {
                           std::string words;
                           for (int i = 0; i < 800; ++i) words += "objective ";
                           return words + "\r\n" + words;
                         }()));

TEST(ScrollingBox, ShowsItsWholeTextAndLetsItBeCopied) {
  const std::string text = Lines(1000);
  Show(text, [&](QMessageBox& box) {
    QPlainTextEdit& edit = *Scrolling(box);
    QString expected = QString::fromStdString(text).remove('\r');
    EXPECT_EQ(edit.toPlainText(), expected);
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), expected);
    QTest::keyClick(&edit, Qt::Key_X);
    EXPECT_EQ(edit.toPlainText(), expected) << "it cannot be changed";
    QTest::keyClick(&edit, Qt::Key_Tab);
    EXPECT_EQ(box.focusWidget(), box.defaultButton()) << "the Tab key leaves it";
  });
}

TEST(ScrollingBox, TellsItsTitleAsTheNameOfItsText) {
  Show(Lines(1000), [](QMessageBox& box) {
    EXPECT_EQ(Scrolling(box)->accessibleName(), "Send");
    auto* told = QAccessible::queryAccessibleInterface(Scrolling(box));
    EXPECT_EQ(told->text(QAccessible::Name), "Send");
  });
}

TEST(ScrollingBox, BeginsAtItsTopWithTheFocusOnTheButton) {
  Show(Lines(1000), [](QMessageBox& box) {
    EXPECT_EQ(Scrolling(box)->verticalScrollBar()->value(), 0);
    EXPECT_EQ(box.focusWidget(), box.defaultButton());
  });
}

struct MoreRow {
  int lines;
  const char* last;
};

class ManyLines : public testing::TestWithParam<MoreRow> {};

TEST_P(ManyLines, ShowAThousandAndHowManyMoreThereAre) {
  Show(Lines(GetParam().lines), [](QMessageBox& box) {
    const QStringList shown = Scrolling(box)->toPlainText().split('\n');
    EXPECT_EQ(shown[999], "Line 1000");
    EXPECT_EQ(shown.back(), GetParam().last);
    EXPECT_LE(shown.size(), 1001);
  });
}

INSTANTIATE_TEST_SUITE_P(Counts, ManyLines,
                         testing::Values(MoreRow{1000, "Line 1000"}, MoreRow{1001, "(1 more line)"},
                                         MoreRow{1002, "(2 more lines)"},
                                         MoreRow{100000, "(99000 more lines)"}));

}  // namespace
}  // namespace mortane::test
