#pragma once

#include <exception>
#include <functional>

// A step counter around a progress callback. The callback receives the percentage done
// (0..100, truncated) and the number of steps, and answers false to cancel.
class KOVACoreProgressBar {
 public:
  class ProgressCancelException : public std::exception {
   public:
    const char* what() const noexcept override { return "KovaCoreProgressBar canceled"; }
  };

  KOVACoreProgressBar(unsigned int current, unsigned int size,
                      std::function<bool(long, long)> callback);

  // Adds one step and returns what the callback answers (true without a callback).
  bool update();
  // As update(), but throws ProgressCancelException when the callback answers false.
  void updateWithThrow();
  // Asks the callback whether to go on without adding a step (true without a callback).
  bool poll() const;

  unsigned int getCurrentProgress() const { return current; }
  unsigned int getSize() const { return size; }
  double getPercentCurrentProgress() const;

 private:
  unsigned int current;
  unsigned int size;
  std::function<bool(long, long)> callback;
};
