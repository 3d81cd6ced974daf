// How the attributes of an element and the fields of a record become each other.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "controller/simulator/BenchDatabaseFields.h"
#include "controller/simulator/BenchFields.h"
#include "controller/simulator/BenchText.h"
#include "document/Dom.h"

namespace mortane::controller::bench_file {

// Sets the fields that the attributes name. `key` is an attribute that is no field.
template <typename Record>
void ReadAttributes(const DomNode& node, Record& record, std::string_view key = {}) {
  for (const DomAttribute& attribute : node.Attributes()) {
    if (attribute.name == key) continue;
    bool known = false;
    for (const BenchField<Record>& field : kBenchFields<Record>) {
      if (field.attribute != attribute.name) continue;
      known = true;
      std::visit([&](auto member) { ReadText(node, attribute, record.*member); }, field.member);
    }
    if (!known) RaiseAt(node, "unknown attribute \"" + attribute.name + "\"");
  }
  CheckRecord(node, record);
}

template <typename Record>
void WriteAttributes(DomNode node, const Record& record) {
  const Record untouched;
  for (const BenchField<Record>& field : kBenchFields<Record>) {
    std::visit(
        [&](auto member) {
          if (record.*member == untouched.*member) return;
          node.SetAttribute(field.attribute, TextOf(record.*member));
        },
        field.member);
  }
}

// The code of a switch key is all that its element holds.
inline void ReadAttributes(const DomNode& node, std::string& function, std::string_view key) {
  for (const DomAttribute& attribute : node.Attributes()) {
    if (attribute.name == key) continue;
    if (attribute.name != kFunction) RaiseAt(node, "unknown attribute \"" + attribute.name + "\"");
    function = attribute.value;
  }
}

inline void WriteAttributes(DomNode node, const std::string& function) {
  node.SetAttribute(kFunction, function);
}

}  // namespace mortane::controller::bench_file
