#pragma once

#include <string>

class Serie;

// A series as the series reply writes it.
class SerieSaverAsJson {
 public:
  // {"type": "<type>","unit": "<unit>","interval":{"begin": "<date>","end":"<date>"},
  // "values":[{"date":"<date>","value":<%f>},...]}, dates as "%Y-%m-%d", values in date order.
  static std::string getJson(const Serie& serie);
};
