#pragma once

#include <string>

// Time stamps for the worker's console lines and labels made from them.
class Labeldefinitions {
 public:
  // The local time as "Www Mmm dd hh:mm:ss yyyy" followed by a line break.
  static std::string produceTimeStamp();
  // timeStamp without ".", ":", line breaks and blanks.
  static std::string produceLabel(const std::string& timeStamp);
  // produceLabel of the current time stamp.
  static std::string produceLabel();
};
