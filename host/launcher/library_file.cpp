#include "host/launcher/library_file.h"

#include <elf.h>
#include <link.h>

#include <cstring>
#include <optional>

#include "host/basics/utf8.h"
#include "host/files/read_file.h"

namespace host::launcher {
namespace {

using Header = ElfW(Ehdr);

/// Empty when the file does not begin with one.
std::optional<Header> header_of(const files::OpenFile& file) {
  Header header;
  if (read(file.descriptor.get(), &header, sizeof header) != sizeof header) return std::nullopt;
  if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0) return std::nullopt;
  return header;
}

}  // namespace

std::string reason_not_to_load(const std::filesystem::path& file) {
  if (!utf8::is_valid(file.native())) return " has a name that is not valid UTF-8";
  const files::OpenFile opened = files::open_file(file);
  if (files::is_missing(opened.error)) return " cannot be found";
  if (files::is_no_file(opened.error)) return " is not a library";
  if (opened.error) return " cannot be read: " + opened.error.message();
  const auto header = header_of(opened);
  if (!header || header->e_type != ET_DYN) return " is not a library";
  // The table of sections is at the end.
  const std::size_t sections = std::size_t{header->e_shentsize} * header->e_shnum;
  if (header->e_shoff + sections > opened.stamp.size) return " is cut off";
  const auto own = header_of(files::open_file("/proc/self/exe"));
  if (own && own->e_machine != header->e_machine) return " is a library for another processor";
  return {};
}

}  // namespace host::launcher
