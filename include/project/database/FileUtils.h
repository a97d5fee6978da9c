#pragma once

#include <string>

// File-system questions of project operations.
class FileUtils {
 public:
  // False only when opening path for appending is refused for lack of permission (EACCES); the
  // test creates a missing file, and any other failure counts as permitted, to be met by the
  // reader. Note that a process of the super-user is never refused.
  static bool hasFileWritePermission(const std::string& path);
  // Whether an open that failed with errorNumber means no permission.
  static bool isPermissionDenied(int errorNumber);
  // Whether the two paths (UTF-8) name one existing file; false when either is missing.
  static bool isSameFile(const std::string& a, const std::string& b);
};
