#include "project/JsonLoadPlace.h"

#include <vector>

using json = nlohmann::json;

namespace {

constexpr std::size_t kNameLength = 60;

struct Step {
  std::string key;
  const json* value;
};

// Fills path with the steps from value down to target; false when target is not inside value.
// The tree is walked once, and only when a message is made.
bool findPath(const json& value, const json* target, std::vector<Step>& path) {
  if (&value == target) return true;
  if (value.is_object()) {
    for (auto it = value.begin(); it != value.end(); ++it) {
      path.push_back({it.key(), &it.value()});
      if (findPath(it.value(), target, path)) return true;
      path.pop_back();
    }
  } else if (value.is_array()) {
    for (std::size_t i = 0; i < value.size(); ++i) {
      path.push_back({std::to_string(i), &value[i]});
      if (findPath(value[i], target, path)) return true;
      path.pop_back();
    }
  }
  return false;
}

// The text of member key of object when it is one, else empty.
std::string textOf(const json& object, const char* key) {
  if (!object.is_object()) return "";
  const auto it = object.find(key);
  return it != object.end() && it->is_string() ? it->get<std::string>() : "";
}

// The name of the element of an item of nodes or links: item.element or item.node.element.
std::string elementName(const json& item) {
  if (!item.is_object()) return "";
  const json* element = nullptr;
  const auto node = item.find("node");
  if (node != item.end() && node->is_object() && node->contains("element")) {
    element = &(*node)["element"];
  } else if (item.contains("element")) {
    element = &item["element"];
  }
  return element == nullptr ? "" : textOf(*element, "name");
}

}  // namespace

std::string JsonLoadPlace::of(const json& root, const json* target) {
  std::vector<Step> path;
  if (target == &root || !findPath(root, target, path)) return "the file";
  std::string pointer;
  std::string scenario;
  std::string element;
  for (std::size_t i = 0; i < path.size(); ++i) {
    pointer += "/" + path[i].key;
    const std::string& parent = i == 0 ? std::string() : path[i - 1].key;
    if (i == 1 && path[0].key == "scenarios") scenario = textOf(*path[i].value, "name");
    if (i > 0 && (parent == "nodes" || parent == "links")) element = elementName(*path[i].value);
  }
  std::string names;
  if (!scenario.empty()) names += "scenario \"" + shortName(scenario) + "\"";
  if (!element.empty())
    names += (names.empty() ? "" : ", ") + ("element \"" + shortName(element) + "\"");
  return names.empty() ? pointer : pointer + " (" + names + ")";
}

std::string JsonLoadPlace::shortName(const std::string& name) {
  if (name.size() <= kNameLength) return name;
  // Cut on a character boundary of UTF-8: continuation bytes are 10xxxxxx.
  std::size_t end = kNameLength;
  while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80) --end;
  return name.substr(0, end) + "...";
}
