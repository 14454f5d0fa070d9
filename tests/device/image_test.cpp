#include "device/macho/image.h"

#include <gtest/gtest.h>

#include "tests/device/byte_writer.h"

namespace sonavue::device {
namespace {

constexpr std::uint32_t kMagic = 0xfeedfacf;
constexpr std::size_t kSymbolSize = 16;

/// A library with nothing but symbols. All have the name that begins at the same place.
Bytes library_of_symbols(std::size_t count, std::size_t length) {
  constexpr std::size_t kTable = 24;
  constexpr std::size_t kSymbols = kHeaderSize + kTable;
  const std::size_t names = kSymbols + count * kSymbolSize;
  ByteWriter writer(names + length);
  writer.numbers({kMagic, kArm64, 0, kLibrary, 1, kTable, 0, 0});
  writer.numbers({kSymbolTable, kTable, kSymbols, count, names, length});
  Bytes bytes = writer.take();
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(names), bytes.end(), 'x');
  return bytes;
}

TEST(Images, SymbolsMayShareNames) {
  EXPECT_EQ(Image(library_of_symbols(10, 100)).symbols().size(), 10u);
}

TEST(Images, SymbolsDoNotMultiplyTheFile) {
  // 128 MB of names in a file of 136 kB.
  EXPECT_THROW(Image(library_of_symbols(2'000, 64'000)).symbols(), FormatError);
}

}  // namespace
}  // namespace sonavue::device
