#include <fcntl.h>
#include <toml++/toml.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "host/media/cloud_song.h"
#include "host/media/text.h"
#include "host/media/toml_depth.h"

namespace {

// More brackets inside each other than the scan before the parser lets through.
constexpr int too_many_brackets = 17;

int brackets_in(const toml::node& node) {
  int most = 0;
  int own = 0;
  if (const toml::array* array = node.as_array()) {
    own = 1;
    for (const toml::node& element : *array)
      most = std::max(most, brackets_in(element));
  } else if (const toml::table* table = node.as_table()) {
    own = table->is_inline() ? 1 : 0;
    for (const auto& [key, value] : *table)
      most = std::max(most, brackets_in(value));
  }
  // A header begins a new table: what is above it comes from other headers.
  return node.is_table() && own == 0 ? 0 : own + most;
}

// What the scan takes for a string or a comment must be one for the parser, too.
void check_scan(std::string_view text) {
  if (host::media::is_toml_nested_too_deeply(text)) return;
  try {
    const toml::table table = toml::parse(text);
    for (const auto& [key, value] : table) {
      if (brackets_in(value) >= too_many_brackets) std::abort();
    }
  } catch (const toml::parse_error&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  check_scan({reinterpret_cast<const char*>(data), size});
  const std::string path = "/tmp/song-" + std::to_string(::getpid()) + ".cloud.toml";
  const int file = ::open(path.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
  if (::write(file, data, size) != static_cast<ssize_t>(size)) std::abort();
  ::close(file);
  const auto reading = host::media::read_cloud_song(path);
  if (reading.tags.has_value() == !reading.refusal.empty()) std::abort();
  if (reading.tags && reading.tags->title.size() > host::media::longest_text_bytes) std::abort();
  ::unlink(path.c_str());
  return 0;
}
