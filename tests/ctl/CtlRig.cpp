#include "CtlRig.h"

#include <nlohmann/json.hpp>

namespace mortane::test {

std::string InJson(const std::string& path) {
  const std::string text = nlohmann::json(path).dump();
  return text.substr(1, text.size() - 2);
}

std::vector<ItemKey> CtlRig::Reported(const std::string& list) const {
  std::vector<ItemKey> keys;
  const nlohmann::json answer = nlohmann::json::parse(Out(), nullptr, false);
  if (!answer.contains(list)) return keys;
  for (const nlohmann::json& item : answer.at(list)) {
    keys.push_back(
        {item.at("section"), item.at("element"), item.at("position"), item.at("attribute")});
  }
  return keys;
}

}  // namespace mortane::test
