#include "service/ServiceLog.h"

#include <iostream>

ServiceLog::ServiceLog(std::ostream& out) : out(out) {}

void ServiceLog::print(const std::string& text) {
  std::lock_guard<std::mutex> lock(mutex);
  out << text << std::flush;
}

ServiceLog& ServiceLog::standardOutput() {
  static ServiceLog log(std::cout);
  return log;
}
