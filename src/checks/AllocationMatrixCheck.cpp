#include "checks/AllocationMatrixCheck.h"

#include <algorithm>
#include <string>

#include "common/NumericalUtils.h"

namespace {

constexpr double kEps = 1e-6;

// The releases of the node's own entry, or null when the matrix has none.
const std::vector<double>* releasesOf(const AllocationMatrixCheck::Matrix& matrix,
                                      const Element& element) {
  auto it = matrix.find(element.getId());
  return it == matrix.end() ? nullptr : &it->second;
}

void report(AllocationMatrixCheck::Errors& errors, const Element& element,
            const std::string& message) {
  errors.push_back({element.getName(), message});
}

std::string line(std::size_t i) { return "(i = " + std::to_string(i) + ")"; }

// Runs finding(i, release, sum) on each line of a matrix that is not empty.
template <typename Finding>
void eachLine(const AllocationMatrixCheck::Matrix& matrix, const Element& element,
              Finding finding) {
  const std::vector<double>* releases = releasesOf(matrix, element);
  if (matrix.empty() || releases == nullptr) return;
  for (std::size_t i = 0; i < releases->size(); ++i) {
    finding(i, (*releases)[i], AllocationMatrixCheck::lineSum(matrix, element.getId(), i));
  }
}

}  // namespace

double AllocationMatrixCheck::lineSum(const Matrix& matrix, unsigned int ownId, std::size_t line) {
  double sum = 0.0;
  for (const auto& [id, column] : matrix) {
    if (id != ownId && line < column.size()) sum += column[line];
  }
  return sum;
}

void AllocationMatrixCheck::checkReleasesInLinesOfMatrix(const Matrix& matrix,
                                                         const Element& element, Errors& errors) {
  const std::vector<double>* releases = releasesOf(matrix, element);
  if (matrix.empty() || releases == nullptr) return;
  for (std::size_t i = 0; i + 1 < releases->size(); ++i) {
    if (NumericalUtils::subtractDoubles((*releases)[i + 1], (*releases)[i], kEps) <= 0.0) {
      report(errors, element,
             "Matrix de alocação inválida, as liberações não estão em ordem crescente o valor de "
             "liberação da linha i + 1 é menor igual ao da linha i:(i = " +
                 std::to_string(i) + ", i + 1 = " + std::to_string(i + 1) + ")");
    }
  }
}

void AllocationMatrixCheck::checkTheEmptyMatrix(const Matrix& matrix, const Element& element,
                                                Errors& errors) {
  const std::vector<double>* releases = releasesOf(matrix, element);
  if (matrix.empty() || releases == nullptr || releases->empty()) {
    report(errors, element, "Matriz de alocação vazia:");
  }
}

void AllocationMatrixCheck::checkTheMatrixReleasesSomething(const Matrix& matrix,
                                                            const Element& element,
                                                            Errors& errors) {
  const std::vector<double>* releases = releasesOf(matrix, element);
  const bool releasesSomething =
      releases != nullptr && std::any_of(releases->begin(), releases->end(), [](double release) {
        return NumericalUtils::subtractDoubles(release, 0.0, kEps) > 0.0;
      });
  if (!releasesSomething) report(errors, element, "Matriz de alocação vazia:");
}

void AllocationMatrixCheck::checkTheSumOfMatrixEqual(const Matrix& matrix, const Element& element,
                                                     Errors& errors) {
  eachLine(matrix, element, [&](std::size_t i, double release, double sum) {
    if (NumericalUtils::subtractDoubles(sum, release, kEps) != 0.0) {
      report(errors, element, "O somatório da linha i não é o mesmo da liberação:" + line(i));
    }
  });
}

void AllocationMatrixCheck::checkIfTheReleaseValueIsEqualToZero(const Matrix& matrix,
                                                                const Element& element,
                                                                Errors& errors) {
  eachLine(matrix, element, [&](std::size_t i, double release, double) {
    if (NumericalUtils::compareDoubles(release, 0.0, kEps)) {
      report(errors, element, "A liberação não pode ter valor zero:" + line(i));
    }
  });
}

void AllocationMatrixCheck::checkTheSumOfMatrixBiggerThan(const Matrix& matrix,
                                                          const Element& element, Errors& errors) {
  eachLine(matrix, element, [&](std::size_t i, double release, double sum) {
    if (NumericalUtils::subtractDoubles(sum, release, kEps) > 0.0) {
      report(errors, element, "O somatório da linha i excede ao da liberação:" + line(i));
    }
  });
}

void AllocationMatrixCheck::checkTheSumOfMatrixBiggerThanZero(const Matrix& matrix,
                                                              const Element& element,
                                                              Errors& errors) {
  eachLine(matrix, element, [&](std::size_t i, double, double sum) {
    if (NumericalUtils::compareDoubles(sum, 0.0, kEps)) {
      report(errors, element, "O somatório da linha i não pode ser zero:" + line(i));
    }
  });
}
