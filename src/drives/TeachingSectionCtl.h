// The section of a drive page in which positions are taught by real moves.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "drawings/MoveCross.h"
#include "model/DriveCompensation.h"

class QCheckBox;

namespace mortane {

class CaptionedFrame;
class InnerFrame;
class OptionGroup;
class PositionTableCtl;
class Prompts;
struct PositionColumn;

// The value of the drive's compensation that each option stands for: absolute, relative, none.
inline constexpr std::array<std::int32_t, 3> kCompensationCodes{
    compensation::kAbsolute, compensation::kRelative, compensation::kNone};

// The option of a compensation; -1 for a value that is none of them.
int CompensationIndex(std::int32_t code);

struct TeachingTexts {
  const char* frameName;
  const char* caption;
  std::array<const char*, kCompensationCodes.size()> compensations;
  const char* controlName;
  const char* controlCaption;
};

struct TeachingSection {
  CaptionedFrame* frame;
  OptionGroup* compensation;
  PositionTableCtl* positions;
  InnerFrame* control;
  QCheckBox* realMove;
  MoveCross* cross;
};

// Options of the compensation in a row; below them the positions at the left, the move buttons at
// the right.
TeachingSection MakeTeachingSection(const TeachingTexts& texts, Prompts& prompts,
                                    std::vector<PositionColumn> columns, MoveCross::Axes axes,
                                    QWidget* parent);

}  // namespace mortane
