#include "service/SerieSaverAsJson.h"

#include <cstdio>

#include "common/Date.h"
#include "common/Serie.h"
#include "service/JsonText.h"

namespace {

std::string dayOf(unsigned int julian) {
  unsigned char hour = 0;
  return Date::gregorian(julian, hour).toString("%Y-%m-%d");
}

std::string fixed(double value) {
  char text[64];
  std::snprintf(text, sizeof(text), "%f", value);
  return text;
}

}  // namespace

std::string SerieSaverAsJson::getJson(const Serie& serie) {
  std::string text = "{\"type\": " + JsonText::quote(serie.getName()) +
                     ",\"unit\": " + JsonText::quote(serie.getUnit().getName()) +
                     ",\"interval\":{\"begin\": \"" +
                     serie.getInterval().getBegin().toString("%Y-%m-%d") + "\",\"end\":\"" +
                     serie.getInterval().getEnd().toString("%Y-%m-%d") + "\"},\"values\":[";
  bool first = true;
  for (const auto& [julian, value] : serie.getMapOfJulianToValues()) {
    text += (first ? "" : ",") + std::string("{\"date\":\"") + dayOf(julian) +
            "\",\"value\":" + fixed(value) + "}";
    first = false;
  }
  return text + "]}";
}
