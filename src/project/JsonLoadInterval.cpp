#include "project/JsonLoadInterval.h"

#include <stdexcept>

#include "project/JsonLoadDate.h"
#include "project/JsonLoadHelper.h"
#include "vocabulary/Vocabulary.h"

Interval JsonLoadInterval::load(const nlohmann::json& object) {
  const Date begin = JsonLoadDate::load(JsonLoadHelper::findRequired(object, "begin"));
  const Date end = JsonLoadDate::load(JsonLoadHelper::findRequired(object, "end"));
  const auto name = JsonLoadHelper::getRequired<std::string>(object, "periodicity");
  const EnumPeriodicity* periodicity = Vocabulary::periodicities().findByName(name);
  if (periodicity == nullptr) {
    throw std::invalid_argument("JsonLoadInterval::load(): invalid periodicity");
  }
  return Interval(begin, end, *periodicity);
}
