// Building blocks of a bench file. Each reads one kind of element into a part of the bench, and
// writes it back.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "controller/simulator/BenchAttributes.h"
#include "controller/simulator/BenchText.h"
#include "document/Dom.h"

namespace mortane::controller::bench_file {

// One kind of child element. Its owner is a bench, an instrument or a database.
template <typename Owner>
struct ElementRow {
  std::string_view name;
  void (*read)(const DomNode& node, Owner& owner, Seen& seen);
  void (*write)(DomDocument& document, DomNode parent, std::string_view name, const Owner& owner);
};

template <typename Owner, std::size_t Count>
void ReadChildren(const DomNode& node, Owner& owner,
                  const std::array<ElementRow<Owner>, Count>& rows) {
  Seen seen;
  for (const DomNode& child : node.Children()) {
    if (!child.IsElement()) continue;
    bool known = false;
    for (const ElementRow<Owner>& row : rows) {
      if (row.name != child.Name()) continue;
      known = true;
      row.read(child, owner, seen);
    }
    if (!known) RaiseAt(node, "unknown element <" + child.Name() + ">");
  }
}

template <typename Owner, std::size_t Count>
void WriteChildren(DomDocument& document, DomNode node, const Owner& owner,
                   const std::array<ElementRow<Owner>, Count>& rows) {
  for (const ElementRow<Owner>& row : rows) row.write(document, node, row.name, owner);
}

inline DomNode AppendElement(DomDocument& document, DomNode parent, std::string_view name) {
  const DomNode element = document.CreateElement(name);
  parent.Append(element);
  return element;
}

template <typename Owner, typename Field>
Owner OwnerOf(Field Owner::*);

// An element that stands at most once and holds attributes only.
template <auto Member>
struct Single {
  using Owner = decltype(OwnerOf(Member));

  static void Read(const DomNode& node, Owner& owner, Seen& seen) {
    CheckFirst(node, seen, node.Name());
    CheckNoChildren(node);
    ReadAttributes(node, owner.*Member);
  }
  static void Write(DomDocument& document, DomNode parent, std::string_view name,
                    const Owner& owner) {
    if (owner.*Member == std::remove_cvref_t<decltype(owner.*Member)>()) return;
    WriteAttributes(AppendElement(document, parent, name), owner.*Member);
  }
};

// One element for each entry of a list, in its order.
template <auto Member>
struct Listed {
  using Owner = decltype(OwnerOf(Member));

  static void Read(const DomNode& node, Owner& owner, Seen& /*seen*/) {
    CheckNoChildren(node);
    ReadAttributes(node, (owner.*Member).emplace_back());
  }
  static void Write(DomDocument& document, DomNode parent, std::string_view name,
                    const Owner& owner) {
    for (const auto& record : owner.*Member) {
      WriteAttributes(AppendElement(document, parent, name), record);
    }
  }
};

// One element for each entry of a table that is not empty; `Keys` names the entries.
template <auto Member, const auto& Keys>
struct Keyed {
  using Owner = decltype(OwnerOf(Member));

  static void Read(const DomNode& node, Owner& owner, Seen& seen) {
    const std::size_t place = PlaceOf(node, Keys);
    CheckFirst(node, seen, node.Name() + " " + std::string(Keys[place]));
    CheckNoChildren(node);
    ReadAttributes(node, (owner.*Member)[place], kKey);
  }
  static void Write(DomDocument& document, DomNode parent, std::string_view name,
                    const Owner& owner) {
    const auto& table = owner.*Member;
    static_assert(std::tuple_size_v<std::remove_cvref_t<decltype(table)>> == Keys.size());
    for (std::size_t place = 0; place < table.size(); ++place) {
      if (table[place] == std::remove_cvref_t<decltype(table[place])>()) continue;
      DomNode element = AppendElement(document, parent, name);
      element.SetAttribute(kKey, Keys[place]);
      WriteAttributes(element, table[place]);
    }
  }
};

template <typename Kind>
constexpr ElementRow<typename Kind::Owner> Row(std::string_view name) {
  return {name, &Kind::Read, &Kind::Write};
}

}  // namespace mortane::controller::bench_file
