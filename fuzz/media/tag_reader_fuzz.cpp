#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "host/media/tag_reader.h"
#include "host/media/text.h"

// The first byte selects the file's suffix, since the reader looks at the name first.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static constexpr const char* suffixes[] = {".flac", ".mp3", ".ogg", ".opus", ".m4a", ".wav"};
  if (size < 2) return 0;
  const int file = ::memfd_create("song", MFD_CLOEXEC);
  if (::write(file, data + 1, size - 1) != static_cast<ssize_t>(size - 1)) std::abort();
  const std::string link = "/tmp/song-" + std::to_string(::getpid()) + suffixes[data[0] % 6];
  ::unlink(link.c_str());
  const std::string target = "/proc/self/fd/" + std::to_string(file);
  if (::symlink(target.c_str(), link.c_str()) != 0) std::abort();

  const auto reading = host::media::read_tags(link);
  host::media::read_embedded_picture(link);
  if (reading.tags.has_value() == !reading.refusal.empty()) std::abort();
  if (reading.tags && reading.tags->title.size() > host::media::longest_text_bytes) std::abort();
  ::unlink(link.c_str());
  ::close(file);
  return 0;
}
