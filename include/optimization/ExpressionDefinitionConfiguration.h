#pragma once

#include <string>

#include "optimization/expression/ExpressionDefinition.h"
#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

// A personalised objective function of an optimisation: the user's formula, whether it takes
// part in the run, and the sense and unit the user gave it. The swarm minimises the formula's
// value as it stands whatever the sense: a formula whose value should grow must be written
// negated.
class ExpressionDefinitionConfiguration {
 public:
  ExpressionDefinitionConfiguration(ExpressionPtr rootExpression, bool enabled, bool minimization,
                                    Enum<Unit> unit);

  const ExpressionPtr& getRootExpression() const { return rootExpression; }
  // The root's name, as the dialog shows the function.
  const std::string& getName() const { return rootExpression->getName(); }
  bool isEnabled() const { return enabled; }
  void setEnabled(bool value) { enabled = value; }
  bool isMinimization() const { return minimization; }
  const Enum<Unit>& getUnit() const { return unit; }

 private:
  ExpressionPtr rootExpression;
  bool enabled;
  bool minimization;
  Enum<Unit> unit;
};
