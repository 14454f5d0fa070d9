#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

// A benchmark here is a pair: the measured work and a reference, run in turns to share slow moments
// of the machine. Their ratio is printed.

namespace bench {

struct Times {
  double median = 0;  // seconds
  double worst = 0;
};

inline Times summary(std::vector<double> seconds) {
  std::sort(seconds.begin(), seconds.end());
  return {seconds[seconds.size() / 2], seconds.back()};
}

template <class Work>
double seconds_for(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Pair {
  Times measured;
  Times reference;
};

/// Runs both `rounds` times in turns, after one uncounted round.
template <class Work, class Reference>
Pair in_turns(int rounds, Work work, Reference reference) {
  work();
  reference();
  std::vector<double> measured;
  std::vector<double> referred;
  for (int i = 0; i < rounds; ++i) {
    measured.push_back(seconds_for(work));
    referred.push_back(seconds_for(reference));
  }
  return {summary(std::move(measured)), summary(std::move(referred))};
}

/// Prints one line: the median, the reference's median, their ratio, and the target ratio.
inline void print_ratio(const char* name, double measured, double reference, double aim) {
  const double ratio = measured / reference;
  std::printf("%-46s %12.3f us / %12.3f us = %8.2f   (aim: at most %g)%s\n", name, measured * 1e6,
              reference * 1e6, ratio, aim, ratio <= aim ? "" : "   MISSED");
}

/// Hides a value from the optimiser.
template <class T>
inline void keep(T& value) {
  asm volatile("" : "+m"(value) : : "memory");
}

}  // namespace bench
