#include "service/TemporaryWorkspace.h"

#include <stdlib.h>

#include <stdexcept>
#include <string>

TemporaryWorkspace::TemporaryWorkspace() {
  const auto base = std::filesystem::temp_directory_path();
  std::string pattern = (base / "kova_request_XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("TemporaryWorkspace: cannot create a folder in " + base.string());
  }
  folder = pattern;
}

TemporaryWorkspace::~TemporaryWorkspace() {
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}
