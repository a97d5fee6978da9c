#pragma once

#include <map>
#include <string>
#include <vector>

// The rows of one vocabulary family, indexed by plain value and by display name. Where two rows
// share a value (the units "Mg" and "Kg"), lookup by value finds the first row.
template <typename E, typename T>
class EnumTable {
 public:
  explicit EnumTable(std::vector<E> rows) : rows(std::move(rows)) {
    for (const E& row : this->rows) {
      byType.emplace(row.getType(), &row);
      byName.emplace(row.getName(), &row);
    }
  }

  EnumTable(const EnumTable&) = delete;
  EnumTable& operator=(const EnumTable&) = delete;

  const std::vector<E>& getRows() const { return rows; }
  const E* findByType(T type) const {
    auto it = byType.find(type);
    return it == byType.end() ? nullptr : it->second;
  }
  const E* findByName(const std::string& name) const {
    auto it = byName.find(name);
    return it == byName.end() ? nullptr : it->second;
  }

 private:
  std::vector<E> rows;
  std::map<T, const E*> byType;
  std::map<std::string, const E*> byName;
};
