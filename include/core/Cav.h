#pragma once

#include <memory>
#include <vector>

#include "common/regression/RegressionTechnique.h"

// One curve of a reservoir's level-area-volume table, built for a lookup: rows of (x, y) and the
// interpolator to run over them.
class Cav {
 public:
  // Throws std::invalid_argument "The matrix must have at least two rows and have exactly two
  // columns." for any other shape.
  Cav(std::shared_ptr<RegressionTechnique> regressionTechnique,
      std::vector<std::vector<double>> matrix);

  const std::vector<std::vector<double>>& getMatrix() const { return matrix; }

  // A curve kept between lookups owns its interpolator, which needs preparing only once.
  void keepBetweenLookups() { kept = true; }
  // Whether the interpolator must be prepared from the rows before the next lookup.
  bool needsPreparing() const { return !kept || !prepared; }
  void markPrepared() const { prepared = true; }
  const std::shared_ptr<RegressionTechnique>& getRegressionTechnique() const {
    return regressionTechnique;
  }

 private:
  static void checkMatrix(const std::vector<std::vector<double>>& matrix);

  std::shared_ptr<RegressionTechnique> regressionTechnique;
  std::vector<std::vector<double>> matrix;
  bool kept = false;
  mutable bool prepared = false;
};
