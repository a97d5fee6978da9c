#include "core/KOVACoreProgressBar.h"

KOVACoreProgressBar::KOVACoreProgressBar(unsigned int current, unsigned int size,
                                         std::function<bool(long, long)> callback)
    : current(current), size(size), callback(std::move(callback)) {}

bool KOVACoreProgressBar::update() {
  ++current;
  if (!callback) return true;
  const long percentage = static_cast<long>(current * 100.0 / size);
  return callback(percentage, static_cast<long>(size));
}

void KOVACoreProgressBar::updateWithThrow() {
  if (!update()) throw ProgressCancelException();
}

double KOVACoreProgressBar::getPercentCurrentProgress() const {
  return static_cast<double>(current) / size * 100.0;
}
