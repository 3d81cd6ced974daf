#include "record/TurretSvg.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "common/Numbers.h"
#include "document/Dom.h"
#include "model/ElementFields.h"

namespace mortane::test {
namespace {

struct Shape {
  std::string element;
  double x;
  double y;
  double radius;  // or half of a tile's width
  bool dashed;
};

// The places, by their lines; the disc, its hub and the rings' inner faces are left out.
std::vector<Shape> PlacesOf(const std::string& svg) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText(svg)) << document.Problem();
  std::vector<Shape> shapes;
  for (const DomNode& node : document.Children().front().Children()) {
    const ElementFields fields(node);
    const auto number = [&](const char* name) {
      return ToDouble(fields.Text(name), PointFormat());
    };
    const bool dashed = fields.Has("stroke-dasharray");
    if (node.Name() == "rect") {
      shapes.push_back({"rect", number("x") + number("width") / 2,
                        number("y") + number("height") / 2, number("width") / 2, dashed});
    } else if (node.Name() == "circle" && number("r") < 40 && fields.Has("stroke-width")) {
      shapes.push_back({"circle", number("cx"), number("cy"), number("r"), dashed});
    }
  }
  return shapes;
}

std::vector<TurretPlace> Places(std::size_t count) {
  return std::vector<TurretPlace>(count, TurretPlace{"x", "x", 20});
}

TEST(ATurretsDrawing, HasThePlacesClockwiseFromTheTop) {
  const auto shapes = PlacesOf(TurretSvg(TurretKindDrawn::Tiles, "T", Places(4)));
  ASSERT_EQ(shapes.size(), 4U);
  const double middle = 140;
  EXPECT_NEAR(shapes[0].x, middle, 0.1);
  EXPECT_LT(shapes[0].y, middle);
  EXPECT_GT(shapes[1].x, middle);
  EXPECT_NEAR(shapes[1].y, middle, 0.1);
  EXPECT_GT(shapes[2].y, middle);
  EXPECT_LT(shapes[3].x, middle);
}

TEST(ATurretsDrawing, KeepsItsPlacesApartAndWithinTheDisc) {
  for (std::size_t count = 1; count <= 10; ++count) {
    std::vector<TurretPlace> free(count);
    for (const auto kind : {TurretKindDrawn::Objectives, TurretKindDrawn::Tiles}) {
      const auto shapes = PlacesOf(TurretSvg(kind, "T", free));
      ASSERT_EQ(shapes.size(), count);
      for (std::size_t i = 0; i < count; ++i) {
        EXPECT_TRUE(shapes[i].dashed);
        const double away = std::hypot(shapes[i].x - 140, shapes[i].y - 140);
        EXPECT_LE(away + shapes[i].radius * 0.8, 140) << count;
        for (std::size_t j = i + 1; j < count; ++j) {
          const double x = std::abs(shapes[i].x - shapes[j].x);
          const double y = std::abs(shapes[i].y - shapes[j].y);
          const double width = 2 * shapes[i].radius;
          const bool apart = kind == TurretKindDrawn::Objectives ? std::hypot(x, y) > width
                                                                 : x > width || y > width * 0.8;
          EXPECT_TRUE(apart) << count << ": " << i << ", " << j;
        }
      }
    }
  }
}

TEST(ATurretsDrawing, TellsWhatStandsThere) {
  const std::string svg = TurretSvg(TurretKindDrawn::Objectives, "Nose \"1\"",
                                    {{"20x", "20x, <Plan>", 20}, {}, {"100x", "100x, Oil", 100}});
  EXPECT_NE(svg.find("aria-label=\"Nose &quot;1&quot;: 1 20x, &lt;Plan&gt;, 2 ----, 3 100x, Oil\""),
            std::string::npos)
      << svg.substr(0, 200);
  for (const char* text :
       {">20x</text>", ">----</text>", ">100x</text>", ">1</text>", ">3</text>"}) {
    EXPECT_NE(svg.find(text), std::string::npos) << text;
  }
  EXPECT_NE(svg.find("fill=\"#2E9A57\""), std::string::npos);
}

TEST(ATurretsDrawing, CutsLongMarksAndDrawsTenPlacesAtMost) {
  auto places = Places(12);
  places[0].mark = "A name of length";
  const std::string svg = TurretSvg(TurretKindDrawn::Tiles, "T", places);
  EXPECT_NE(svg.find(">A name o\xE2\x80\xA6</text>"), std::string::npos);
  EXPECT_EQ(PlacesOf(svg).size(), 10U);
  EXPECT_EQ(svg.find("11 x"), std::string::npos);
}

TEST(TheRingOfAMagnification, HasItsColour) {
  const std::pair<double, const char*> rows[] = {
      {0, "#3C4858"},   {1, "#1B1B1B"},    {1.5, "#3C4858"}, {2, "#9A9A9A"},
      {2.5, "#8A5A2B"}, {4, "#C8322B"},    {5, "#C8322B"},   {10, "#F0C419"},
      {20, "#2E9A57"},  {25, "#3C4858"},   {40, "#5DB1E6"},  {50, "#5DB1E6"},
      {60, "#2448A8"},  {99.9, "#3C4858"}, {100, "#FFFFFF"}, {200, "#FFFFFF"}};
  for (const auto& [magnification, color] : rows) {
    EXPECT_EQ(RingColor(magnification), color) << magnification;
  }
}

}  // namespace
}  // namespace mortane::test
