#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bench/phone/bench_phone.h"

// Parts of a benchmark in processes of their own, so that each starts with nothing.

namespace bench {

template <class Work>
void in_a_process(Work work) {
  std::fflush(stdout);
  const pid_t child = ::fork();
  if (child == 0) {
    work();
    std::fflush(stdout);
    ::_exit(EXIT_SUCCESS);
  }
  int status = 1;
  require(::waitpid(child, &status, 0) == child && status == 0, "a process of the benchmark");
}

template <class Work>
double number_from_a_process(Work work) {
  int ends[2];
  require(::pipe(ends) == 0, "a pipe");
  in_a_process([&] {
    const double number = work();
    require(::write(ends[1], &number, sizeof number) == sizeof number, "the pipe");
  });
  double number = 0;
  require(::read(ends[0], &number, sizeof number) == sizeof number, "the pipe");
  ::close(ends[0]);
  ::close(ends[1]);
  return number;
}

/// The same music, whose index is filled in another process: neither the time nor the memory for it
/// are the phone's.
inline Music filled_apart(Music music) {
  music.remember = [remember = music.remember](const std::filesystem::path& index) {
    in_a_process([&] { remember(index); });
  };
  return music;
}

}  // namespace bench
