#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "host/media/cloud_song.h"
#include "host/media/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
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
