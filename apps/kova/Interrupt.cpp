#include "Interrupt.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t interrupted = 0;
using Handler = void (*)(int);
Handler previous = SIG_DFL;

void onInterrupt(int) { interrupted = 1; }

}  // namespace

Interrupt::Guard::Guard() {
  interrupted = 0;
  previous = std::signal(SIGINT, onInterrupt);
}

Interrupt::Guard::~Guard() { std::signal(SIGINT, previous); }

bool Interrupt::requested() { return interrupted != 0; }

void Interrupt::request() { interrupted = 1; }
