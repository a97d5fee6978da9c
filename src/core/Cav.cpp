#include "core/Cav.h"

#include <algorithm>
#include <stdexcept>

Cav::Cav(std::shared_ptr<RegressionTechnique> regressionTechnique,
         std::vector<std::vector<double>> matrix)
    : regressionTechnique(std::move(regressionTechnique)), matrix(std::move(matrix)) {
  checkMatrix(this->matrix);
}

void Cav::checkMatrix(const std::vector<std::vector<double>>& matrix) {
  const bool twoColumns = std::all_of(matrix.begin(), matrix.end(),
                                      [](const std::vector<double>& row) { return row.size() == 2; });
  if (matrix.size() < 2 || !twoColumns) {
    throw std::invalid_argument(
        "The matrix must have at least two rows and have exactly two columns.");
  }
}
