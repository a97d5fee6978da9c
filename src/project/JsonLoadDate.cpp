#include "project/JsonLoadDate.h"

#include "project/JsonLoadHelper.h"

Date JsonLoadDate::load(const nlohmann::json& object) {
  // Day and month are read at full width so that a value such as 257 is refused by Date instead
  // of wrapping to a valid month.
  return Date(JsonLoadHelper::getRequired<unsigned int>(object, "year"),
              JsonLoadHelper::getRequired<unsigned int>(object, "month"),
              JsonLoadHelper::getRequired<unsigned int>(object, "day"));
}
