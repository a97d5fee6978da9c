#include "service/Labeldefinitions.h"

#include <algorithm>
#include <ctime>

std::string Labeldefinitions::produceTimeStamp() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[64];
  std::strftime(text, sizeof(text), "%a %b %d %H:%M:%S %Y\n", &local);
  return text;
}

std::string Labeldefinitions::produceLabel(const std::string& timeStamp) {
  std::string label = timeStamp;
  label.erase(std::remove_if(label.begin(), label.end(),
                             [](char c) {
                               return c == '.' || c == ':' || c == '\n' || c == '\r' || c == ' ';
                             }),
              label.end());
  return label;
}

std::string Labeldefinitions::produceLabel() { return produceLabel(produceTimeStamp()); }
