#include "service/ZipArchive.h"

#include <zip.h>

#include <fstream>
#include <stdexcept>
#include <vector>

namespace {

[[noreturn]] void fail(const std::string& what, const std::string& name) {
  throw std::runtime_error("ZipArchive: " + what + " failed: " + name);
}

}  // namespace

ZipArchive::ZipArchive(const std::string& path, int level, char mode)
    : handle(zipOpen64(path.c_str(), mode == 'a' ? APPEND_STATUS_ADDINZIP : APPEND_STATUS_CREATE)),
      level(level) {
  if (handle == nullptr) {
    fail("open", path);
  }
}

ZipArchive::~ZipArchive() {
  if (handle != nullptr) {
    if (entryOpen) zipCloseFileInZip(handle);
    zipClose(handle, nullptr);
  }
}

void ZipArchive::zip_entry_open(const std::string& name) {
  zip_fileinfo info{};
  if (zipOpenNewFileInZip64(handle, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr,
                            Z_DEFLATED, level, 1) != ZIP_OK) {
    fail("entry open", name);
  }
  entryOpen = true;
}

void ZipArchive::zip_entry_fwrite(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    fail("read", path);
  }
  std::vector<char> buffer(1 << 16);
  while (file) {
    file.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    const auto count = static_cast<unsigned int>(file.gcount());
    if (count > 0 && zipWriteInFileInZip(handle, buffer.data(), count) != ZIP_OK) {
      fail("write", path);
    }
  }
  if (!file.eof()) {
    fail("read", path);
  }
}

void ZipArchive::zip_entry_close() {
  entryOpen = false;
  if (zipCloseFileInZip(handle) != ZIP_OK) {
    fail("entry close", "");
  }
}

void ZipArchive::zip_close() {
  void* closing = handle;
  handle = nullptr;
  if (zipClose(closing, nullptr) != ZIP_OK) {
    fail("close", "");
  }
}
