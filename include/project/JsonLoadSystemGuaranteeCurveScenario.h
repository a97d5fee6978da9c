#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "project/JsonLoadScenario.h"

// Reads a system guarantee-curve scenario: the common keys only; the curve is the method's.
class JsonLoadSystemGuaranteeCurveScenario : public JsonLoadScenario {
 protected:
  void specificLoad(const nlohmann::json&, Scenario&) const override {}
  std::shared_ptr<Scenario> getInstance(const std::shared_ptr<ExecutionMethod>& method,
                                        unsigned int id, const Interval& interval,
                                        const std::string& name) const override;
};
