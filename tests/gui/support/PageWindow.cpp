#include "gui/support/PageWindow.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

namespace mortane::test {

using namespace Qt::StringLiterals;
namespace {

// The room that a page has in the main window at its design size.
constexpr QSize kPageRoom{1048, 560};
constexpr int kMostStops = 100;

}  // namespace

void PageWindow::ShowPage(Page* page) {
  auto* column = new QVBoxLayout(window_.get());
  column->setContentsMargins({});
  column->addWidget(page);
  elsewhere_ = new QPushButton(u"elsewhere"_s);
  elsewhere_->setObjectName("elsewhere");
  column->addWidget(elsewhere_);
  window_->resize(kPageRoom);
  page->LoadData();
  window_->show();
  window_->activateWindow();
  QApplication::processEvents();
}

QWidget* PageWindow::FindWidget(std::string_view name) {
  const QString wanted = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  if (auto* found = window_->findChild<QWidget*>(wanted)) return found;
  std::string message = "no control " + std::string(name) + "; there are:";
  for (const QWidget* child : window_->findChildren<QWidget*>()) {
    if (!child->objectName().isEmpty()) message += " " + child->objectName().toStdString();
  }
  throw std::runtime_error(message);
}

std::vector<std::string> PageWindow::TabOrder() {
  std::vector<std::string> names;
  elsewhere_->setFocus();
  for (int i = 0; i < kMostStops; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QWidget* stop = QApplication::focusWidget();
    if (stop == elsewhere_) return names;
    names.push_back(stop->objectName().toStdString());
  }
  ADD_FAILURE() << "the Tab key never comes back";
  return names;
}

}  // namespace mortane::test
