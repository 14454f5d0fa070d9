#include <fcntl.h>
#include <fmt/core.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

// sonavue_exchange ONE OTHER atomically exchanges the names of two folders on one file system.

int main(int count, char** arguments) {
  constexpr int kWrongUse = 2;
  if (count != 3) {
    fmt::print(stderr, "Usage: sonavue_exchange ONE OTHER\n");
    return kWrongUse;
  }
  if (renameat2(AT_FDCWD, arguments[1], AT_FDCWD, arguments[2], RENAME_EXCHANGE) == 0) return 0;
  fmt::print(stderr, "{} cannot be replaced: {}.\n", arguments[2], std::strerror(errno));
  return 1;
}
