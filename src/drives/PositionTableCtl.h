// The frame with a row for each nosepiece address: its option, and its position on each axis.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "widgets/Card.h"

class QGridLayout;

namespace mortane {

class OptionGroup;
class Prompts;
class TextField;

// The positions of one axis, in steps; the fields show micrometres.
struct PositionColumn {
  const char* header;  // none for the only axis
  // A field takes numbers from `lowest` to `highest` micrometres.
  double lowest;
  double highest;
  std::function<std::int32_t(std::int32_t address)> read;
  std::function<void(std::int32_t address, std::int32_t steps)> store;
};

// Rows count from 0, addresses from 1. A field that is entered or left stores its position unless
// its text is refused.
class PositionTableCtl : public InnerFrame {
  Q_OBJECT

 public:
  static constexpr int kRows = 7;

  // Adds an option for each row to `options`.
  PositionTableCtl(Prompts& prompts, std::vector<PositionColumn> columns, OptionGroup& options,
                   QWidget* parent);

  // Shows the rows of that many addresses and their positions; `noSetting`, where there is one,
  // is the position that means none. The fields of hidden rows are emptied.
  void Load(std::int32_t addresses, std::optional<std::int32_t> noSetting = {});
  // Kept: stores what all fields show, those of hidden rows too. What is no number, or no position
  // of its column, is stored as 0.
  void Save();

  // Of the field's text; none for a number outside 32 bits.
  [[nodiscard]] std::optional<std::int32_t> Steps(int row, std::size_t column = 0) const;
  void Show(int row, std::int32_t steps, std::size_t column = 0);
  void Store(int row, std::size_t column = 0);

  [[nodiscard]] std::size_t columnCount() const { return columns_.size(); }
  [[nodiscard]] TextField* field(std::size_t row, std::size_t column = 0) const {
    return fields_[column][row];
  }

 private:
  using Fields = std::array<TextField*, kRows>;

  void AddHeaders(QGridLayout& cells);
  void AddRow(QGridLayout& cells, int row);
  TextField* MakeField(int row, std::size_t column);

  Prompts& prompts_;
  std::vector<PositionColumn> columns_;
  std::vector<Fields> fields_;
  OptionGroup& options_;
};

}  // namespace mortane
