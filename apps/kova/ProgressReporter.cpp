#include "ProgressReporter.h"

#include <algorithm>

#include "Interrupt.h"

namespace {

constexpr int kBarWidth = 40;

int percentOf(long done, long total) {
  if (total <= 0) return 100;
  return static_cast<int>(
      std::clamp(100.0 * static_cast<double>(done) / static_cast<double>(total), 0.0, 100.0));
}

// Labels hold scenario names, which a project file does not limit: a progress line stays short.
constexpr std::size_t kLabelLength = 60;

std::string shortLabel(const std::string& label) {
  if (label.size() <= kLabelLength) return label;
  std::size_t end = kLabelLength;
  // Cut between characters of UTF-8, never inside one (continuation bytes are 10xxxxxx).
  while (end > 0 && (static_cast<unsigned char>(label[end]) & 0xC0) == 0x80) --end;
  return label.substr(0, end) + "...";
}

}  // namespace

std::function<bool(long, long)> ProgressReporter::callback(const std::string& fullLabel,
                                                           Form form) {
  return [this, label = shortLabel(fullLabel), form](long done, long total) {
    if (!quiet)
      show(label, form == Form::percentage ? percentOf(done, 100) : percentOf(done, total));
    return !Interrupt::requested();
  };
}

void ProgressReporter::show(const std::string& label, int percent) {
  if (label != currentLabel) {
    finish();
    currentLabel = label;
    lastPercent = -1;
  }
  if (console.errIsTerminal) {
    if (percent == lastPercent) return;
    const int filled = percent * kBarWidth / 100;
    console.err << '\r' << label << " [" << std::string(filled, '#')
                << std::string(kBarWidth - filled, ' ') << "] " << percent << '%' << std::flush;
  } else {
    if (percent / 10 == lastPercent / 10 && lastPercent >= 0) return;
    console.err << label << ": " << percent / 10 * 10 << "%\n" << std::flush;
  }
  lastPercent = percent;
}

void ProgressReporter::finish() {
  if (console.errIsTerminal && lastPercent >= 0) console.err << '\n' << std::flush;
  lastPercent = -1;
  currentLabel.clear();
}
