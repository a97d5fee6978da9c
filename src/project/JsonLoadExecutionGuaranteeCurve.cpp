#include "project/JsonLoadExecutionGuaranteeCurve.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "optimization/ExecutionGuaranteeCurve.h"
#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

ExecutionGuaranteeCurve::GuaranteeStr loadCurve(const json& str) {
  ExecutionGuaranteeCurve::GuaranteeStr curve;
  Helper::applyOptional<std::vector<std::uint32_t>>(
      str, "reservoirsIds", [&](const auto& ids) { curve.reservoirIds = ids; });
  Helper::applyOptional<std::vector<double>>(
      str, "guarantees", [&](const auto& levels) { curve.guarantees = levels; });
  bool found = false;
  const json& releases = Helper::findOptional(found, str, "releases");
  if (found) curve.values = Helper::get<std::vector<std::vector<double>>>(releases);
  const bool fits = curve.values.size() == curve.guarantees.size() &&
                    std::all_of(curve.values.begin(), curve.values.end(), [&](const auto& row) {
                      return row.size() == curve.reservoirIds.size();
                    });
  if (!fits) {
    Helper::refuse(found ? releases : str, "one row of releases per level found (" +
                                               std::to_string(curve.guarantees.size()) +
                                               "), one release per reservoir (" +
                                               std::to_string(curve.reservoirIds.size()) + ")");
  }
  return curve;
}

}  // namespace

JsonLoadExecutionGuaranteeCurve::JsonLoadExecutionGuaranteeCurve()
    : JsonLoadExecutionMethod(ExecutionType::guaranteeCurve) {}

std::shared_ptr<ExecutionMethod> JsonLoadExecutionGuaranteeCurve::makeInstance(
    const Interval&) const {
  return std::make_shared<ExecutionGuaranteeCurve>();
}

void JsonLoadExecutionGuaranteeCurve::loadSpecific(const json& object,
                                                   ExecutionMethod& method) const {
  auto& curve = dynamic_cast<ExecutionGuaranteeCurve&>(method);
  bool found = false;
  const json& iterations = Helper::findOptional(found, object, "numOfIterations");
  if (found) {
    Helper::at(iterations,
               [&] { curve.setNumberOfIterations(Helper::get<std::uint32_t>(iterations)); });
  }
  Helper::applyOptional<bool>(object, "OnlyQ90", [&](bool value) { curve.setOnlyQ90(value); });
  const json& str = Helper::findOptional(found, object, "GuaranteeCurveStr");
  if (!found) return;
  const json& levels = Helper::findOptional(found, str, "guaranteeValues");
  if (found) {
    Helper::at(levels, [&] { curve.setGuaranteeValues(Helper::get<std::vector<double>>(levels)); });
  }
  curve.setGuaranteeStr(loadCurve(str));
}
