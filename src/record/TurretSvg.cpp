#include "record/TurretSvg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "common/Text.h"
#include "record/SafeText.h"

namespace mortane {
namespace {

// The measures of the turrets in the windows, in their design pixels.
constexpr double kSide = 280;
constexpr double kRadius = 138;
constexpr double kRim = 5;
constexpr double kHub = 13;
constexpr double kHubHole = 4;
constexpr double kOrbitEdge = 12;
constexpr double kLargestPlace = 34;
constexpr double kBetweenPlaces = 5;
constexpr double kBetweenTiles = 8;
constexpr double kTileHeightShare = 0.8;
constexpr double kNumberGap = 20;  // from a place's edge to the middle of its number
constexpr double kShareOfRing = 0.18;
constexpr double kLeastRing = 3;
constexpr double kMostRing = 5;
constexpr double kRimInset = 1.5;
constexpr std::size_t kMostPlaces = 10;
constexpr std::size_t kMostCharacters = 9;
constexpr const char* kFree = "----";
constexpr const char* kOtherRing = "#3C4858";
constexpr double kLeastWhite = 100;

struct RingRow {
  double magnification;
  const char* color;
};
constexpr std::array kRings{
    RingRow{1, "#1B1B1B"},  RingRow{2, "#9A9A9A"},  RingRow{2.5, "#8A5A2B"}, RingRow{4, "#C8322B"},
    RingRow{5, "#C8322B"},  RingRow{10, "#F0C419"}, RingRow{20, "#2E9A57"},  RingRow{40, "#5DB1E6"},
    RingRow{50, "#5DB1E6"}, RingRow{60, "#2448A8"},
};

struct Point {
  double x;
  double y;
};

struct Ring {
  double placeRadius;
  double orbit;
};

std::string Number(double value) {
  std::array<char, 32> text{};
  const auto tenths = static_cast<long>(std::lround(value * 10));
  const int length = std::snprintf(text.data(), text.size(), "%s%ld.%ld", tenths < 0 ? "-" : "",
                                   std::labs(tenths) / 10, std::labs(tenths) % 10);
  return {text.data(), static_cast<std::size_t>(length)};
}

Point Direction(std::size_t index, std::size_t count) {
  const double angle = 2 * std::numbers::pi * static_cast<double>(index) /
                       static_cast<double>(std::max<std::size_t>(1, count));
  return {std::sin(angle), -std::cos(angle)};
}

Point At(Point direction, double distance) {
  return {kSide / 2 + direction.x * distance, kSide / 2 + direction.y * distance};
}

Ring RoundPlaces(std::size_t count) {
  const double room = kRadius - kOrbitEdge;
  if (count < 2) return {kLargestPlace, room - kLargestPlace};
  const double half = std::sin(std::numbers::pi / static_cast<double>(count));
  const double radius = std::min(kLargestPlace, (room * half - kBetweenPlaces) / (1 + half));
  return {radius, room - radius};
}

bool AreTilesApart(std::size_t count, const Ring& ring) {
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const Point here = Direction(i, count);
    const Point next = Direction(i + 1, count);
    const double width = 2 * ring.placeRadius;
    const bool apart =
        std::abs(next.x - here.x) * ring.orbit >= width + kBetweenTiles ||
        std::abs(next.y - here.y) * ring.orbit >= width * kTileHeightShare + kBetweenTiles;
    if (!apart) return false;
  }
  return true;
}

Ring RingOf(TurretKindDrawn kind, std::size_t count) {
  Ring ring = RoundPlaces(count);
  if (kind == TurretKindDrawn::Objectives) return ring;
  while (!AreTilesApart(count, ring)) {
    ring.placeRadius -= 0.5;
    ring.orbit += 0.5;
  }
  return ring;
}

std::string Circle(Point middle, double radius, const std::string& style) {
  return "<circle cx=\"" + Number(middle.x) + "\" cy=\"" + Number(middle.y) + "\" r=\"" +
         Number(radius) + "\" " + style + "/>";
}

std::string Tile(Point middle, double width, const std::string& style) {
  const double height = width * kTileHeightShare;
  return "<rect x=\"" + Number(middle.x - width / 2) + "\" y=\"" + Number(middle.y - height / 2) +
         "\" width=\"" + Number(width) + "\" height=\"" + Number(height) + "\" rx=\"4\" " + style +
         "/>";
}

std::string Text(Point middle, const std::string& size, const std::string& text) {
  return "<text x=\"" + Number(middle.x) + "\" y=\"" + Number(middle.y) +
         "\" text-anchor=\"middle\" dominant-baseline=\"central\" font-size=\"" + size + "\">" +
         Escaped(text) + "</text>";
}

std::string Elided(const std::string& mark) {
  if (CharacterCount(mark) <= kMostCharacters) return mark;
  return FirstCharacters(mark, kMostCharacters - 1) + "\xE2\x80\xA6";
}

std::string PlaceSvg(TurretKindDrawn kind, const TurretPlace& place, Point middle, double radius) {
  constexpr const char* kLine = "fill=\"#FFFFFF\" stroke=\"#3C4858\" stroke-width=\"1.2\"";
  constexpr const char* kFreeLine =
      "fill=\"#F1F3F5\" stroke=\"#3C4858\" stroke-width=\"1.2\" stroke-dasharray=\"3 2.4\"";
  const bool round = kind == TurretKindDrawn::Objectives;
  if (place.mark.empty()) {
    const std::string shape =
        round ? Circle(middle, radius, kFreeLine) : Tile(middle, 2 * radius, kFreeLine);
    return shape + Text(middle, "11", kFree);
  }
  if (!round) return Tile(middle, 2 * radius, kLine) + Text(middle, "11", Elided(place.mark));
  const double ring = std::clamp(radius * kShareOfRing, kLeastRing, kMostRing);
  return Circle(middle, radius - kRimInset,
                "fill=\"" + RingColor(place.magnification.value_or(0)) +
                    "\" stroke=\"#3C4858\" stroke-width=\"1.2\"") +
         Circle(middle, radius - kRimInset - ring, kLine) + Text(middle, "12", Elided(place.mark));
}

}  // namespace

