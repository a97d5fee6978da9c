#pragma once

#include <string>
#include <vector>

#include "optimization/expression/ExpressionDefinition.h"

// The arrays of the nodes whose children spread over elements.
class ExpressionSaveUtils {
 public:
  // [<child>,...]
  static std::string getSaveStringOfExpressionsToSingleElementExpression(
      const std::vector<ExpressionPtr>& expressions);
  // [{"elementID":<id>,"expression":<child>},...], child i with id i. A child whose element is not
  // chosen yet is written with element 0.
  static std::string getSaveStringOfOneExpressionToEachElement(
      const std::vector<ExpressionPtr>& expressions, const std::vector<unsigned int>& ids);
  // The same for the first and the second child.
  static std::string getSaveStringOfOneExpressionToEachOfTwoElement(const ExpressionPtr& first,
                                                                    const ExpressionPtr& second,
                                                                    unsigned int firstID,
                                                                    unsigned int secondID);
  // [<id>,...]
  static std::string getSaveStringOfElementIDs(const std::vector<unsigned int>& ids);
};
