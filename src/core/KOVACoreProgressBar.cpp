#include "core/KOVACoreProgressBar.h"

KOVACoreProgressBar::KOVACoreProgressBar(unsigned int current, unsigned int size,
                                         std::function<bool(long, long)> callback)
    : current(current), size(size), callback(std::move(callback)) {}

bool KOVACoreProgressBar::update() {
  ++current;
  return poll();
}

bool KOVACoreProgressBar::poll() const {
  if (!callback) return true;
  return callback(static_cast<long>(getPercentCurrentProgress()), static_cast<long>(size));
}

void KOVACoreProgressBar::updateWithThrow() {
  if (!update()) throw ProgressCancelException();
}

double KOVACoreProgressBar::getPercentCurrentProgress() const {
  // A bar of no steps is done; an optimisation steps once more per particle than its bar counts.
  if (size == 0 || current >= size) return 100.0;
  return current * 100.0 / size;
}
