#include "filters/OptionalFilters.h"

#include "common/Failure.h"
#include "common/Text.h"
#include "hub/clsK70.h"

namespace mortane {

QString FilterItemName(FilterItem item, std::int32_t code) {
  const clsK70& k70 = GetK70();
  switch (item) {
    case FilterItem::Exciter:
      return QString::fromStdString(k70.Exciter.Name(code));
    case FilterItem::Dichroic:
      return QString::fromStdString(k70.Dichroic.Name(code));
    case FilterItem::Barrier:
      return QString::fromStdString(k70.Barrier.Name(code));
  }
  return {};
}

void PutFilterItemName(FilterItem item, std::int32_t code, const QString& name) {
  clsK70& k70 = GetK70();
  switch (item) {
    case FilterItem::Exciter:
      return k70.Exciter.Name(code, name.toStdString());
    case FilterItem::Dichroic:
      return k70.Dichroic.Name(code, name.toStdString());
    case FilterItem::Barrier:
      return k70.Barrier.Name(code, name.toStdString());
  }
}

std::int32_t HighestFixedCode(std::int32_t (controller::AccessoryDatabase::*count)() const) {
  try {
    return (GetK70().Mic.AccessoryDatabase().*count)();
  } catch (const Failure&) {
    return 0;
  }
}

QString NameOrMark(const QString& name) {
  return IsBlankName(name) ? QString(QLatin1String(kUnusedFilter)) : name;
}

bool IsBlankName(const QString& name) {
  return Trim(name.toStdString()).empty();
}

}  // namespace mortane
