#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

class Scenario;
class Serie;

// Writes a project file: the scenarios and the project's configuration as one JSON text without
// blanks or line breaks, every object's keys in a fixed order, so that the same project always
// gives the same bytes. The helpers below make the pieces that every writer uses. Floating values
// carry 17 decimals in fixed notation, enough to read back as the same double from 0.1 upwards;
// the empty value -999.0 is written "-999.000000"; booleans are 1 and 0; texts are quoted as they
// stand, without escapes (element names never hold quotes or backslashes).
class JsonSaveBuilder {
 public:
  // The members of an object, each "key":value, in their order.
  using Members = std::vector<std::string>;

  // Writes the scenarios of the ScenarioManager, by index, and the configuration to path (UTF-8),
  // replacing the file only once the new text is whole; false, with the file as it was, when it
  // could not be written. The text is made before the
  // file is opened, so the writer factories' std::invalid_argument leaves the file as it was.
  [[nodiscard]] static bool save(const std::string& path);
  // The project text of scenarios, in their order, with the present configuration. Throws
  // std::invalid_argument from the writer factories for a piece of the model without a writer.
  static std::string toJson(const std::vector<std::shared_ptr<Scenario>>& scenarios);

  // "key":
  static std::string makeJsonKey(const std::string& key);
  // "key":value with the value text as it stands (an object, an array, null).
  static std::string makeJsonKeyValue(const std::string& key, const std::string& value);
  // "key":value for a number or a boolean: floating values as makeFloatingValue(), integers in
  // decimal, booleans as 1 or 0.
  template <typename T, typename = std::enable_if_t<std::is_arithmetic_v<T>>>
  static std::string makeJsonKeyValue(const std::string& key, T value) {
    if constexpr (std::is_same_v<T, bool>) {
      return makeJsonKey(key) + (value ? "1" : "0");
    } else if constexpr (std::is_floating_point_v<T>) {
      return makeJsonKey(key) + makeFloatingValue(value);
    } else {
      return makeJsonKey(key) + std::to_string(value);
    }
  }
  // {a,b,c}: the members between braces, separated by commas.
  static std::string makeObject(const Members& members);
  // "key":"value"
  static std::string makeJsonKeyValueString(const std::string& key, const std::string& value);
  // "value"
  static std::string makeStringValue(const std::string& value);
  // value with 17 decimals, or -999.000000 for the empty value.
  static std::string makeFloatingValue(double value);
  // [a,b,c] with each value as makeFloatingValue().
  static std::string makeVectorOfFloatingValues(const std::vector<double>& values);
  // value in 17 significant digits, which reads back as the very same double whatever its
  // magnitude (the decision variables of an optimisation, down to the smallest).
  static std::string makeExactValue(double value);
  // [a,b,c] with each value as makeExactValue().
  static std::string makeVectorOfExactValues(const std::vector<double>& values);
  // [a,b,c] with each integer in decimal.
  template <typename T>
  static std::string makeVectorOfIntegerValues(const std::vector<T>& values) {
    return makeArray(values, [](T value) { return std::to_string(value); });
  }
  // [x,y,z] with write(item) for each item of a container, in its order.
  template <typename Items, typename Write>
  static std::string makeArray(const Items& items, Write write) {
    std::string text = "[";
    for (const auto& item : items) text += write(item) + ",";
    if (!items.empty()) text.pop_back();
    return text + "]";
  }
  // "<series name>":[{"julianDay":j,"value":v},...] in increasing julian day; the series'
  // interval is not written: the reader gives it the scenario's.
  static std::string makeSerie(const Serie& serie);
  // The same under key instead of the series' name.
  static std::string makeSerie(const std::string& key, const Serie& serie);
};
