#pragma once

#include <mutex>
#include <ostream>
#include <string>

// The console of the service: the texts of the workers and processors, each call written whole
// so that the lines of concurrent workers do not mix within a call.
class ServiceLog {
 public:
  explicit ServiceLog(std::ostream& out);

  void print(const std::string& text);
  // The log on standard output.
  static ServiceLog& standardOutput();

 private:
  std::ostream& out;
  std::mutex mutex;
};
