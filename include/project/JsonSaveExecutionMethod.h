#pragma once

#include <memory>
#include <string>

#include "core/ExecutionMethod.h"
#include "project/JsonSaveBuilder.h"

// Writes an execution method object. The common part stands under a key of its own:
// {"ExecutionMethod":{"windowSize":..,"initialMonth":..,"yearsDate":[..],"zeroContribution":..}}
// followed by the keys of the method's kind. The continuous and the windowed method have none, so
// this class writes both; methods with keys of their own derive from it.
class JsonSaveExecutionMethod {
 public:
  explicit JsonSaveExecutionMethod(std::shared_ptr<ExecutionMethod> method);
  virtual ~JsonSaveExecutionMethod() = default;

  // The method object.
  std::string toJson() const;
  // The common part: window size, initial month, candidate windows with their flags, and
  // whether inflows count as zero.
  std::string toJsonCommon() const;

 protected:
  // The members of the method's kind, after the common part; none here.
  virtual JsonSaveBuilder::Members toJsonSpecific() const;
  const ExecutionMethod& getMethod() const { return *method; }

 private:
  std::shared_ptr<ExecutionMethod> method;
};
