#include "tests/macho/image_bytes.h"

#include "tests/device/byte_writer.h"

namespace macho_tests {
namespace {

using namespace sonavue::device;

constexpr std::uint32_t kMagic = 0xfeedfacf;
constexpr std::uint32_t kRead = 1;
constexpr std::uint32_t kReadAndRun = 5;
constexpr std::uint32_t kInitialisers = 9;
constexpr std::size_t kTables = 2 * ImageShape::kPage;
constexpr std::size_t kInformationSize = 48;
constexpr std::size_t kLibrarySize = 64;
constexpr std::size_t kLibraryHead = 24;

std::size_t size_of_commands(const ImageShape& shape) {
  return 3 * ByteWriter::kSegmentSize + 3 * ByteWriter::kSectionSize + kInformationSize +
         shape.libraries.size() * kLibrarySize;
}

void write_data_segment(ByteWriter& writer, const ImageShape& shape) {
  constexpr std::uint64_t kPage = ImageShape::kPage;
  const std::uint64_t run = shape.initialisers * sizeof(void*);
  writer.segment("__DATA", {shape.address_of_data, kPage, kPage, kPage}, shape.protection_of_data,
                 2);
  writer.section("__mod_init_func", "__DATA", {shape.address_of_data, run, kPage, run},
                 kInitialisers);
  writer.section(shape.data_section, "__DATA",
                 {shape.address_of_data + run, kPage - run, kPage + run, kPage - run},
                 shape.kind_of_data);
}

}  // namespace

Bytes image_bytes(const ImageShape& shape) {
  constexpr std::uint64_t kPage = ImageShape::kPage;
  const Bytes* tables[] = {&shape.rebase, &shape.bind, &shape.weak_bind, &shape.lazy_bind,
                           &shape.exports};
  std::size_t end = kTables;
  for (const Bytes* each : tables)
    end += each->size();

  ByteWriter writer(end);
  writer.numbers(
      {kMagic, kX86, 3, kLibrary, 4 + shape.libraries.size(), size_of_commands(shape), 0, 0});
  writer.segment("__TEXT", {0, kPage, 0, kPage}, kReadAndRun, 1);
  writer.section(
      "__eh_frame", "__TEXT",
      {ImageShape::kFrames, shape.frames.size(), ImageShape::kFrames, shape.frames.size()});
  write_data_segment(writer, shape);
  writer.segment("__LINKEDIT", {kTables, kPage, kTables, end - kTables}, kRead, 0);
  for (const std::string& each : shape.libraries) {
    writer.numbers({kLoadLibrary, kLibrarySize, kLibraryHead, 0, 0, 0});
    writer.text(each, kLibrarySize - kLibraryHead);
  }
  writer.numbers({kDyldInformation, kInformationSize});
  std::size_t at = kTables;
  for (const Bytes* each : tables) {
    writer.numbers({at, each->size()});
    writer.put(*each, at);
    at += each->size();
  }
  writer.put(shape.code, ImageShape::kCode);
  writer.put(shape.frames, ImageShape::kFrames);
  writer.put(shape.data, kPage);
  return writer.take();
}

Bytes packed(std::uint64_t value) {
  Bytes bytes;
  for (; value >= 0x80; value >>= 7)
    bytes.push_back(static_cast<std::uint8_t>(value) | 0x80);
  bytes.push_back(static_cast<std::uint8_t>(value));
  return bytes;
}

Bytes joined(std::initializer_list<Bytes> pieces) {
  Bytes all;
  for (const Bytes& each : pieces)
    all.insert(all.end(), each.begin(), each.end());
  return all;
}

Bytes zero_ended(std::string_view text) {
  Bytes bytes(text.begin(), text.end());
  bytes.push_back(0);
  return bytes;
}

Bytes pointers(std::initializer_list<std::uint64_t> values) {
  ByteWriter writer(values.size() * sizeof(std::uint64_t));
  writer.long_numbers(values);
  return writer.take();
}

}  // namespace macho_tests
