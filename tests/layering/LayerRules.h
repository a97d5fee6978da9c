#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// The floors of the library read from a layers file, and the check of a source tree against them:
// a file under include/<folder>/ or src/<folder>/ may include headers of its own folder and of
// folders on lower floors only.
class LayerRules {
 public:
  // Reads one floor a line, bottom first, folders separated by blanks; '#' starts a comment.
  // Throws std::invalid_argument "LayerRules::parse(): <folder> is listed twice" for a repeat.
  static LayerRules parse(const std::string& text);

  // One line per offending include of the files under root/include and root/src, in path order:
  // "<file>: #include \"<header>\" reaches up from <folder> to <folder>" or
  // "<file>: #include \"<header>\" reaches across from <folder> to <folder> on the same floor",
  // "<file>: #include \"<header>\": folder <folder> is not in the layers file" for an include of
  // an unlisted folder, and "<file>: folder <folder> is not in the layers file" for a file in one.
  std::vector<std::string> check(const std::filesystem::path& root) const;

 private:
  std::vector<std::string> checkFile(const std::filesystem::path& file,
                                     const std::string& shownName, const std::string& folder) const;

  std::map<std::string, int> floorOf;
};
