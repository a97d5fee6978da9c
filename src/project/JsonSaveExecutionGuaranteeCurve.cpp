#include "project/JsonSaveExecutionGuaranteeCurve.h"

#include "optimization/ExecutionGuaranteeCurve.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSaveExecutionGuaranteeCurve::toJsonSpecific() const {
  const auto& method = dynamic_cast<const ExecutionGuaranteeCurve&>(getMethod());
  const auto& curve = method.getGuaranteeStr();
  const std::string str = B::makeObject(
      {B::makeJsonKeyValue("guaranteeValues",
                           B::makeVectorOfExactValues(method.getGuaranteeValues())),
       B::makeJsonKeyValue("reservoirsIds", B::makeVectorOfIntegerValues(curve.reservoirIds)),
       B::makeJsonKeyValue("releases", B::makeArray(curve.values, B::makeVectorOfExactValues)),
       B::makeJsonKeyValue("guarantees", B::makeVectorOfExactValues(curve.guarantees))});
  return {B::makeJsonKeyValue("numOfIterations", method.getNumberOfIterations()),
          B::makeJsonKeyValue("OnlyQ90", method.isOnlyQ90()),
          B::makeJsonKeyValue("GuaranteeCurveStr", str)};
}
