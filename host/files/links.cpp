#include "host/files/links.h"

#include <limits.h>
#include <unistd.h>

#include "host/files/folder.h"

namespace host::files {
namespace {

// As many as the system itself follows.
constexpr int kMostLinks = 40;

/// Empty when `path` is not a link.
std::string target_of(const std::string& path) {
  char target[PATH_MAX];
  const ssize_t length = readlink(path.c_str(), target, sizeof target);
  return length < 0 ? std::string() : std::string(target, static_cast<std::size_t>(length));
}

}  // namespace

std::error_code follow_links(std::string& path) {
  std::string reached = path;
  for (int count = 0; count <= kMostLinks; ++count) {
    const std::string target = target_of(reached);
    if (target.empty()) {
      path = std::move(reached);
      return {};
    }
    reached = target.front() == '/' ? target : folder_of(reached).append("/").append(target);
  }
  return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

}  // namespace host::files
