#pragma once

#include <pthread.h>

// A thin class over a POSIX thread: a subclass says in run() what the thread does.
class Thread {
 public:
  Thread() = default;
  virtual ~Thread();
  Thread(const Thread&) = delete;
  Thread& operator=(const Thread&) = delete;

  // Starts run() on a new thread. False when the system refuses one or it was started already.
  [[nodiscard]] bool start();
  // Waits for run() to end. False when not started or already joined or detached.
  bool join();
  // Lets the thread end on its own. False as join().
  bool detach();
  // The identifier of the thread, 0 before start().
  unsigned long self() const;

 protected:
  virtual void run() = 0;

 private:
  static void* runThread(void* thread);

  pthread_t tid{};
  bool running = false;
  bool attached = false;
};
