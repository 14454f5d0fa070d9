#include "tests/macho/loader/loaded_image.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "tests/device/frame_bytes.h"
#include "tests/macho/image_bytes.h"

namespace macho_tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::uint64_t kData = ImageShape::kData;
constexpr std::uint64_t kCode = ImageShape::kCode;
constexpr std::size_t kPointer = sizeof(void*);
constexpr std::size_t kJumpSize = 6;

std::vector<std::string> events;

void first() {
  events.push_back("first");
}

void second() {
  events.push_back("second");
}

struct Thrown {};

void throw_something() {
  throw Thrown();
}

/// Finds these functions by name; no others exist.
void* find(const std::string& library, const std::string& symbol) {
  if (symbol == "_first" && library == "/usr/lib/first.dylib")
    return reinterpret_cast<void*>(&first);
  if (symbol == "_second" && library == "/usr/lib/second.dylib")
    return reinterpret_cast<void*>(&second);
  if (symbol == "_throw") return reinterpret_cast<void*>(&throw_something);
  return nullptr;
}

/// A jump through a pointer in the data.
Bytes jump(std::uint64_t from, std::uint64_t pointer) {
  const auto distance = static_cast<std::uint32_t>(pointer - from - kJumpSize);
  Bytes code = {0xff, 0x25, 0, 0, 0, 0};
  sonavue::device::put_little_32(code, 2, distance);
  return code;
}

/// Two pieces of code that jump to `_first` and `_second`, listed as initialisers in reverse order.
/// `_table` is exported and contains a pointer to itself.
ImageShape whole() {
  ImageShape shape;
  shape.code =
      joined({jump(kCode, kData + 2 * kPointer), jump(kCode + kJumpSize, kData + 3 * kPointer)});
  shape.initialisers = 2;
  shape.data = pointers({kCode + kJumpSize, kCode, 0, 0, kData + 4 * kPointer});
  shape.rebase = {0x11, 0x21, 0x00, 0x52, 0x42, 0x51, 0x00};
  shape.bind = joined({{0x11, 0x40}, zero_ended("_first"), {0x51, 0x71, 0x10, 0x90, 0x00}});
  shape.lazy_bind = joined({{0x71, 0x18, 0x12, 0x40}, zero_ended("_second"), {0x90, 0x00}});
  shape.exports = {0x00, 0x01, '_', 't', 0, 0x06, 0x03, 0x00, 0xa0, 0x20, 0x00};
  return shape;
}

std::unique_ptr<LoadedImage> loaded(const Bytes& bytes) {
  return std::make_unique<LoadedImage>(Image(bytes, sonavue::device::kX86), &find);
}

std::unique_ptr<LoadedImage> loaded(const ImageShape& shape) {
  return loaded(image_bytes(shape));
}

std::string refusal(const Bytes& bytes) {
  try {
    loaded(bytes);
    return "";
  } catch (const FormatError& problem) {
    return problem.what();
  }
}

std::string refusal(const ImageShape& shape) {
  return refusal(image_bytes(shape));
}

/// Code that allocates stack space, calls through a pointer in the data, and returns.
ImageShape calling(const Bytes& frames) {
  constexpr std::size_t kBehindCall = 10;
  ImageShape shape;
  shape.code = {0x48, 0x83, 0xec, 8, 0xff, 0x15, 0, 0, 0, 0, 0x48, 0x83, 0xc4, 8, 0xc3};
  sonavue::device::put_little_32(
      shape.code, 6, static_cast<std::uint32_t>(kData + kPointer - kCode - kBehindCall));
  shape.frames = frames;
  shape.initialisers = 1;
  shape.data = pointers({kCode});
  shape.rebase = {0x11, 0x21, 0x00, 0x51, 0x00};
  shape.bind = joined({{0x11, 0x40}, zero_ended("_throw"), {0x51, 0x71, 0x08, 0x90, 0x00}});
  return shape;
}

