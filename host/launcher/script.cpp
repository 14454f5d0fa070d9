#include "host/launcher/script.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <sstream>
#include <system_error>

#include "host/basics/descriptor.h"

namespace host::launcher {
namespace {

constexpr std::size_t kLargestScript = 16 * 1024 * 1024;

std::string latest_error() {
  return std::error_code(errno, std::generic_category()).message();
}

/// Returns the reason when the bytes cannot be read or are too many.
std::optional<std::string> read_all(int descriptor, std::string& bytes) {
  char piece[4096];
  for (;;) {
    pollfd waiting{descriptor, POLLIN, 0};
    poll(&waiting, 1, -1);
    const auto count = read(descriptor, piece, sizeof piece);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) continue;
    if (count < 0) return "cannot be read: " + latest_error();
    if (count == 0) return std::nullopt;
    bytes.append(piece, static_cast<std::size_t>(count));
    if (bytes.size() > kLargestScript) return "is too large for a script";
  }
}

std::optional<std::string> read_bytes(const std::string& file, Pipes pipes, std::string& bytes) {
  // A pipe is opened without waiting for its writer.
  const Descriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!opened || fstat(opened.get(), &status) != 0) return "cannot be read: " + latest_error();
  const bool is_pipe = S_ISFIFO(status.st_mode) && pipes == Pipes::Allowed;
  if (!S_ISREG(status.st_mode) && !is_pipe) return "cannot be read: it is not a file";
  return read_all(opened.get(), bytes);
}

}  // namespace

std::optional<Script> read_script(const std::string& file, Pipes pipes, std::string& problem) {
  std::string bytes;
  if (const auto reason = read_bytes(file, pipes, bytes)) {
    problem = file + " " + *reason;
    return std::nullopt;
  }
  Script made{file, {}};
  std::istringstream stream(std::move(bytes));
  for (std::string line; std::getline(stream, line);)
    made.lines.push_back(line);
  return made;
}

}  // namespace host::launcher
