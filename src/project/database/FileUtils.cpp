#include "project/database/FileUtils.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

bool FileUtils::hasFileWritePermission(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "a+");
  if (file != nullptr) {
    std::fclose(file);
    return true;
  }
  return !isPermissionDenied(errno);
}

bool FileUtils::isPermissionDenied(int errorNumber) { return errorNumber == EACCES; }

bool FileUtils::isSameFile(const std::string& a, const std::string& b) {
  std::error_code error;
  return std::filesystem::equivalent(std::filesystem::u8path(a), std::filesystem::u8path(b), error);
}
