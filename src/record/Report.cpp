#include "record/Report.h"

#include <array>
#include <ctime>

#include "hub/AccessoryTable.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

std::string Signed(long minutes) {
  const long size = minutes < 0 ? -minutes : minutes;
  const auto two = [](long number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return (minutes < 0 ? "-" : "+") + two(size / 60) + two(size % 60);
}

}  // namespace

// The zone's distance is what the two ways to read one moment differ by.
std::string LocalTime(std::chrono::system_clock::time_point time) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
  std::tm local = *std::localtime(&seconds);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local);
  using namespace std::chrono;
  const sys_days day =
      year_month_day(year(local.tm_year + 1900), month(static_cast<unsigned>(local.tm_mon + 1)),
                     std::chrono::day(static_cast<unsigned>(local.tm_mday)));
  const auto shown = day.time_since_epoch() + hours(local.tm_hour) + minutes(local.tm_min);
  const auto held = floor<minutes>(time).time_since_epoch();
  return std::string(text.data(), length) + " " +
         Signed(static_cast<long>(duration_cast<minutes>(shown - held).count()));
}

std::vector<std::string> AccessoriesOf(const clsK70& k70) {
  std::vector<std::string> lines;
  for (const AccessoryRow* row : AccessoriesInReportOrder()) {
    const std::int32_t mounted = k70.IsMounted(row->number);
    if (mounted != kNotMounted) lines.emplace_back(ReportLabel(*row, mounted));
  }
  return lines;
}

}  // namespace mortane
