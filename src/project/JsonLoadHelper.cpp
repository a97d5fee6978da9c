#include "project/JsonLoadHelper.h"

#include "project/JsonLoadException.h"

using json = nlohmann::json;

const json& JsonLoadHelper::findRequired(const json& object, const std::string& key) {
  bool found = false;
  const json& member = findOptional(found, object, key);
  if (!found) throw JsonLoadException();
  return member;
}

const json& JsonLoadHelper::findOptional(bool& found, const json& object, const std::string& key) {
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
  if (!value.is_array()) {
    throw json::type_error::create(
        302, "type must be array, but is " + std::string(value.type_name()), &value);
  }
  return value;
}

// A fraction is refused rather than cut: the format writes every integer without a point, and a
// fraction out of the integer range could not be converted at all.
std::uint64_t JsonLoadHelper::getInteger(const json& value) {
  if (value.is_number_float()) {
    throw json::type_error::create(302, "type must be integer, but is number", &value);
  }
  return value.get<std::uint64_t>();
}
