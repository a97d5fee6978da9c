#pragma once

#include <map>
#include <memory>
#include <vector>

#include "checks/CheckCompleteness.h"
#include "core/Element.h"

// Checks of a node's allocation matrix: the entry under the node's own id holds the release of
// each line, the other entries the flow of each outgoing link at that line (m³/s). Each check
// but checkTheEmptyMatrix and checkTheMatrixReleasesSomething passes an empty matrix. Differences
// within 1e-6 count as none.
class AllocationMatrixCheck {
 public:
  using Matrix = std::map<unsigned int, std::vector<double>>;
  using Errors = std::vector<CheckCompleteness::ErrorStruct>;

  // The releases must rise strictly from line to line.
  static void checkReleasesInLinesOfMatrix(const Matrix& matrix, const Element& element,
                                           Errors& errors);
  static void checkTheEmptyMatrix(const Matrix& matrix, const Element& element, Errors& errors);
  // Reports "Matriz de alocação vazia:" also when no line releases anything: the one line of
  // zeros that a node gets when it is made, which passes nothing on, is no matrix either.
  static void checkTheMatrixReleasesSomething(const Matrix& matrix, const Element& element,
                                              Errors& errors);
  // Each line's flows must add up to its release.
  static void checkTheSumOfMatrixEqual(const Matrix& matrix, const Element& element,
                                       Errors& errors);
  static void checkIfTheReleaseValueIsEqualToZero(const Matrix& matrix, const Element& element,
                                                  Errors& errors);
  // No line's flows may add up to more than its release.
  static void checkTheSumOfMatrixBiggerThan(const Matrix& matrix, const Element& element,
                                            Errors& errors);
  static void checkTheSumOfMatrixBiggerThanZero(const Matrix& matrix, const Element& element,
                                                Errors& errors);
  // The flows of a line over every link.
  static double lineSum(const Matrix& matrix, unsigned int ownId, std::size_t line);
};
