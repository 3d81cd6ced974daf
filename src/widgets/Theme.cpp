#include "widgets/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QWidget>
#include <algorithm>
#include <array>

namespace mortane {
namespace {

struct RoleRow {
  QPalette::ColorRole role;
  QRgb light;
  QRgb dark;
};

constexpr std::array kRoles{
    RoleRow{QPalette::Window, 0xFFEDF0F4, 0xFF191D26},
    RoleRow{QPalette::WindowText, 0xFF1A2233, 0xFFE4E9F1},
    RoleRow{QPalette::Text, 0xFF1A2233, 0xFFE4E9F1},
    RoleRow{QPalette::ButtonText, 0xFF1A2233, 0xFFE4E9F1},
    RoleRow{QPalette::Base, 0xFFFFFFFF, 0xFF11151C},
    RoleRow{QPalette::AlternateBase, 0xFFF5F7FA, 0xFF181D27},
    RoleRow{QPalette::Button, 0xFFE3E8EF, 0xFF2B3240},
    RoleRow{QPalette::Light, 0xFFFFFFFF, 0xFF3B4455},
    RoleRow{QPalette::Midlight, 0xFFF3F5F8, 0xFF222833},
    RoleRow{QPalette::Mid, 0xFFC2CAD6, 0xFF3D4658},
    RoleRow{QPalette::Dark, 0xFF808B9E, 0xFF5A667C},
    RoleRow{QPalette::Shadow, 0xFF3C475C, 0xFF05070B},
    RoleRow{QPalette::Highlight, 0xFF25519C, 0xFF3767B8},
    RoleRow{QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    RoleRow{QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF},
    RoleRow{QPalette::Link, 0xFF1F4E9E, 0xFF8FB6F7},
    RoleRow{QPalette::LinkVisited, 0xFF5B3F8C, 0xFFB9A2EA},
    RoleRow{QPalette::PlaceholderText, 0xFF59657A, 0xFF8D98AC},
    RoleRow{QPalette::ToolTipBase, 0xFF101838, 0xFF2B3240},
    RoleRow{QPalette::ToolTipText, 0xFFF2F4F8, 0xFFF2F4F8},
};

constexpr std::array kDisabledRoles{
    RoleRow{QPalette::WindowText, 0xFF8A95A6, 0xFF636E82},
    RoleRow{QPalette::Text, 0xFF8A95A6, 0xFF636E82},
    RoleRow{QPalette::ButtonText, 0xFF8A95A6, 0xFF636E82},
    RoleRow{QPalette::PlaceholderText, 0xFF8A95A6, 0xFF636E82},
    RoleRow{QPalette::HighlightedText, 0xFF8A95A6, 0xFF636E82},
    RoleRow{QPalette::Highlight, 0xFFD9DEE6, 0xFF2B3240},
    RoleRow{QPalette::Base, 0xFFF1F3F6, 0xFF171B24},
};

struct ToneRow {
  Tone tone;
  QRgb light;
  QRgb dark;
};

constexpr std::array<ToneRow, kToneCount> kTones{{
    {Tone::Amber, 0xFFFFCC00, 0xFFFFCC00},        {Tone::OnAmber, 0xFF1A2233, 0xFF1A2233},
    {Tone::Rail, 0xFF101838, 0xFF0C122B},         {Tone::RailHover, 0xFF1B2650, 0xFF162046},
    {Tone::RailSelected, 0xFF263367, 0xFF22306A}, {Tone::RailText, 0xFFF2F4F8, 0xFFF2F4F8},
    {Tone::RailResting, 0xFFA9B4D0, 0xFF98A5C6},  {Tone::RailDisabled, 0xFF4D5878, 0xFF465170},
    {Tone::RailAccent, 0xFF8FB6F7, 0xFF8FB6F7},   {Tone::RailPending, 0xFF8FB6F7, 0xFF8FB6F7},
    {Tone::RefusedLine, 0xFFB3261E, 0xFFFF8F84},  {Tone::RefusedBackground, 0xFFFDF0EE, 0xFF35191A},
    {Tone::DrawingLine, 0xFF33415C, 0xFFA7B4CC},  {Tone::DrawingFill, 0xFFE9EDF3, 0xFF262D3A},
    {Tone::DrawingShade, 0xFFD5DCE6, 0xFF323B4B}, {Tone::DrawingDeep, 0xFFBFC9D6, 0xFF434E62},
    {Tone::HelpLine, 0xFFE8EEF8, 0xFF1B2740},     {Tone::IconAccent, 0xFF25519C, 0xFF8FB6F7},
    {Tone::RingBlack, 0xFF1B1B1B, 0xFF1B1B1B},    {Tone::RingGrey, 0xFF9A9A9A, 0xFF9A9A9A},
    {Tone::RingBrown, 0xFF8A5A2B, 0xFF8A5A2B},    {Tone::RingRed, 0xFFC8322B, 0xFFC8322B},
    {Tone::RingYellow, 0xFFF0C419, 0xFFF0C419},   {Tone::RingGreen, 0xFF2E9A57, 0xFF2E9A57},
    {Tone::RingBlue, 0xFF5DB1E6, 0xFF5DB1E6},     {Tone::RingDarkBlue, 0xFF2448A8, 0xFF2448A8},
    {Tone::RingWhite, 0xFFFFFFFF, 0xFFFFFFFF},    {Tone::LightCone, 0xFFFFDF66, 0xFFFFDF66},
    {Tone::SwitchPlate, 0xFF101838, 0xFF101838},
}};

Scheme currentScheme = Scheme::Light;

QRgb Pick(const auto& row, Scheme scheme) {
  return scheme == Scheme::Dark ? row.dark : row.light;
}

QFont Scaled(double factor, QFont::Weight weight) {
  QFont font = QApplication::font();
  if (font.pointSizeF() > 0)
    font.setPointSizeF(font.pointSizeF() * factor);
  else
    font.setPixelSize(qRound(font.pixelSize() * factor));
  font.setWeight(weight);
  return font;
}

}  // namespace

QPalette ThemePalette(Scheme scheme) {
  QPalette palette;
  for (const RoleRow& row : kRoles) palette.setColor(row.role, QColor(Pick(row, scheme)));
  for (const RoleRow& row : kDisabledRoles)
    palette.setColor(QPalette::Disabled, row.role, QColor(Pick(row, scheme)));
  return palette;
}

// Before a palette of ours is set the application has the system's, dark text on light or light
// on dark: the one hint that every platform gives.
Scheme SystemScheme() {
  const QByteArray asked = qgetenv("MORTANE_SCHEME");
  if (asked == "dark") return Scheme::Dark;
  if (asked == "light") return Scheme::Light;
  const QPalette system = QGuiApplication::palette();
  return system.color(QPalette::Window).lightness() < system.color(QPalette::WindowText).lightness()
             ? Scheme::Dark
             : Scheme::Light;
}

void SetCurrentScheme(Scheme scheme) {
  currentScheme = scheme;
}

Scheme CurrentScheme() {
  return currentScheme;
}

QColor ToneColor(Tone tone) {
  return QColor(Pick(kTones[static_cast<std::size_t>(tone)], currentScheme));
}

QFont TitleFont() {
  return Scaled(1.5, QFont::DemiBold);
}
QFont FrameCaptionFont() {
  return Scaled(1.0, QFont::DemiBold);
}
QFont BoldFont() {
  return Scaled(1.0, QFont::Bold);
}
QFont RailFont() {
  return Scaled(0.94, QFont::DemiBold);
}
QFont CaptionFont() {
  return Scaled(0.92, QFont::Normal);
}
QFont MarkFont() {
  return Scaled(0.86, QFont::Bold);
}

QFont FixedFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  const QFont base = QApplication::font();
  if (base.pointSizeF() > 0)
    font.setPointSizeF(base.pointSizeF());
  else
    font.setPixelSize(base.pixelSize());
  return font;
}

int GridHeight(int value, const QFontMetrics& metrics) {
  return std::max(value, metrics.height() + 10);
}

int GridHeight(int value, const QWidget& widget) {
  return GridHeight(value, widget.fontMetrics());
}

}  // namespace mortane
