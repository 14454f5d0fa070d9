#pragma once

#include <signal.h>

/// Call before starting a thread beside a supervisor: the system gives the signal of a child's end
/// to any thread that does not block it, and the supervisor would wait for it.
inline void block_child_signals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGCHLD);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}
