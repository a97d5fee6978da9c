#include "project/JsonSaveExecutionMethod.h"

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveDate.h"

using B = JsonSaveBuilder;

JsonSaveExecutionMethod::JsonSaveExecutionMethod(std::shared_ptr<ExecutionMethod> method)
    : method(std::move(method)) {}

std::string JsonSaveExecutionMethod::toJson() const {
  B::Members members = {B::makeJsonKeyValue("ExecutionMethod", toJsonCommon())};
  const B::Members specific = toJsonSpecific();
  members.insert(members.end(), specific.begin(), specific.end());
  return B::makeObject(members);
}

std::string JsonSaveExecutionMethod::toJsonCommon() const {
  const auto window = [](const std::pair<Date, bool>& year) {
    return B::makeObject({B::makeJsonKeyValue("date", JsonSaveDate::toJson(year.first)),
                          B::makeJsonKeyValue("checked", year.second)});
  };
  return B::makeObject(
      {B::makeJsonKeyValue("windowSize", method->getWindowSize()),
       B::makeJsonKeyValue("initialMonth", method->getInitialMonth()),
       B::makeJsonKeyValue("yearsDate", B::makeArray(method->getYearsDate(), window)),
       B::makeJsonKeyValue("zeroContribution", method->getZeroContribution())});
}

JsonSaveBuilder::Members JsonSaveExecutionMethod::toJsonSpecific() const { return {}; }
