#include "widgets/LateIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace mortane {
namespace {

class LateIconEngine : public QIconEngine {
 public:
  explicit LateIconEngine(std::function<QIcon()> make) : make_(std::move(make)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return icon().pixmap(size, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return icon().actualSize(size, mode, state);
  }
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
    return icon().availableSizes(mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new LateIconEngine(*this); }

 private:
  const QIcon& icon() {
    if (make_) icon_ = std::exchange(make_, nullptr)();
    return icon_;
  }

  std::function<QIcon()> make_;  // none once it is made
  QIcon icon_;
};

}  // namespace

QIcon LateIcon(std::function<QIcon()> make) {
  return QIcon(new LateIconEngine(std::move(make)));
}

}  // namespace mortane
