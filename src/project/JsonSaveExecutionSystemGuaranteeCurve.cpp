#include "project/JsonSaveExecutionSystemGuaranteeCurve.h"

#include "optimization/ExecutionSystemGuaranteeCurve.h"
#include "project/JsonSaveOptAlgorithmFactory.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSaveExecutionSystemGuaranteeCurve::toJsonSpecific() const {
  const auto& method = dynamic_cast<const ExecutionSystemGuaranteeCurve&>(getMethod());
  const auto& curve = method.getSystemGuaranteeCurveStr();
  const std::string str = B::makeObject(
      {B::makeJsonKeyValue("guaranteeCurveValues", B::makeVectorOfExactValues(curve.guarantees)),
       B::makeJsonKeyValue("outReservoirId", curve.outSystemReservoirId),
       B::makeJsonKeyValue("releases", B::makeVectorOfExactValues(curve.guaranteeCurveValues))});
  return {B::makeJsonKeyValue("outSystemReservoirId", method.getOutSystemReservoirId()),
          B::makeJsonKeyValue("OnlyQ90", method.isOnlyQ90()),
          B::makeJsonKeyValue(
              "OptAlgorithm",
              JsonSaveOptAlgorithmFactory::make(method.getOptimizationAlgorithm())->toJson()),
          B::makeJsonKeyValue("SystemGuaranteeCurveStr", str)};
}
