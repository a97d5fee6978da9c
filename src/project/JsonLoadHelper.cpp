#include "project/JsonLoadHelper.h"

#include "project/JsonLoadException.h"
#include "project/JsonLoadPlace.h"

using json = nlohmann::json;

const json& JsonLoadHelper::findRequired(const json& object, const std::string& key) {
  bool found = false;
  const json& member = findOptional(found, object, key);
  if (!found) {
    const auto it = object.find(key);
    throw JsonLoadException(
        object, "the key \"" + key + "\" is required" + (it == object.end() ? "" : ", found null"));
  }
  return member;
}

const json& JsonLoadHelper::findOptional(bool& found, const json& object, const std::string& key) {
  asObject(object);
  const auto it = object.find(key);
  found = it != object.end() && !it->is_null();
  return found ? *it : object;
}

const json& JsonLoadHelper::findOptional(bool& found, const json& object, const std::string& key1,
                                         const std::string& key2) {
  const json& outer = findOptional(found, object, key1);
  return found ? findOptional(found, outer, key2) : object;
}

const json& JsonLoadHelper::asArray(const json& value) {
  if (!value.is_array()) refuse(value, "a list");
  return value;
}

const json& JsonLoadHelper::asObject(const json& value) {
  if (!value.is_object()) refuse(value, "an object");
  return value;
}

std::string JsonLoadHelper::describe(const json& value) {
  switch (value.type()) {
    case json::value_t::null:
      return "null";
    case json::value_t::object:
      return "an object";
    case json::value_t::array:
      return "a list";
    case json::value_t::string:
      return "the text \"" + JsonLoadPlace::shortName(value.get<std::string>()) + "\"";
    case json::value_t::boolean:
      return std::string("the boolean ") + (value.get<bool>() ? "true" : "false");
    default:
      return "the number " + JsonLoadPlace::shortName(value.dump());
  }
}

void JsonLoadHelper::refuse(const json& value, const std::string& expected) {
  throw JsonLoadException(value, "expected " + expected + ", found " + describe(value));
}

// A fraction is refused rather than cut: the format writes every integer without a point, and a
// fraction out of the integer range could not be converted at all.
std::uint64_t JsonLoadHelper::getInteger(const json& value, const std::string& expected) {
  if (!value.is_number_integer()) refuse(value, expected);
  return value.get<std::uint64_t>();
}

void JsonLoadHelper::locate(const json& where, const std::exception& error) {
  const auto* located = dynamic_cast<const JsonLoadException*>(&error);
  if (located != nullptr && located->where() != nullptr) return;
  throw JsonLoadException(where, error.what());
}
