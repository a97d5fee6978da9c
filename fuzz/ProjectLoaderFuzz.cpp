#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <nlohmann/json.hpp>
#include <string>

#include "core/ConfigurationHeader.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"

// Feeds arbitrary text to the project loader. Any text must end in scenarios or in an exception,
// never in a crash, a hang or a leak. What loads must be written, what is written must load
// again, and writing that gives the same project: numbers may move in their last decimal, since
// 17 fixed decimals hold fewer significant digits below 0.1.
namespace {

bool sameNumber(double a, double b) {
  return a == b || std::fabs(a - b) <= 1e-15 * std::fmax(std::fabs(a), std::fabs(b));
}

bool sameProject(const nlohmann::json& a, const nlohmann::json& b) {
  if (a.is_number() && b.is_number()) return sameNumber(a.get<double>(), b.get<double>());
  if (a.type() != b.type() || a.size() != b.size()) return false;
  if (a.is_object()) {
    for (auto it = a.begin(); it != a.end(); ++it) {
      if (!b.contains(it.key()) || !sameProject(it.value(), b.at(it.key()))) return false;
    }
    return true;
  }
  if (a.is_array()) {
    for (std::size_t i = 0; i < a.size(); ++i) {
      if (!sameProject(a[i], b[i])) return false;
    }
    return true;
  }
  return a == b;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ConfigurationHeader::reset();
  std::string written;
  try {
    written = JsonSaveBuilder::toJson(
        JsonProjectLoader::loadText(std::string(reinterpret_cast<const char*>(data), size)));
  } catch (const std::exception&) {
    return 0;
  }
  const std::string again = JsonSaveBuilder::toJson(JsonProjectLoader::loadText(written));
  if (!sameProject(nlohmann::json::parse(written), nlohmann::json::parse(again))) __builtin_trap();
  return 0;
}
