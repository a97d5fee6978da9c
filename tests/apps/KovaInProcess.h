#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "KovaApp.h"

// What a kova command run in this process printed and how it ended.
struct Outcome {
  int status;
  std::string out, err;
};

inline Outcome kova(const std::vector<std::string>& args) {
  std::ostringstream out, err;
  Console console{out, err, false};
  const int status = KovaApp::run(args, console);
  return {status, out.str(), err.str()};
}
