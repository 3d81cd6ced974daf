// The colours along a line of a picture, by their names.
#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <string>
#include <vector>

namespace mortane::test {

struct NamedColor {
  const char* name;
  QColor color;
};

// Every role of the active and of the disabled group has a colour of its own in it. The inactive
// group is the active one.
QPalette TellablePalette();

// "Mid 1, Base 98, ~ 1" from left to right or from top to bottom. Colours are named after the roles
// of TellablePalette, those of the disabled group as "disabled Mid", else after `more`, else after
// the tones, of which the first is taken where several are alike. "none" is transparent. ~ is any
// other colour, and several of those in a row are one run.
std::string RowOf(const QImage& picture, int y, const std::vector<NamedColor>& more = {});
std::string ColumnOf(const QImage& picture, int x, const std::vector<NamedColor>& more = {});
// The middle ones.
std::string RowOf(const QImage& picture, const std::vector<NamedColor>& more = {});
std::string ColumnOf(const QImage& picture, const std::vector<NamedColor>& more = {});

// Whether two such lines have the same inks, each as long but for a pixel, with any mixed pixels
// between. One version of the toolkit draws the edges of circles a pixel further than another.
bool SameButForEdges(const std::string& left, const std::string& right);

// Around all pixels of the colour.
QRect AreaOf(const QImage& picture, const QColor& color);

}  // namespace mortane::test
