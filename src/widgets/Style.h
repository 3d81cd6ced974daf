// How the ordinary controls are drawn: Fusion with the grid and the palette of Theme.h.
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;

namespace mortane {

class AltKeys;

// Every colour comes from the palette of the control or from Theme.h, so that one style serves both
// palettes, the disabled group too, which a style sheet cannot name.
class Style : public QProxyStyle {
  Q_OBJECT

 public:
  Style();

  using QProxyStyle::polish;
  void polish(QWidget* widget) override;
  using QProxyStyle::unpolish;
  void unpolish(QWidget* widget) override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                       SubControl subControl, const QWidget* widget) const override;

 private:
  void DrawOption(const QStyleOptionButton& option, bool radio, QPainter& painter,
                  const QWidget* widget) const;
  void DrawComboBox(const QStyleOptionComplex& option, QPainter& painter) const;
  void DrawScrollBar(const QStyleOptionComplex& option, QPainter& painter,
                     const QWidget* widget) const;

  AltKeys* altKeys_;
};

}  // namespace mortane
