#include "project/JsonLoadExecutionMethod.h"

#include "operation/ExecutionMethodFactoryByType.h"
#include "project/JsonLoadDate.h"
#include "project/JsonLoadHelper.h"

using json = nlohmann::json;

JsonLoadExecutionMethod::JsonLoadExecutionMethod(ExecutionType type) : type(type) {}

std::shared_ptr<ExecutionMethod> JsonLoadExecutionMethod::load(const json& object,
                                                               const Interval& interval) const {
  std::shared_ptr<ExecutionMethod> method = makeInstance(interval);
  bool found = false;
  const json& common = JsonLoadHelper::findOptional(found, object, "ExecutionMethod");
  if (found) loadCommon(common, *method);
  loadSpecific(object, *method);
  return method;
}

std::shared_ptr<ExecutionMethod> JsonLoadExecutionMethod::makeInstance(
    const Interval& interval) const {
  return ExecutionMethodFactoryByType::make(type, interval);
}

void JsonLoadExecutionMethod::loadSpecific(const json&, ExecutionMethod&) const {}

void JsonLoadExecutionMethod::loadCommon(const json& common, ExecutionMethod& method) {
  using Helper = JsonLoadHelper;
  Helper::applyOptional<unsigned int>(common, "windowSize",
                                      [&](unsigned int value) { method.setWindowSize(value); });
  Helper::applyOptional<unsigned char>(common, "initialMonth",
                                       [&](unsigned char value) { method.setInitialMonth(value); });
  bool found = false;
  const json& years = Helper::findOptional(found, common, "yearsDate");
  if (found) {
    std::vector<std::pair<Date, bool>> yearsDate;
    for (const json& year : Helper::asArray(years)) {
      yearsDate.emplace_back(JsonLoadDate::load(Helper::findRequired(year, "date")),
                             Helper::getRequired<bool>(year, "checked"));
    }
    method.setYearsDate(yearsDate);
  }
  Helper::applyOptional<bool>(common, "zeroContribution",
                              [&](bool value) { method.setZeroContribution(value); });
}
