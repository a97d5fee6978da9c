#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "layering/LayerRules.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& line : lines) text += line + "\n";
  return text;
}

// A tree of source files, each given by its path under the root and its text.
void writeTree(const TemporaryFolder& root, const std::vector<std::pair<std::string, std::string>>& files) {
  for (const auto& [name, text] : files) {
    const fs::path path = root.file(name);
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
  }
}

const char* const kThreeFloors =
    "# bottom first\n"
    "common kernel   # side by side\n"
    "\n"
    "core\n"
    "operation\n";

}  // namespace

TEST(Layering, TheLibraryKeepsToItsFloors) {
  const fs::path root = KOVA_SOURCE_DIR;
  const auto rules = LayerRules::parse(readFile(root / "layers.txt"));
  const auto findings = rules.check(root);
  EXPECT_TRUE(findings.empty()) << joined(findings);
}

TEST(Layering, IncludesDownwardAndWithinAFolderPass) {
  TemporaryFolder root("kova_layers_");
  writeTree(root, {{"include/common/Date.h", "#include <vector>\n"},
                   {"include/core/Reservoir.h", "#include \"common/Date.h\"\n#include \"Local.h\"\n"},
                   {"src/core/Reservoir.cpp", "#include \"core/Reservoir.h\"\n"},
                   {"src/operation/Run.cpp",
                    "#include \"core/Reservoir.h\"\n  #  include \"common/Date.h\"\n"
                    "// #include \"operation/Nothing.h\" is a comment, not an include\n"}});
  EXPECT_TRUE(LayerRules::parse(kThreeFloors).check(root.file("")).empty());
}

TEST(Layering, EveryWrongIncludeIsNamedWithItsFile) {
  TemporaryFolder root("kova_layers_");
  writeTree(root, {{"include/core/Scenario.h", "#include \"operation/Run.h\"\n"},
                   {"src/common/Date.cpp", "#include \"kernel/Swarm.h\"\n#include \"gui/Window.h\"\n"},
                   {"src/service/Server.cpp", "#include \"core/Scenario.h\"\n"},
                   {"src/operation/Run.cpp", "#include \"core/Scenario.h\"\n"}});
  const auto findings = LayerRules::parse(kThreeFloors).check(root.file(""));
  EXPECT_EQ(joined(findings),
            "include/core/Scenario.h: #include \"operation/Run.h\" reaches up from core to "
            "operation\n"
            "src/common/Date.cpp: #include \"kernel/Swarm.h\" reaches across from common to kernel "
            "on the same floor\n"
            "src/common/Date.cpp: #include \"gui/Window.h\": folder gui is not in the layers file\n"
            "src/service/Server.cpp: folder service is not in the layers file\n");
}

TEST(Layering, AFolderListedTwiceIsRefused) {
  EXPECT_THROW_TEXT(LayerRules::parse("common\ncore common\n"), std::invalid_argument,
                    "LayerRules::parse(): common is listed twice");
}