/// The frame description of that code: after its first instruction the frame has 16 bytes.
Bytes frame_of_calling(std::uint64_t code = kCode, std::uint64_t size = 15) {
  return sonavue::device::frame_bytes(ImageShape::kFrames, code, size, {0x44, 0x0e, 16});
}

/// The anonymous memory mappings of this process, as the system lists them.
std::vector<std::string> mapped_memory() {
  std::vector<std::string> lines;
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);)
    if (line.find(" 00:00 0 ") != line.npos && line.find('[') == line.npos) lines.push_back(line);
  return lines;
}

TEST(LoadedImage, RunsItsInitialisersInOrderThroughItsBindings) {
  events.clear();
  const auto image = loaded(whole());
  EXPECT_THAT(events, ElementsAre());
  image->run_initialisers();
  EXPECT_THAT(events, ElementsAre("second", "first"));
}

TEST(LoadedImage, PointersIntoItselfMoveWithIt) {
  const auto image = loaded(whole());
  void* table = image->exported("_t");
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(*static_cast<void**>(table), table);
  EXPECT_EQ(image->exported("_nothing"), nullptr);
}

TEST(LoadedImage, TwoOfThemCanBeLoadedTogether) {
  const auto one = loaded(whole());
  const auto other = loaded(whole());
  EXPECT_NE(one->exported("_t"), other->exported("_t"));
  EXPECT_EQ(*static_cast<void**>(other->exported("_t")), other->exported("_t"));
}

TEST(LoadedImage, AWeakBindingPrefersItsOwnSymbol) {
  ImageShape shape = whole();
  shape.weak_bind = joined({{0x40}, zero_ended("_t"), {0x51, 0x71, 0x28, 0x60, 0x08, 0x90, 0x00}});
  const auto image = loaded(shape);
  char* table = static_cast<char*>(image->exported("_t"));
  EXPECT_EQ(reinterpret_cast<char**>(table)[1], table + 8);
}

TEST(LoadedImage, AWeakImportMayBeMissing) {
  ImageShape shape = whole();
  shape.bind = joined({{0x11, 0x41}, zero_ended("_nowhere"), {0x51, 0x71, 0x20, 0x90, 0x00}});
  const auto image = loaded(shape);
  EXPECT_EQ(*static_cast<void**>(image->exported("_t")), nullptr);
}

TEST(LoadedImage, ExceptionsPassThroughItsCode) {
  const auto image = loaded(calling(frame_of_calling()));
  EXPECT_THROW(image->run_initialisers(), Thrown);
  EXPECT_THROW(image->run_initialisers(), Thrown);
}

TEST(LoadedImage, ItsFramesAreUnregisteredWithIt) {
  for (int i = 0; i < 100; ++i) {
    const auto image = loaded(calling(frame_of_calling()));
    EXPECT_THROW(image->run_initialisers(), Thrown);
  }
  EXPECT_THROW(throw_something(), Thrown);
}

TEST(LoadedImageDeathTest, WithoutFramesAnExceptionTerminatesTheProcess) {
  const auto image = loaded(calling({}));
  EXPECT_EXIT(EXPECT_ANY_THROW(image->run_initialisers()), testing::KilledBySignal(SIGABRT), "");
}

TEST(LoadedImage, FramesMustDescribeItsOwnCode) {
  for (const auto& [code, size] : {std::pair{0x10000u, 15u}, {0xffffff00u, 15u}, {0x2ff8u, 15u}})
    EXPECT_EQ(refusal(calling(frame_of_calling(code, size))),
              "the frame table refers to code outside the image");
  Bytes damaged = frame_of_calling();
  damaged[8] = 2;
  EXPECT_EQ(refusal(calling(damaged)), "the frame table's entry at byte 0 has an unknown version");
}

TEST(LoadedImageDeathTest, ItsCodeIsNotWritable) {
  const auto image = loaded(whole());
  char* code = static_cast<char*>(image->exported("_t")) - kData;
  EXPECT_EXIT(*code = 0, testing::KilledBySignal(SIGSEGV), "");
}

