#include "hub/Transfers.h"

#include "common/Failure.h"
#include "common/FailureText.h"

namespace mortane {

std::string ReportOf(std::string_view unit, const std::function<std::string()>& operation) {
  const std::string opening = "Unit " + std::string(unit) + " (";
  try {
    return operation();
  } catch (const Failure& failure) {
    return FailureLine(opening, failure);
  } catch (const std::exception& fault) {
    return opening + fault.what() + ")";
  }
}

}  // namespace mortane
