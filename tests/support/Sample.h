// How many of many cases alike the suite tries. With MORTANE_ALL_CASES in the environment it tries
// all of them.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <vector>

namespace mortane::test {

inline bool TriesAllCases() {
  return std::getenv("MORTANE_ALL_CASES") != nullptr;
}

inline int CountOf(int sample, int all) {
  return TriesAllCases() ? all : sample;
}

// Of the cases 1 to `count` the first `whole` ones, every one `stride` further, and the last. A
// prime number as stride does not fall into step with the records of a list.
inline std::vector<std::size_t> SampleOf(std::size_t count, std::size_t stride,
                                         std::size_t whole = 1) {
  std::vector<std::size_t> cases;
  for (std::size_t k = 1; k <= count; k += TriesAllCases() || k < whole ? 1 : stride) {
    cases.push_back(k);
  }
  if (!cases.empty() && cases.back() != count) cases.push_back(count);
  return cases;
}

// Of a table's columns those that the row with this index tries: every one `stride` further, from
// another one on in each row. Each column is tried by some of `stride` rows.
template <typename Column>
std::vector<Column> ColumnsOfRow(std::size_t row, const std::vector<Column>& columns,
                                 std::size_t stride) {
  if (TriesAllCases()) return columns;
  std::vector<Column> tried;
  for (std::size_t i = row % stride; i < columns.size(); i += stride) tried.push_back(columns[i]);
  return tried;
}

enum class Tried { Always, WithAllCases };

// The rows that say in their column `tried` that this run tries them.
template <typename Rows>
auto RowsToTry(const Rows& rows) {
  std::vector<typename Rows::value_type> chosen;
  for (const auto& row : rows) {
    if (row.tried == Tried::Always || TriesAllCases()) chosen.push_back(row);
  }
  return chosen;
}

}  // namespace mortane::test
