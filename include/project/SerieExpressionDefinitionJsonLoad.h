#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a series of the element: "serieType", optional, the released volume when absent. A name
// that an input and a result series share stands for the result series, the only ones a formula
// reads.
class SerieExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
