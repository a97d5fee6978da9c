#include "project/JsonOptFlags.h"

#include <algorithm>

#include "project/JsonLoadHelper.h"
#include "project/JsonSaveBuilder.h"
#include "rules/OptReleaseRule.h"

using Helper = JsonLoadHelper;

std::string JsonOptFlags::write(double cell) {
  return cell == OptReleaseRule::kDecisionMark ? "1" : "0";
}

std::string JsonOptFlags::write(const std::vector<double>& marked, std::size_t count) {
  std::vector<double> cells(count, 0.0);
  std::copy_n(marked.begin(), std::min(count, marked.size()), cells.begin());
  return JsonSaveBuilder::makeArray(cells, [](double cell) { return write(cell); });
}

std::vector<double> JsonOptFlags::read(const nlohmann::json& flags,
                                       const std::vector<double>& values) {
  const auto set = Helper::get<std::vector<bool>>(flags);
  if (set.size() != values.size()) {
    Helper::refuse(flags, std::to_string(values.size()) + " flags (0 or 1), one per value");
  }
  std::vector<double> marked = values;
  for (std::size_t i = 0; i < set.size(); ++i) {
    if (set[i]) marked[i] = OptReleaseRule::kDecisionMark;
  }
  return marked;
}

double JsonOptFlags::read(const nlohmann::json& flag, double value) {
  return Helper::get<bool>(flag) ? OptReleaseRule::kDecisionMark : value;
}
