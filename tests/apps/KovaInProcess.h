#pragma once

#include <algorithm>
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

// How many lines a text kova printed holds.
inline std::size_t linesOf(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}
