// A letter that is held with the Alt key, by real key events.
#include <QLabel>
#include <QPlainTextEdit>

#include "gui/support/TestWindow.h"
#include "widgets/ComboBox.h"
#include "widgets/ListBox.h"
#include "widgets/TextField.h"

namespace mortane {
namespace {

// Tells of the keys that no control has taken.
class KeyWindow : public QWidget {
 public:
  using QWidget::QWidget;
  int keys = 0;

 protected:
  void keyPressEvent(QKeyEvent* event) override { keys += event->text().isEmpty() ? 0 : 1; }
};

struct FieldRow {
  const char* name;
  QWidget* (*make)(QWidget* parent);
  QString (*shown)(const QWidget* field);
};

std::ostream& operator<<(std::ostream& stream, const FieldRow& row) {
  return stream << row.name;
}

template <typename Field>
QWidget* MakeField(QWidget* parent) {
  auto* field = new Field(parent);
  field->setText("Harbour");
  return field;
}

template <typename Field>
QString TextOf(const QWidget* field) {
  return static_cast<const Field*>(field)->text();
}

QWidget* MakeCombo(QWidget* parent) {
  auto* combo = new ComboBox(parent);
  for (const char* text : {"Harbour", "Pair", "Position"}) combo->addRow(QLatin1String(text));
  combo->setIndex(0);
  return combo;
}

QWidget* MakeList(QWidget* parent) {
  auto* list = new ListBox(parent);
  for (const char* text : {"Harbour", "Pair", "Position"}) list->addRow(QLatin1String(text));
  list->setIndex(0);
  return list;
}

QWidget* MakeReport(QWidget* parent) {
  auto* report = new QPlainTextEdit("Harbour", parent);
  report->setReadOnly(true);
  return report;
}

const FieldRow kFields[] = {
    {"TextField", MakeField<TextField>, TextOf<TextField>},
    {"LineEdit", MakeField<QLineEdit>, TextOf<QLineEdit>},
    {"Text", [](QWidget* parent) -> QWidget* { return new QPlainTextEdit("Harbour", parent); },
     [](const QWidget* field) { return static_cast<const QPlainTextEdit*>(field)->toPlainText(); }},
    {"Report", MakeReport,
     [](const QWidget* field) { return static_cast<const QPlainTextEdit*>(field)->toPlainText(); }},
    {"ComboBox", MakeCombo,
     [](const QWidget* field) { return static_cast<const ComboBox*>(field)->currentText(); }},
    {"ListBox", MakeList,
     [](const QWidget* field) {
       const auto* list = static_cast<const ListBox*>(field);
       return list->text(list->index());
     }},
};

class AltKeysOn : public testing::TestWithParam<FieldRow> {
 protected:
  void SetUp() override {
    field = GetParam().make(&window);
    auto* column = new QVBoxLayout(&window);
    column->addWidget(field);
    other = new QLineEdit(&window);
    column->addWidget(other);
    auto* label = new QLabel("&Mark", &window);
    label->setBuddy(other);
    column->addWidget(label);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();
  }

  void Type(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(field, key, modifiers);
  }
  QString shown() const { return GetParam().shown(field); }

  KeyWindow window;
  QWidget* field = nullptr;
  QLineEdit* other = nullptr;
};

TEST_P(AltKeysOn, ALetterWithAltChangesNothingAndGoesOnToTheWindow) {
  int keys = 0;
  for (const Qt::KeyboardModifiers held :
       {Qt::KeyboardModifiers(Qt::AltModifier), Qt::AltModifier | Qt::ShiftModifier}) {
    for (const Qt::Key key : {Qt::Key_P, Qt::Key_7, Qt::Key_Period}) {
      Type(key, held);
      EXPECT_EQ(shown(), "Harbour") << key;
      EXPECT_EQ(window.keys, ++keys) << key;
    }
  }
}

TEST_P(AltKeysOn, AMnemonicStillActs) {
  Type(Qt::Key_M, Qt::AltModifier);
  EXPECT_TRUE(other->hasFocus());
  EXPECT_EQ(shown(), "Harbour");
}

INSTANTIATE_TEST_SUITE_P(Fields, AltKeysOn, testing::ValuesIn(kFields),
                         [](const auto& row) { return std::string(row.param.name); });

// As the third character of a key comes on some systems.
TEST(AltKeys, LeaveALetterAloneThatIsHeldWithTheControlKeyToo) {
  TestWindow window;
  auto* field = window.Add<TextField>();
  window.Show();
  field->setFocus();
  QKeyEvent key(QEvent::KeyPress, Qt::Key_At, Qt::AltModifier | Qt::ControlModifier, "@");
  QApplication::sendEvent(field, &key);
  EXPECT_EQ(field->text(), "@");
}

}  // namespace
}  // namespace mortane
