// A unit's text in a settings file.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "document/Dom.h"

namespace mortane::test {

// The unit's elements under one root.
template <typename Unit>
std::string FileTextOf(const Unit& unit) {
  DomDocument document;
  DomNode section = document.CreateElement("SECTION");
  unit.WriteDom(document, section);
  document.Append(section);
  return document.ToText();
}

// Gives the unit one element, as text.
template <typename Unit>
std::string ReadElement(Unit& unit, const std::string& xml) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText(xml)) << xml;
  return unit.ReadDom(document.Children().at(0));
}

}  // namespace mortane::test
