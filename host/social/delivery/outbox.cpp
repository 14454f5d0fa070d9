#include "host/social/delivery/outbox.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>

#include "host/runtime/log.h"

namespace host::social {
namespace {

constexpr std::string_view kSuffix = ".txt";

/// An unnamed file, invisible to others until it is complete.
class Draft {
 public:
  explicit Draft(const std::filesystem::path& folder)
      : path_((folder / ".draft-XXXXXX").string()),
        descriptor_(mkostemp(path_.data(), O_CLOEXEC)) {}
  ~Draft() {
    if (descriptor_ < 0) return;
    close(descriptor_);
    unlink(path_.c_str());
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  /// Returns false with the reason in `errno`, as the other members do.
  bool write(std::string_view bytes) const {
    while (descriptor_ >= 0 && !bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return descriptor_ >= 0;
  }
  /// Flushes to the disk, where writing may still fail.
  bool settle() const { return fsync(descriptor_) == 0; }
  /// Fails with EEXIST where another file has the name.
  bool take_name(const std::filesystem::path& name) const {
    return link(path_.c_str(), name.c_str()) == 0;
  }

 private:
  std::string path_;
  int descriptor_;
};

/// The N of `kind-N.txt`; 0 for every other name.
unsigned number_in(std::string_view name, std::string_view kind) {
  if (!name.starts_with(kind) || !name.ends_with(kSuffix)) return 0;
  name.remove_prefix(kind.size());
  name.remove_suffix(kSuffix.size());
  if (!name.starts_with('-')) return 0;
  unsigned number = 0;
  const auto [end, error] = std::from_chars(name.data() + 1, name.data() + name.size(), number);
  return error == std::errc() && end == name.data() + name.size() ? number : 0;
}

}  // namespace

unsigned Outbox::next_number(std::string_view kind) const {
  unsigned highest = 0;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder_, error))
    highest = std::max(highest, number_in(entry.path().filename().string(), kind));
  return highest + 1;
}

Outbox::Result Outbox::put(std::string_view kind, std::string_view text) const {
  const auto failed = [&](const std::string& reason) {
    const std::string problem = folder_.string() + ": " + reason;
    spdlog::error("a text could not be put into the outbox: {}", problem);
    return Result{{}, problem};
  };
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  if (error) return failed(error.message());
  const Draft draft(folder_);
  if (!draft.write(text) || !draft.write("\n") || !draft.settle())
    return failed(std::strerror(errno));
  for (unsigned number = next_number(kind);; ++number) {
    const auto file =
        folder_ / (std::string(kind) + "-" + std::to_string(number) + std::string(kSuffix));
    if (draft.take_name(file)) return {file, {}};
    if (errno != EEXIST) return failed(std::strerror(errno));
  }
}

}  // namespace host::social
