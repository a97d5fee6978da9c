#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "support/TemporaryFolder.h"

// The demo project over 1931-1933, nothing run yet: made once per test program, and copied into
// folder for each test, which may change its copy. The path of the copy's project file.
inline std::string copyOfDemo(const TemporaryFolder& folder) {
  static const TemporaryFolder pristine("kova_demo_copy_");
  static const bool made = [] {
    const auto demo =
        kova({"demo", pristine.file(""), "--data", KOVA_DEMO_DATA, "--until", "1933", "--quiet"});
    EXPECT_EQ(demo.status, exitOk) << demo.err;
    return demo.status == exitOk;
  }();
  EXPECT_TRUE(made);
  for (const auto& entry : std::filesystem::directory_iterator(pristine.file(""))) {
    std::filesystem::copy(entry.path(), folder.file(entry.path().filename().string()));
  }
  return folder.file("sao_francisco.sjson");
}
