#include "project/JsonLoadExecutionSystemGuaranteeCurve.h"

#include <cstdint>
#include <string>
#include <vector>

#include "optimization/ExecutionSystemGuaranteeCurve.h"
#include "project/JsonLoadExecutionOptimization.h"
#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

ExecutionSystemGuaranteeCurve::SystemGuaranteeCurveStr loadCurve(const json& str) {
  ExecutionSystemGuaranteeCurve::SystemGuaranteeCurveStr curve;
  Helper::applyOptional<std::uint32_t>(str, "outReservoirId",
                                       [&](std::uint32_t id) { curve.outSystemReservoirId = id; });
  Helper::applyOptional<std::vector<double>>(
      str, "guaranteeCurveValues", [&](const auto& levels) { curve.guarantees = levels; });
  bool found = false;
  const json& releases = Helper::findOptional(found, str, "releases");
  if (found) curve.guaranteeCurveValues = Helper::get<std::vector<double>>(releases);
  if (curve.guaranteeCurveValues.size() != curve.guarantees.size()) {
    Helper::refuse(found ? releases : str,
                   "one release per level found (" + std::to_string(curve.guarantees.size()) + ")");
  }
  return curve;
}

}  // namespace

JsonLoadExecutionSystemGuaranteeCurve::JsonLoadExecutionSystemGuaranteeCurve()
    : JsonLoadExecutionMethod(ExecutionType::systemGuaranteeCurve) {}

std::shared_ptr<ExecutionMethod> JsonLoadExecutionSystemGuaranteeCurve::makeInstance(
    const Interval&) const {
  return std::make_shared<ExecutionSystemGuaranteeCurve>();
}

void JsonLoadExecutionSystemGuaranteeCurve::loadSpecific(const json& object,
                                                         ExecutionMethod& method) const {
  auto& curve = dynamic_cast<ExecutionSystemGuaranteeCurve&>(method);
  bool found = false;
  const json& str = Helper::findOptional(found, object, "SystemGuaranteeCurveStr");
  if (found) curve.setSystemGuaranteeCurveStr(loadCurve(str));
  Helper::applyOptional<std::uint32_t>(
      object, "outSystemReservoirId", [&](std::uint32_t id) { curve.setOutSystemReservoirId(id); });
  Helper::applyOptional<bool>(object, "OnlyQ90", [&](bool value) { curve.setOnlyQ90(value); });
  JsonLoadExecutionOptimization::loadAlgorithm(object, curve,
                                               OptimizationAlgorithmTypeNames::systemCurveTypeOf);
}
