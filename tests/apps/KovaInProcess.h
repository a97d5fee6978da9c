#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "HostText.h"
#include "KovaApp.h"

// What a kova command run in this process printed and how it ended, in English whatever the
// locale of the test.
struct Outcome {
  int status;
  std::string out, err;
};

inline Outcome kova(const std::vector<std::string>& args) {
  HostText::use(HostText::Language::english);
  std::ostringstream out, err;
  Console console{out, err, false};
  const int status = KovaApp::run(args, console);
  return {status, out.str(), err.str()};
}
