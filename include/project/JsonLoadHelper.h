#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>
#include <vector>

// Reads members of a parsed project file. A member whose value is null counts as absent. Values
// are read strictly by their JSON type: a text where a number stands, a fraction where an integer
// stands, or a boolean anywhere throws nlohmann::json::type_error (booleans of the format are the
// integers 0 and 1; any other integer is true). Integers are taken modulo the width of the target,
// as the format reads them unsigned.
class JsonLoadHelper {
 public:
  using json = nlohmann::json;

  // The member key of object. Throws JsonLoadException when it is absent (or null) or object is no
  // object.
  static const json& findRequired(const json& object, const std::string& key);
  // The member key of object with found true; object itself with found false when it is absent.
  static const json& findOptional(bool& found, const json& object, const std::string& key);
  // The member key2 of the member key1 of object, as above.
  static const json& findOptional(bool& found, const json& object, const std::string& key1,
                                  const std::string& key2);
  // The value of member key as T with found true; T() with found false when it is absent.
  // Throws nlohmann::json::type_error for a value of another type.
  template <typename T>
  static T findOptional(bool& found, const json& object, const std::string& key) {
    const json& member = findOptional(found, object, key);
    return found ? get<T>(member) : T();
  }
  // The value of member key as T. Throws JsonLoadException when it is absent or null, and
  // nlohmann::json::type_error for a value of another type.
  template <typename T>
  static T getRequired(const json& object, const std::string& key) {
    return get<T>(findRequired(object, key));
  }
  // Calls set with the value of member key as T when the member is present.
  template <typename T, typename Set>
  static void applyOptional(const json& object, const std::string& key, Set set) {
    bool found = false;
    T value = findOptional<T>(found, object, key);
    if (found) set(value);
  }

  // value as T: bool, an integer type, double, std::string or a std::vector of these (nested
  // vectors included). Throws nlohmann::json::type_error for a value of another JSON type.
  template <typename T>
  static T get(const json& value) {
    if constexpr (std::is_same_v<T, bool>) {
      return getInteger(value) != 0;
    } else if constexpr (std::is_integral_v<T>) {
      return static_cast<T>(getInteger(value));
    } else if constexpr (std::is_same_v<T, double> || std::is_same_v<T, std::string>) {
      return value.get<T>();
    } else {
      T result;
      for (const json& item : asArray(value)) result.push_back(get<typename T::value_type>(item));
      return result;
    }
  }
  // value itself. Throws nlohmann::json::type_error when it is no array.
  static const json& asArray(const json& value);

 private:
  static std::uint64_t getInteger(const json& value);
};
