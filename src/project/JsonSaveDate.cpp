#include "project/JsonSaveDate.h"

#include "project/JsonSaveBuilder.h"

std::string JsonSaveDate::toJson(const Date& date) {
  return JsonSaveBuilder::makeObject({JsonSaveBuilder::makeJsonKeyValue("day", date.getDay()),
                                      JsonSaveBuilder::makeJsonKeyValue("month", date.getMonth()),
                                      JsonSaveBuilder::makeJsonKeyValue("year", date.getYear())});
}
