#include "service/Thread.h"

Thread::~Thread() {
  // A thread still attached would outlive the object it runs on.
  if (attached) {
    pthread_join(tid, nullptr);
  }
}

bool Thread::start() {
  if (running) {
    return false;
  }
  if (pthread_create(&tid, nullptr, &Thread::runThread, this) != 0) {
    return false;
  }
  running = true;
  attached = true;
  return true;
}

bool Thread::join() {
  if (!attached) {
    return false;
  }
  attached = false;
  return pthread_join(tid, nullptr) == 0;
}

bool Thread::detach() {
  if (!attached) {
    return false;
  }
  attached = false;
  return pthread_detach(tid) == 0;
}

unsigned long Thread::self() const { return running ? static_cast<unsigned long>(tid) : 0; }

void* Thread::runThread(void* thread) {
  static_cast<Thread*>(thread)->run();
  return nullptr;
}
