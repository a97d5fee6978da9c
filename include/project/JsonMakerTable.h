#pragma once

#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// The rows of a writer or reader factory of the project file: one maker per key, the key being
// the Portuguese name under which the file stores the kind. A factory keeps one table as a
// function-local static, so that a new kind is one more row.
template <typename Maker, typename Key = std::string>
class JsonMakerTable {
 public:
  // The rows, and the text of the exception for a key without a row.
  JsonMakerTable(std::initializer_list<std::pair<const Key, Maker>> rows, std::string missText)
      : makers(rows), missText(std::move(missText)) {}
  JsonMakerTable(std::map<Key, Maker> rows, std::string missText)
      : makers(std::move(rows)), missText(std::move(missText)) {}

  // The maker of key. Throws std::invalid_argument with the factory's text for a key without one.
  const Maker& at(const Key& key) const {
    const auto it = makers.find(key);
    if (it == makers.end()) throw std::invalid_argument(missText);
    return it->second;
  }
  // Every key, in order.
  std::vector<Key> keys() const {
    std::vector<Key> result;
    for (const auto& entry : makers) result.push_back(entry.first);
    return result;
  }

 private:
  std::map<Key, Maker> makers;
  std::string missText;
};
