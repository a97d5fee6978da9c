#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

// The flag tables of the optimisable rules. The file keeps the working value of every cell under
// the rule's plain key and, under the "Opt..." key of the same shape, 1 where the optimiser
// chooses the cell and 0 where the value is fixed. In the model a chosen cell holds the decision
// mark, a fixed one its value.
class JsonOptFlags {
 public:
  // 1 for a marked cell, 0 for another.
  static std::string write(double cell);
  // [f,...]: count flags, each that of the cell of marked at its place; a place that marked lacks
  // (a rule whose marks were never set) is not marked. The flags take the shape of the values.
  static std::string write(const std::vector<double>& marked, std::size_t count);
  // The marked table of the flags at flags over values: the mark where the flag is set, the value
  // where it is not. Throws JsonLoadException at flags when it is not a list of as many flags as
  // there are values.
  static std::vector<double> read(const nlohmann::json& flags, const std::vector<double>& values);
  // The mark when the flag at flag is set, else value. Throws JsonLoadException at flag for a
  // value that is no flag.
  static double read(const nlohmann::json& flag, double value);
};
