#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "ExitStatus.h"
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

// One element's series of one kind (a name or number) in the stored run, as csv.
inline std::string seriesCsv(const std::string& project, const std::string& scenario,
                             const std::string& element, const std::string& kind) {
  const auto series = kova({"series", project, "--scenario", scenario, "--element", element,
                            "--kind", kind, "--format", "csv"});
  EXPECT_EQ(series.status, exitOk) << series.err;
  return series.out;
}
