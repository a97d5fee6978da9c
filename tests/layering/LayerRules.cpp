#include "layering/LayerRules.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

LayerRules LayerRules::parse(const std::string& text) {
  LayerRules rules;
  std::istringstream lines(text);
  std::string line;
  int floor = 0;
  while (std::getline(lines, line)) {
    line = line.substr(0, line.find('#'));
    std::istringstream words(line);
    std::string folder;
    bool any = false;
    while (words >> folder) {
      if (!rules.floorOf.emplace(folder, floor).second) {
        throw std::invalid_argument("LayerRules::parse(): " + folder + " is listed twice");
      }
      any = true;
    }
    if (any) ++floor;
  }
  return rules;
}

std::vector<std::string> LayerRules::check(const fs::path& root) const {
  std::vector<std::pair<std::string, std::vector<std::string>>> byFile;
  for (const char* top : {"include", "src"}) {
    const fs::path base = root / top;
    if (!fs::is_directory(base)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(base)) {
      const auto extension = entry.path().extension();
      if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp")) continue;
      const fs::path relative = fs::relative(entry.path(), base);
      const std::string shown = (fs::path(top) / relative).generic_string();
      byFile.emplace_back(shown,
                          checkFile(entry.path(), shown, relative.parent_path().generic_string()));
    }
  }
  std::sort(byFile.begin(), byFile.end());
  std::vector<std::string> findings;
  for (const auto& file : byFile) {
    findings.insert(findings.end(), file.second.begin(), file.second.end());
  }
  return findings;
}

std::vector<std::string> LayerRules::checkFile(const fs::path& file, const std::string& shownName,
                                               const std::string& folder) const {
  const auto own = floorOf.find(folder);
  if (own == floorOf.end()) return {shownName + ": folder " + folder + " is not in the layers file"};
  static const std::regex includeLine(R"(^\s*#\s*include\s*"([^"]+)\")");
  std::vector<std::string> findings;
  std::ifstream stream(file);
  std::string line;
  std::smatch match;
  while (std::getline(stream, line)) {
    if (!std::regex_search(line, match, includeLine)) continue;
    const std::string header = match[1];
    const std::string target = fs::path(header).parent_path().generic_string();
    if (target.empty() || target == folder) continue;
    const std::string shownInclude = shownName + ": #include \"" + header + "\"";
    const auto other = floorOf.find(target);
    if (other == floorOf.end()) {
      findings.push_back(shownInclude + ": folder " + target + " is not in the layers file");
    } else if (other->second > own->second) {
      findings.push_back(shownInclude + " reaches up from " + folder + " to " + target);
    } else if (other->second == own->second) {
      findings.push_back(shownInclude + " reaches across from " + folder + " to " + target +
                         " on the same floor");
    }
  }
  return findings;
}
