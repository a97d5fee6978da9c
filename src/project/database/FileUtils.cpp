#include "project/database/FileUtils.h"

#include <cerrno>
#include <cstdio>

bool FileUtils::hasFileWritePermission(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "a+");
  if (file != nullptr) {
    std::fclose(file);
    return true;
  }
  return !isPermissionDenied(errno);
}

bool FileUtils::isPermissionDenied(int errorNumber) { return errorNumber == EACCES; }
