#pragma once

#include <memory>
#include <string>

#include "common/regression/RegressionTechnique.h"
#include "project/JsonSaveBuilder.h"

// Writes a reservoir's interpolator object, {"type":"<name>"}. The cubic spline has no keys of its
// own and is written by this class.
class JsonSaveRegressionTechnique {
 public:
  explicit JsonSaveRegressionTechnique(std::shared_ptr<RegressionTechnique> technique);
  virtual ~JsonSaveRegressionTechnique() = default;

  // The interpolator object.
  std::string toJson() const;

 protected:
  // The members of the interpolator's kind, after its type; none here.
  virtual JsonSaveBuilder::Members toJsonSpecific() const;

 private:
  std::shared_ptr<RegressionTechnique> technique;
};
