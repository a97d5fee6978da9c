#pragma once

#include <cstdint>
#include <exception>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

// Reads members of a parsed project file. A member whose value is null counts as absent. Values
// are read strictly by their JSON type: a text where a number stands, a fraction where an integer
// stands, or a boolean anywhere is refused (booleans of the format are the integers 0 and 1; any
// other integer is true). Integers are taken modulo the width of the target, as the format reads
// them unsigned. Every refusal is a JsonLoadException at the value at fault, whose what() says
// what was expected there and what was found.
class JsonLoadHelper {
 public:
  using json = nlohmann::json;

  // The member key of object. Throws JsonLoadException when it is absent (or null) or object is no
  // object.
  static const json& findRequired(const json& object, const std::string& key);
  // The member key of object with found true; object itself with found false when it is absent.
  // Throws JsonLoadException when object is no object: a wrong type is never read as an absence.
  static const json& findOptional(bool& found, const json& object, const std::string& key);
  // The member key2 of the member key1 of object, as above.
  static const json& findOptional(bool& found, const json& object, const std::string& key1,
                                  const std::string& key2);
  // The value of member key as T with found true; T() with found false when it is absent.
  // Throws JsonLoadException for a value of another type.
  template <typename T>
  static T findOptional(bool& found, const json& object, const std::string& key) {
    const json& member = findOptional(found, object, key);
    return found ? get<T>(member) : T();
  }
  // The value of member key as T. Throws JsonLoadException when it is absent or null, or of
  // another type.
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
  // vectors included). Throws JsonLoadException at value for a value of another JSON type.
  template <typename T>
  static T get(const json& value) {
    if constexpr (std::is_same_v<T, bool>) {
      return getInteger(value, "0 or 1") != 0;
    } else if constexpr (std::is_integral_v<T>) {
      return static_cast<T>(getInteger(value, "a whole number"));
    } else if constexpr (std::is_same_v<T, double>) {
      if (!value.is_number()) refuse(value, "a number");
      return value.get<double>();
    } else if constexpr (std::is_same_v<T, std::string>) {
      if (!value.is_string()) refuse(value, "a text");
      return value.get<std::string>();
    } else {
      T result;
      for (const json& item : asArray(value)) result.push_back(get<typename T::value_type>(item));
      return result;
    }
  }
  // value itself. Throws JsonLoadException when it is no array.
  static const json& asArray(const json& value);
  // value itself. Throws JsonLoadException when it is no object.
  static const json& asObject(const json& value);

  // Runs read, and gives any failure that does not yet tell its place the place where: the
  // model's and the factories' refusals then name the value of the file they came from.
  template <typename Read>
  static auto at(const json& where, Read read) -> decltype(read()) {
    try {
      return read();
    } catch (const std::exception& error) {
      locate(where, error);
      throw;
    }
  }
  // What make gives for the kind named by value; a kind that make refuses with
  // std::invalid_argument is refused at value as not being expected.
  template <typename Make>
  static auto known(const json& value, const std::string& expected, Make make) -> decltype(make()) {
    try {
      return make();
    } catch (const std::invalid_argument&) {
      refuse(value, expected);
    }
  }
  // The type and, cut short, the text of value, as messages tell what was found.
  static std::string describe(const json& value);
  // Throws JsonLoadException at value: expected there, and what was found.
  [[noreturn]] static void refuse(const json& value, const std::string& expected);

 private:
  static std::uint64_t getInteger(const json& value, const std::string& expected);
  // Throws error again as a JsonLoadException at where, unless it already tells a place.
  static void locate(const json& where, const std::exception& error);
};
