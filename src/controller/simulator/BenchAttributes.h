// Reads the fields of a record from the attributes of an element, and writes them back.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "controller/simulator/BenchDatabaseFields.h"
#include "controller/simulator/BenchFields.h"
#include "controller/simulator/BenchText.h"
#include "document/Dom.h"

namespace mortane::controller::bench_file {

// Sets the fields that the attributes name; the attribute `key` is skipped.
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

// The element of a switch holds only the code of its function.
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