std::string RingColor(double magnification) {
  if (magnification >= kLeastWhite) return "#FFFFFF";
  for (const RingRow& row : kRings) {
    if (row.magnification == magnification) return row.color;
  }
  return kOtherRing;
}

std::string TurretSvg(TurretKindDrawn kind, const std::string& name,
                      const std::vector<TurretPlace>& places) {
  const std::size_t count = std::min(places.size(), kMostPlaces);
  const Ring ring = RingOf(kind, count);
  const Point middle{kSide / 2, kSide / 2};
  std::string told = name;
  std::string drawn;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string number = std::to_string(i + 1);
    const TurretPlace& place = places[i];
    told += (i == 0 ? ": " : ", ") + number + " " + (place.mark.empty() ? kFree : place.details);
    const Point direction = Direction(i, count);
    drawn += PlaceSvg(kind, place, At(direction, ring.orbit), ring.placeRadius);
    drawn += Text(At(direction, ring.orbit - ring.placeRadius - kNumberGap), "11", number);
  }
  return "<svg class=\"turret\" role=\"img\" aria-label=\"" + Escaped(told) +
         "\" viewBox=\"0 0 280 280\" width=\"280\" height=\"280\" "
         "xmlns=\"http://www.w3.org/2000/svg\">" +
         Circle(middle, kRadius, "fill=\"#E4E8EC\" stroke=\"#3C4858\" stroke-width=\"1.2\"") +
         Circle(middle, kRadius - kRim, "fill=\"#F7F8FA\" stroke=\"#9AA5B1\"") + drawn +
         Circle(middle, kHub, "fill=\"#E4E8EC\" stroke=\"#3C4858\"") +
         Circle(middle, kHubHole, "fill=\"#3C4858\"") + "</svg>";
}

}  // namespace mortane
