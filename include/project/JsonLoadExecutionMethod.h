#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "common/Interval.h"
#include "core/ExecutionMethod.h"

// Reads an execution method object: the method is made for its type over the scenario's interval,
// then takes the common part (every key optional, the nested object too: what is absent keeps the
// value the method was made with), then the keys of its kind. The continuous and the windowed
// method have none, so this class reads both; methods with keys of their own derive from it.
class JsonLoadExecutionMethod {
 public:
  // A reader of methods of type.
  explicit JsonLoadExecutionMethod(ExecutionType type);
  virtual ~JsonLoadExecutionMethod() = default;

  // The method of object for interval. Throws nlohmann::json::type_error for a value of the wrong
  // type, JsonLoadException for a window without its date or flag, and std::invalid_argument from
  // the method for a window size of 0.
  std::shared_ptr<ExecutionMethod> load(const nlohmann::json& object,
                                        const Interval& interval) const;

 protected:
  // A new method of the type over interval.
  virtual std::shared_ptr<ExecutionMethod> makeInstance(const Interval& interval) const;
  // Reads the keys of the method's kind; none here.
  virtual void loadSpecific(const nlohmann::json& object, ExecutionMethod& method) const;

 private:
  static void loadCommon(const nlohmann::json& common, ExecutionMethod& method);

  ExecutionType type;
};
