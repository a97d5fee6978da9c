#include "project/JsonSaveInterval.h"

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveDate.h"

using B = JsonSaveBuilder;

std::string JsonSaveInterval::toJson(const Interval& interval) {
  return B::makeObject(
      {B::makeJsonKeyValue("begin", JsonSaveDate::toJson(interval.getBegin())),
       B::makeJsonKeyValue("end", JsonSaveDate::toJson(interval.getEnd())),
       B::makeJsonKeyValueString("periodicity", interval.getPeriodicity().getName())});
}
