#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>

class Serie;

// A series type as the database tells them apart: its name with its unit's name. Two kinds share
// the name "Perda em trânsito" and differ by unit.
struct SerieTypeKey {
  std::string type;
  std::string unit;

  // The key of serie's kind and unit.
  static SerieTypeKey of(const Serie& serie);
  bool operator<(const SerieTypeKey& other) const {
    return std::tie(type, unit) < std::tie(other.type, other.unit);
  }
};

// The SerieType row of each key.
using SerieTypeIds = std::map<SerieTypeKey, int64_t>;
