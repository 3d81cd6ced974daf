// A model that has received its bench, and what tests of comparisons do with it.
#pragma once

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "record/Comparison.h"
#include "record/WrittenItems.h"
#include "support/Rig.h"

namespace mortane::test {

using Keys = std::vector<std::string>;

inline Keys KeysOf(const std::vector<ItemChange>& changes) {
  std::set<std::string> keys;
  for (const ItemChange& change : changes) keys.insert(KeyText(change.to.key));
  return {keys.begin(), keys.end()};
}

inline Keys KeysOf(const std::vector<ConfigurationItem>& items) {
  std::set<std::string> keys;
  for (const ConfigurationItem& item : items) keys.insert(KeyText(item.key));
  return {keys.begin(), keys.end()};
}

// Of `keys` those that are not among `others`; both in order.
inline Keys Without(const Keys& keys, const Keys& others) {
  Keys rest;
  std::set_difference(keys.begin(), keys.end(), others.begin(), others.end(),
                      std::back_inserter(rest));
  return rest;
}

// Shows no box: some benches tell of odd values.
struct ReceivedRig : Rig {
  explicit ReceivedRig(const std::string& bench) : Rig(bench) {
    prompts.AcceptAnyBox();
    ConnectAndReceive();
  }
  ~ReceivedRig() { prompts.ClearRecords(); }

  DomDocument File() const {
    DomDocument document;
    k70.WriteSections(document);
    return document;
  }
  void Read(const DomDocument& file) {
    k70.ReadItems(file, "test.xml");
    k70.ReadSections(file, "test.xml");
  }
  void Read(const std::string& text) {
    DomDocument file;
    ASSERT_TRUE(file.LoadText(text)) << file.Problem();
    Read(file);
  }
  // Sends, and tells which items that wrote with another value.
  Keys Send() {
    const NumbersBefore before(instrument());
    journal.Clear();
    k70.Send();
    return WrittenItems(journal.Lines(), before);
  }
};

}  // namespace mortane::test
