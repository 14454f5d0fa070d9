#include <cstdlib>

#include "host/application/wire/message_reader.h"

using namespace host::application;

namespace {

/// Checks that messages, read in pieces of any size, are encoded as the same bytes again.
template <class Messages>
void read_in_pieces(std::string_view bytes, std::size_t piece) {
  MessageReader<Messages> reader;
  std::string written;
  for (std::size_t at = 0; at < bytes.size(); at += piece) {
    reader.append(bytes.substr(at, piece));
    while (const auto message = reader.next())
      written += encoded(*message);
  }
  if (bytes.substr(0, written.size()) != written) std::abort();
  if (!reader.has_failed() && written.size() + reader.pending_bytes() != bytes.size()) std::abort();
}

}  // namespace

// The first byte is the size of the pieces in which the rest is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::size_t piece = 1 + data[0];
  read_in_pieces<ToHome>(bytes, piece);
  read_in_pieces<ToApplication>(bytes, piece);
  return 0;
}
