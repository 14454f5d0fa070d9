#include "device/macho/image.h"

#include <algorithm>

namespace sonavue::device {
namespace {

constexpr std::uint32_t kMagic = 0xfeedfacf;
constexpr std::size_t kNameLength = 16;
constexpr std::size_t kSegmentCommandSize = 72;
constexpr std::size_t kSectionSize = 80;
constexpr std::size_t kSymbolSize = 16;
constexpr std::size_t kShortestCommand = 8;
constexpr unsigned kBitsOfAddress = 64;
constexpr std::uint8_t kKindMask = 0x0e;
constexpr std::uint8_t kExternal = 0x01;
constexpr std::uint8_t kDebugging = 0xe0;
// Names may share bytes, but all together they are not much longer than the file.
constexpr std::size_t kMostShared = 16;

const char* name_of(Processor processor) {
  return processor == kArm64 ? "arm64" : "x86-64";
}

}  // namespace

bool Symbol::is_undefined() const {
  return (kind & (kKindMask | kDebugging)) == 0 && is_external();
}

bool Symbol::is_external() const {
  return kind & kExternal;
}

Image::Image(Bytes bytes, Processor processor) : bytes_(std::move(bytes)), processor_(processor) {
  if (bytes_.size() < kHeaderSize || little_32(bytes_, 0) != kMagic)
    throw FormatError("it is not a 64-bit library of the phone");
  if (little_32(bytes_, 4) != processor)
    throw FormatError(std::string("its processor is not ") + name_of(processor));
  if (file_kind() != kLibrary && file_kind() != kBundle)
    throw FormatError("it is neither a library nor a bundle");

  std::size_t offset = kHeaderSize;
  const std::size_t count = little_32(bytes_, kCommandCountOffset);
  for (std::size_t i = 0; i < count; ++i) {
    const LoadCommand found{little_32(bytes_, offset), offset, little_32(bytes_, offset + 4)};
    if (found.size < kShortestCommand || offset + found.size > end_of_commands())
      throw FormatError("a load command reaches beyond the commands");
    bytes_at(bytes_, offset, found.size);
    if (found.kind == kSegment) read_segment(found);
    commands_.push_back(found);
    offset += found.size;
  }
}

void Image::read_segment(const LoadCommand& command) {
  const std::size_t at = command.offset;
  if (command.size < kSegmentCommandSize) throw FormatError("a segment's command is too short");
  const std::string name = text_at(bytes_, at + 8, at + 8 + kNameLength);
  const Segment read{name,
                     at,
                     little_64(bytes_, at + 24),
                     little_64(bytes_, at + kSegmentMemorySizeOffset),
                     little_64(bytes_, at + 40),
                     little_64(bytes_, at + kSegmentSizeOffset),
                     little_32(bytes_, at + 60)};
  bytes_at(bytes_, read.offset, read.size);
  segments_.push_back(read);
  const std::size_t count = little_32(bytes_, at + 64);
  if (count > (command.size - kSegmentCommandSize) / kSectionSize)
    throw FormatError("a segment has more sections than its command holds");
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t section = at + kSegmentCommandSize + i * kSectionSize;
    sections_.push_back({name, text_at(bytes_, section, section + kNameLength),
                         little_64(bytes_, section + 32), little_64(bytes_, section + 40),
                         little_32(bytes_, section + 48), little_32(bytes_, section + 64),
                         little_32(bytes_, section + 68), little_32(bytes_, section + 72)});
  }
}

std::uint32_t Image::file_kind() const {
  return little_32(bytes_, 12);
}

std::size_t Image::end_of_commands() const {
  return kHeaderSize + little_32(bytes_, kCommandBytesOffset);
}

const LoadCommand* Image::command(std::uint32_t kind) const {
  const auto found = std::find_if(commands_.begin(), commands_.end(),
                                  [&](const auto& each) { return each.kind == kind; });
  return found == commands_.end() ? nullptr : &*found;
}

const Segment* Image::segment(std::string_view name) const {
  const auto found = std::find_if(segments_.begin(), segments_.end(),
                                  [&](const auto& each) { return each.name == name; });
  return found == segments_.end() ? nullptr : &*found;
}

const Section* Image::section(std::string_view segment, std::string_view name) const {
  const auto found = std::find_if(sections_.begin(), sections_.end(), [&](const auto& each) {
    return each.segment == segment && each.name == name;
  });
  return found == sections_.end() ? nullptr : &*found;
}

Bytes Image::content(const Section& section) const {
  const std::uint8_t* first = bytes_at(bytes_, section.offset, section.size);
  return Bytes(first, first + section.size);
}

std::string Image::library_name(const LoadCommand& command) const {
  const std::size_t name = little_32(bytes_, command.offset + 8);
  return text_at(bytes_, command.offset + name, command.offset + command.size);
}

std::string Image::own_name() const {
  const LoadCommand* found = command(kOwnName);
  return found ? library_name(*found) : std::string();
}

std::vector<std::string> Image::libraries() const {
  std::vector<std::string> names;
  for (const LoadCommand& each : commands_)
    if (each.kind == kLoadLibrary) names.push_back(library_name(each));
  return names;
}

std::vector<Symbol> Image::symbols() const {
  std::vector<Symbol> read;
  const LoadCommand* table = command(kSymbolTable);
  if (!table) return read;
  const std::size_t first = little_32(bytes_, table->offset + 8);
  const std::size_t count = little_32(bytes_, table->offset + 12);
  const std::size_t names = little_32(bytes_, table->offset + 16);
  const std::size_t end = names + little_32(bytes_, table->offset + 20);
  bytes_at(bytes_, first, count * kSymbolSize);
  std::size_t length = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t at = first + i * kSymbolSize;
    read.push_back({text_at(bytes_, names + little_32(bytes_, at), end), bytes_[at + 4],
                    little_64(bytes_, at + 8)});
    length += read.back().name.size();
    if (length > kMostShared * bytes_.size())
      throw FormatError("too many symbols have the same long name");
  }
  return read;
}

// A list of distances, with seven bits per byte.
std::vector<std::uint64_t> Image::function_starts() const {
  std::vector<std::uint64_t> starts;
  const LoadCommand* list = command(kFunctionStarts);
  const Segment* text = segment("__TEXT");
  if (!list || !text) return starts;
  const std::size_t first = little_32(bytes_, list->offset + 8);
  const std::size_t size = little_32(bytes_, list->offset + 12);
  const std::uint8_t* bytes = bytes_at(bytes_, first, size);
  std::uint64_t address = text->address;
  std::uint64_t distance = 0;
  unsigned shift = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (shift >= kBitsOfAddress) throw FormatError("the list of functions is damaged");
    distance |= static_cast<std::uint64_t>(bytes[i] & 0x7f) << shift;
    shift += 7;
    if (bytes[i] & 0x80) continue;
    if (distance == 0) break;
    starts.push_back(address += distance);
    distance = 0;
    shift = 0;
  }
  return starts;
}

std::vector<std::string> Image::strings() const {
  std::vector<std::string> read;
  const Section* texts = section("__TEXT", "__cstring");
  if (!texts) return read;
  const std::size_t end = texts->offset + texts->size;
  for (std::size_t at = texts->offset; at < end; at += read.back().size() + 1)
    read.push_back(text_at(bytes_, at, end));
  return read;
}

}  // namespace sonavue::device
