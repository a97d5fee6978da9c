#include "project/database/TimeStampHash.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>

namespace {

uint64_t fnv1a(const std::string& text) {
  uint64_t hash = 14695981039346656037ULL;
  for (const unsigned char c : text) {
    hash ^= c;
    hash *= 1099511628211ULL;
  }
  return hash;
}

}  // namespace

std::string TimeStampHash::make(int64_t scenarioId, const std::string& timeStamp) {
  static std::atomic<uint64_t> counter{0};
  const auto clock = std::chrono::steady_clock::now().time_since_epoch().count();
  const std::string seed = std::to_string(scenarioId) + "|" + timeStamp + "|" +
                           std::to_string(getpid()) + "|" + std::to_string(clock) + "|" +
                           std::to_string(counter++);
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(fnv1a(seed)));
  return text;
}