TEST(LoadedImage, AMissingSymbolIsNamedWithItsLibrary) {
  ImageShape shape = whole();
  shape.bind = joined({{0x12, 0x40}, zero_ended("_first"), {0x51, 0x71, 0x10, 0x90, 0x00}});
  EXPECT_EQ(refusal(shape), "it needs _first of /usr/lib/second.dylib, which is not available");
  shape.bind = joined({{0x3e, 0x40}, zero_ended("_first"), {0x51, 0x71, 0x10, 0x90, 0x00}});
  EXPECT_EQ(refusal(shape), "it needs _first of any library, which is not available");
}

TEST(LoadedImage, UnsupportedSectionsAreRejectedByName) {
  ImageShape shape = whole();
  for (const std::uint32_t kind : {0x11u, 0x13u, 0x16u}) {
    shape.kind_of_data = kind;
    EXPECT_EQ(refusal(shape), "__data has a kind that is not loaded here");
  }
  shape = whole();
  shape.data_section = "__objc_classlist";
  EXPECT_EQ(refusal(shape), "__objc_classlist would have to be registered by the runtime");
}

TEST(LoadedImage, SegmentsMustBeValid) {
  ImageShape shape = whole();
  shape.protection_of_data = 7;
  EXPECT_EQ(refusal(shape), "__DATA is both writable and executable");
  shape = whole();
  shape.address_of_data = kData + 8;
  EXPECT_EQ(refusal(shape), "__DATA does not start at a page");
  shape.address_of_data = 0;
  EXPECT_THAT(refusal(shape), HasSubstr("overlaps another segment"));
  shape.address_of_data = std::uint64_t{1} << 40;
  EXPECT_EQ(refusal(shape), "its segments are too far apart");
}

TEST(LoadedImage, InitialisersMustBeCode) {
  ImageShape shape = whole();
  shape.data = pointers({kCode, kData});
  EXPECT_EQ(refusal(shape), "__mod_init_func holds something at byte 8 that is not code");
}

TEST(LoadedImage, AnExportMustBeInsideTheImage) {
  ImageShape shape = whole();
  shape.exports = {0x00, 0x01, '_', 't', 0, 0x06, 0x03, 0x00, 0xa0, 0x70, 0x00};
  EXPECT_EQ(refusal(shape), "_t is outside the image");
}

TEST(LoadedImage, ARejectedImageLeavesNothingMapped) {
  ImageShape shape = whole();
  shape.bind = joined({{0x12, 0x40}, zero_ended("_nowhere"), {0x51, 0x71, 0x10, 0x90, 0x00}});
  EXPECT_NE(refusal(shape), "");
  const auto before = mapped_memory();
  EXPECT_NE(refusal(shape), "");
  EXPECT_EQ(mapped_memory(), before);
  const auto image = loaded(whole());
  EXPECT_NE(mapped_memory(), before);
}

TEST(LoadedImage, AFileTruncatedAnywhereIsRejected) {
  const Bytes bytes = image_bytes(whole());
  for (std::size_t size = 0; size < bytes.size(); size += size < 1000 ? 1 : 97) {
    const Bytes cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_NE(refusal(cut), "") << size;
  }
}

// Whatever a byte is changed to, the image is rejected or loaded, and the process survives.
TEST(LoadedImage, AnyByteOfTheHeaderAndTheTablesMayBeWrong) {
  const Bytes bytes = image_bytes(whole());
  int refused = 0;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    if (at == 700) at = 2 * ImageShape::kPage;
    for (const std::uint8_t change : {0x01, 0x10, 0x80, 0xff}) {
      Bytes changed = bytes;
      changed[at] ^= change;
      refused += !refusal(changed).empty();
    }
  }
  EXPECT_GT(refused, 500);
}

}  // namespace
}  // namespace macho_tests
